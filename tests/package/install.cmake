# Installs into an empty prefix; the installed program makes the database of the other tests.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
file(REMOVE_RECURSE ${prefix} ${work}/run)
file(MAKE_DIRECTORY ${work}/run)

must(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
must(${prefix}/bin/zkpreport demo-db demo.db --rows 200)
