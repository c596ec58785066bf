if(TARGET zkpgrid-widgets)
  add_executable(find_bench ${PROJECT_SOURCE_DIR}/bench/find_bench.cpp ${PROJECT_SOURCE_DIR}/bench/paint_data.h)
  target_link_libraries(find_bench PRIVATE ZkpGrid::Widgets)
endif()
