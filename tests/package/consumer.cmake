# Builds the host example of README.md and the other small hosts against the installed copy, and runs them.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

# The first block of C++ in the README is the example.
file(READ ${SOURCE}/README.md readme)
if(NOT readme MATCHES "```cpp\n([^`]*)```")
  message(FATAL_ERROR "README.md has no host example")
endif()
file(WRITE ${work}/host_example.cpp "${CMAKE_MATCH_1}")

must(${CMAKE_COMMAND} -S ${SOURCE}/tests/package/consumer -B ${work}/consumer -G Ninja
     -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${COMPILER}
     -DHOST_EXAMPLE=${work}/host_example.cpp)
must(${CMAKE_COMMAND} --build ${work}/consumer)

must_print("200 records" ${work}/consumer/host_example)
must_print("200 records" ${work}/consumer/engine_only)
must_print("of the host: Αρ. Συμβολαίου" ${work}/consumer/script_host
           ${SOURCE}/tests/package/consumer/script_host.js)
