# Builds the host example of README.md and the other small hosts against the installed copy, and runs them.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

# The first block of C++ under a heading of a page is the example.
function(write_example file page heading)
  file(READ ${SOURCE}/${page} text)
  string(FIND "${text}" "${heading}" start)
  string(SUBSTRING "${text}" ${start} -1 text)
  if(NOT text MATCHES "```cpp\n([^`]*)```")
    message(FATAL_ERROR "${page} has no example under ${heading}")
  endif()
  file(WRITE ${work}/${file} "${CMAKE_MATCH_1}")
endfunction()
write_example(host_example.cpp README.md "# ")
write_example(tools_example.h docs/host-guide.md "## Tools beside the report")

must(${CMAKE_COMMAND} -S ${SOURCE}/tests/package/consumer -B ${work}/consumer -G Ninja
     -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${COMPILER}
     -DEXAMPLES=${work})
must(${CMAKE_COMMAND} --build ${work}/consumer)

must_print("200 records" ${work}/consumer/host_example)
must_print("200 records" ${work}/consumer/engine_only)
must_print("undo redo copy find findNext findPrevious" ${work}/consumer/tools_host)
must_print("of the host: Αρ. Συμβολαίου" ${work}/consumer/script_host
           ${SOURCE}/tests/package/consumer/script_host.js)
