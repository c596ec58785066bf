add_executable(totals_bench ${CMAKE_CURRENT_LIST_DIR}/totals_bench.cpp)
target_link_libraries(totals_bench PRIVATE report_measuring)
