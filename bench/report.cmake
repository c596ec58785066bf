# What measures reports shares its data and its measuring.
add_library(report_measuring STATIC
  ${CMAKE_CURRENT_LIST_DIR}/measured_process.cpp ${CMAKE_CURRENT_LIST_DIR}/measured_process.h
  ${CMAKE_CURRENT_LIST_DIR}/report_data.cpp ${CMAKE_CURRENT_LIST_DIR}/report_data.h
  ${CMAKE_CURRENT_LIST_DIR}/totals_data.cpp ${CMAKE_CURRENT_LIST_DIR}/totals_data.h)
target_link_libraries(report_measuring PUBLIC ZkpGrid::Engine SQLite::SQLite3)

add_executable(report_bench ${CMAKE_CURRENT_LIST_DIR}/report_bench.cpp)
target_link_libraries(report_bench PRIVATE report_measuring)
