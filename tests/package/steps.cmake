# What the tests of the package share: where the installed copy stands, and a step that must succeed.
set(work ${BUILD}/package_test)
set(prefix ${work}/prefix)

# `output` is what the step prints.
function(must)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${work}/run RESULT_VARIABLE result
                  OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "Failed (${result}): ${ARGN}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

function(must_print text)
  must(${ARGN})
  if(NOT output MATCHES "${text}")
    message(FATAL_ERROR "Not \"${text}\" but:\n${output}")
  endif()
endfunction()
