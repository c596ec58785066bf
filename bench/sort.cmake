add_executable(sort_bench ${CMAKE_CURRENT_LIST_DIR}/sort_bench.cpp ${CMAKE_CURRENT_LIST_DIR}/report_data.h
               ${CMAKE_CURRENT_LIST_DIR}/report_data.cpp)
target_link_libraries(sort_bench PRIVATE ZkpGrid::Engine SQLite::SQLite3)
