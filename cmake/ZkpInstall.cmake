# Install rules: the libraries, the headers that a host includes, the program, and a package so that
# find_package(ZkpGrid) gives ZkpGrid::Engine and, where the face was built, ZkpGrid::Widgets;
# find_package(ZkpGrid COMPONENTS Script) gives ZkpGrid::Script too.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(source_dir ${PROJECT_SOURCE_DIR}/src)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZkpGrid)

# What a host includes; the headers that these include are installed with them.
set(public_headers
  zkp_grid.h
  ado/connection.h ado/command.h ado/constants.h ado/field.h ado/recordset.h
  bag/property_bag.h bag/property_bag_text.h
  base/currency.h base/error.h base/format.h base/number.h base/scope_guard.h base/text.h base/value.h
  base/texts/columns.h base/texts/tools.h
  core/shown_row_reader.h
  host/error_box.h host/scripted_host.h
  sql/query_exists.h
  template/template_name.h template/template_rows.h)
set(libraries zkpgrid)
set(qt_components Core)
set_target_properties(zkpgrid PROPERTIES EXPORT_NAME Engine)
target_compile_features(zkpgrid PUBLIC cxx_std_20)
if(TARGET zkpgrid-widgets)
  list(APPEND public_headers
    widgets/qt_host.h
    widgets/zkp_grid_widget.h
    widgets/band/band_bar.h
    widgets/grid/grid_view.h widgets/grid/palette_colors.h
    widgets/tools/copy_tool.h widgets/tools/clipboard_copy.h
    widgets/tools/find_tool.h
    widgets/tools/progress_tool.h
    widgets/tools/sums_tool.h
    widgets/tools/undo_tool.h)
  list(APPEND libraries zkpgrid-widgets)
  list(APPEND qt_components Svg Widgets)
  set_target_properties(zkpgrid-widgets PROPERTIES EXPORT_NAME Widgets)
endif()
if(TARGET zkpgrid-script)
  list(APPEND public_headers script/script_runner.h)
  set_target_properties(zkpgrid-script PROPERTIES EXPORT_NAME Script)
endif()

# Installs a header in its folder, and those that it includes, each once.
set(installed_headers "")
while(public_headers)
  list(POP_FRONT public_headers header)
  if(header IN_LIST installed_headers)
    continue()
  endif()
  list(APPEND installed_headers ${header})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source_dir}/${header})
  cmake_path(GET header PARENT_PATH folder)
  install(FILES ${source_dir}/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zkpgrid/${folder})
  file(STRINGS ${source_dir}/${header} includes REGEX "^#include \"")
  list(TRANSFORM includes REPLACE "^#include \"([^\"]+)\".*" "\\1")
  list(APPEND public_headers ${includes})
endwhile()

function(zkp_install_libraries export)
  install(TARGETS ${ARGN} EXPORT ${export} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zkpgrid)
  install(EXPORT ${export} NAMESPACE ZkpGrid:: DESTINATION ${package_dir})
endfunction()
zkp_install_libraries(ZkpGridTargets ${libraries})
if(TARGET zkpgrid-script)
  zkp_install_libraries(ZkpGridScriptTargets zkpgrid-script)
endif()
list(JOIN qt_components " " qt_components)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZkpGridConfig.cmake.in
  ${PROJECT_BINARY_DIR}/ZkpGridConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZkpGridConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZkpGridConfig.cmake ${PROJECT_BINARY_DIR}/ZkpGridConfigVersion.cmake
        DESTINATION ${package_dir})

# The program's folder comes later in the configuration than this file.
if(ZKP_BUILD_APPS)
  cmake_language(DEFER DIRECTORY ${PROJECT_SOURCE_DIR} CALL
    install TARGETS zkpreport RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
