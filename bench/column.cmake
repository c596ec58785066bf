add_executable(column_bench ${CMAKE_CURRENT_LIST_DIR}/column_bench.cpp)
target_link_libraries(column_bench PRIVATE ZkpGrid::Engine)
