add_executable(interface_bench ${CMAKE_CURRENT_LIST_DIR}/interface_bench.cpp)
target_link_libraries(interface_bench PRIVATE ZkpGrid::Engine)
