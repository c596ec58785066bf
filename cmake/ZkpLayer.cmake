# A layer is one folder of src/. It sees its own headers and those of the layers it names, and no
# others: each layer's headers are reached through a link of their own, so that an include which
# breaks the order of the folders does not compile. MOC: some of its headers have Q_OBJECT.
function(zkp_layer name)
  cmake_parse_arguments(ARG "MOC" "" "SOURCES;USES;LINKS" ${ARGN})
  set(view ${PROJECT_BINARY_DIR}/layers/${name})
  file(MAKE_DIRECTORY ${view})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${name} ${view}/${name} SYMBOLIC)

  add_library(zkp_${name} OBJECT ${ARG_SOURCES})
  set_target_properties(zkp_${name} PROPERTIES AUTOMOC ${ARG_MOC})
  target_include_directories(zkp_${name} PUBLIC $<BUILD_INTERFACE:${view}>)
  target_link_libraries(zkp_${name} PUBLIC Qt6::Core ${ARG_LINKS})
  foreach(used IN LISTS ARG_USES)
    target_link_libraries(zkp_${name} PUBLIC zkp_${used})
  endforeach()
  zkp_precompile(zkp_${name} zkp_base)
endfunction()

# The headers that nearly every source includes, compiled once: for the target that owns them, and for
# those that name it. Sources still include what they use.
function(zkp_precompile target owner)
  if(target STREQUAL owner)
    target_precompile_headers(${target} PRIVATE <QDateTime> <QHash> <QLocale> <QMetaMethod> <QObject>
      <QPointer> <QString> <QStringList> <QVariant> <algorithm> <functional> <map> <memory> <optional> <string>
      <tuple> <variant> <vector>)
  else()
    target_precompile_headers(${target} REUSE_FROM ${owner})
  endif()
endfunction()
