# Builds zkpreport against the installed copy, as a host that knows nothing of this tree but its own
# sources: each header of the library that it includes must be an installed one.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

must(${CMAKE_COMMAND} -S ${SOURCE}/tests/package/program -B ${work}/program -G Ninja
     -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${COMPILER} -DZKP_SOURCE=${SOURCE}
     -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0")
must(${CMAKE_COMMAND} --build ${work}/program)

must_print("zkpreport [0-9]" ${work}/program/zkpreport/zkpreport --version)
file(WRITE ${work}/run/count.js "print(new ZkpGrid().Cols)")
must_print("^2\n" ${work}/program/zkpreport/zkpreport run count.js)
