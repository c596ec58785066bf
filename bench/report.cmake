add_executable(report_bench ${CMAKE_CURRENT_LIST_DIR}/report_bench.cpp ${CMAKE_CURRENT_LIST_DIR}/report_data.h
               ${CMAKE_CURRENT_LIST_DIR}/report_data.cpp)
target_link_libraries(report_bench PRIVATE ZkpGrid::Engine SQLite::SQLite3)
