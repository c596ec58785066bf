add_executable(fetch_bench ${PROJECT_SOURCE_DIR}/bench/fetch_bench.cpp)
target_link_libraries(fetch_bench PRIVATE zkp_ado zkp_store zkp_base)
