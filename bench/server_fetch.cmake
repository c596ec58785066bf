add_executable(server_fetch_bench ${PROJECT_SOURCE_DIR}/bench/server_fetch_bench.cpp
               ${PROJECT_SOURCE_DIR}/bench/measured_process.cpp)
target_link_libraries(server_fetch_bench PRIVATE zkp_ado zkp_store zkp_base ODBC::ODBC)
