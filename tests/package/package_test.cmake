# Installs into an empty prefix, builds the host example of README.md against it, and runs it on a
# demonstration database that the installed program makes.
set(work ${BUILD}/package_test)
file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${work}/run)

function(must)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${work}/run RESULT_VARIABLE result
                  OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "Failed (${result}): ${ARGN}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

# The first block of C++ in the README is the example.
file(READ ${SOURCE}/README.md readme)
if(NOT readme MATCHES "```cpp\n([^`]*)```")
  message(FATAL_ERROR "README.md has no host example")
endif()
file(WRITE ${work}/host_example.cpp "${CMAKE_MATCH_1}")

must(${CMAKE_COMMAND} --install ${BUILD} --prefix ${work}/prefix)
must(${work}/prefix/bin/zkpreport demo-db demo.db --rows 200)
must(${CMAKE_COMMAND} -S ${SOURCE}/tests/package/consumer -B ${work}/build -G Ninja
     -DCMAKE_PREFIX_PATH=${work}/prefix -DCMAKE_CXX_COMPILER=${COMPILER}
     -DHOST_EXAMPLE=${work}/host_example.cpp)
must(${CMAKE_COMMAND} --build ${work}/build)

must(${work}/build/host_example)
if(NOT output MATCHES "200 records")
  message(FATAL_ERROR "The host example shows something else:\n${output}")
endif()
must(${work}/build/engine_only)
if(NOT output MATCHES "200 records")
  message(FATAL_ERROR "The host without a window reads something else:\n${output}")
endif()
