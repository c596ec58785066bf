add_executable(surface_bench ${PROJECT_SOURCE_DIR}/bench/surface_bench.cpp)
target_link_libraries(surface_bench PRIVATE zkp_surface zkp_store zkp_base)
