add_executable(statement_bench ${CMAKE_CURRENT_LIST_DIR}/statement_bench.cpp
               ${CMAKE_CURRENT_LIST_DIR}/report_data.h ${CMAKE_CURRENT_LIST_DIR}/report_data.cpp)
target_link_libraries(statement_bench PRIVATE ZkpGrid::Engine SQLite::SQLite3)
