add_executable(template_bench ${CMAKE_CURRENT_LIST_DIR}/template_bench.cpp)
target_link_libraries(template_bench PRIVATE ZkpGrid::Engine)
