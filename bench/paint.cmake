if(TARGET zkpgrid-widgets)
  add_executable(paint_bench ${CMAKE_CURRENT_LIST_DIR}/paint_bench.cpp)
  target_link_libraries(paint_bench PRIVATE ZkpGrid::Widgets)
endif()
