# What a test calls is optimised; the test itself is not worth the time.
set(plotvane_test_options -O0)

# plotvane_precompiled_headers()
# Two targets that hold a precompiled header each: what most sources include, and that with what most tests do. Of our own
# headers the interface is in them, which most sources see and few changes touch; an edit of another rebuilds none of the
# two. What is in them costs GCC time in each source, also where it is not used, so no more is. A source includes what it
# uses all the same: CMAKE_DISABLE_PRECOMPILE_HEADERS turns them off. Their definitions are a part of those of every target,
# which the compiler asks for, so that each library has those of all: on ELF to export and to import are one thing.
function(plotvane_precompiled_headers)
  set(source ${PROJECT_BINARY_DIR}/precompiled.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  set(headers <QAction> <QApplication> <QCoreApplication> <QDialog> <QFileInfo> <QHash> <QImage> <QJsonArray> <QJsonDocument>
    <QJsonObject> <QPainter> <QPainterPath> <QSet> <QString> <QStringList> <QTimer> <QUndoStack> <QVector> <QWidget>
    <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <tuple> <variant> <vector>
    <SysAdapterUI/PageLayoutControl.h> <SysCarto/MapDocument.h> <SysCarto/MapFrameElement.h> <SysCarto/MapSurroundFrame.h>
    <SysDisplay/SimpleFillSymbol.h> <SysDisplay/SimpleLineSymbol.h> <SysFramework/HostAccess.h>)
  add_library(plotvane_precompiled OBJECT ${source})
  target_link_libraries(plotvane_precompiled PRIVATE plotvane_sdk)
  target_precompile_headers(plotvane_precompiled PRIVATE ${headers})
  add_library(plotvane_precompiled_test OBJECT ${source})
  target_link_libraries(plotvane_precompiled_test PRIVATE plotvane_sdk Qt5::Network Qt5::Test)
  target_compile_options(plotvane_precompiled_test PRIVATE ${plotvane_test_options})
  target_precompile_headers(plotvane_precompiled_test PRIVATE ${headers}
    "${PROJECT_SOURCE_DIR}/tests/Test.h" "${PROJECT_SOURCE_DIR}/tests/Widgets.h")
endfunction()

# A library that lacks something is not linked, but with clang, which links the sanitizers' runtime into executables alone.
set(plotvane_no_undefined $<$<NOT:$<BOOL:${PLOTVANE_FUZZ}>>:-Wl,-z,defs>)

# plotvane_host_library(SysName [files…] LINKS [libraries…])
# A shared library of the host. It sees the host interface and the libraries that it links, and nothing else. Another
# plug-in that links it installed needs Qt Widgets, but not what else the host is built on.
function(plotvane_host_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
  add_library(${name} SHARED ${arg_UNPARSED_ARGUMENTS})
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  target_link_libraries(${name} PUBLIC plotvane_sdk)
  foreach(link ${arg_LINKS})
    if(link MATCHES "^(Sys|Qt5::(Core|Gui|Widgets)$)")
      target_link_libraries(${name} PUBLIC ${link})
    else()
      target_link_libraries(${name} PUBLIC $<BUILD_INTERFACE:${link}>)
    endif()
  endforeach()
  target_link_options(${name} PRIVATE ${plotvane_no_undefined})
  target_precompile_headers(${name} REUSE_FROM plotvane_precompiled)
  install(TARGETS ${name} EXPORT PlotvaneSdk LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/plotvane)
endfunction()

# With sanitizers and without optimisation these take a quarter of a minute each, or several: pixels that are compared,
# documents made to be slow, the executable's exports, a window, all systems of coordinates, every row of every sheet and
# of the schema. They have the label "slow", and begin first, so that no core is left without work in the end. What the
# target plotvane_quick_tests builds is what `ctest --label-exclude slow` runs.
set(plotvane_slow_tests CoordinateSystemsTest ExportDialogTest ExportTest GraticuleTest IndexTest LabelSearchTest LabelTest LayerDrawTest
  LayoutTilingTest ProjectionTest RasterLayerTest TilingTest tst_confinement tst_element_list tst_exact_undo
  tst_export_subcommand tst_labels_by_hand tst_layer_classes tst_layer_tools tst_new_map tst_offline tst_print tst_properties
  tst_rebuilt_samples tst_recovery tst_run_subcommand tst_schema tst_sequences tst_series tst_subcommands tst_torture
  tst_vector_files tst_view tst_window tst_window_files)
add_custom_target(plotvane_quick_tests)

# plotvane_test(Name LINKS [libraries…])
# One Qt Test executable out of Name.cpp in the current folder, run on the offscreen platform in a fixed locale.
function(plotvane_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
  add_executable(${name} ${name}.cpp ${arg_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} plotvane_test_support Qt5::Network Qt5::Test)
  target_compile_options(${name} PRIVATE ${plotvane_test_options})
  target_precompile_headers(${name} REUSE_FROM plotvane_precompiled_test)
  # A test includes its own meta-objects, and those alone: AUTOMOC would make, and compile, an empty source for each.
  set(moc ${CMAKE_CURRENT_BINARY_DIR}/${name}.moc)
  qt5_generate_moc(${name}.cpp ${moc})
  target_sources(${name} PRIVATE ${moc})
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LANGUAGE=;TZ=UTC;QT_SCALE_FACTOR=1;ASAN_OPTIONS=detect_leaks=0" TIMEOUT 600)
  if(name IN_LIST plotvane_slow_tests)
    set_tests_properties(${name} PROPERTIES LABELS slow COST 10)
  else()
    add_dependencies(plotvane_quick_tests ${name})
  endif()
endfunction()

set(plotvane_languages de zh_CN)

# plotvane_translations(Target catalogue)
# Compiles translations/CATALOGUE_LANGUAGE.ts for each of these and embeds them in the target under :/translations.
function(plotvane_translations target catalogue)
  set(sources ${plotvane_languages})
  list(TRANSFORM sources REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/translations/${catalogue}_\\1.ts")
  qt5_add_translation(compiled ${sources})
  set(files "")
  foreach(file ${compiled})
    get_filename_component(name ${file} NAME)
    string(APPEND files "    <file alias=\"${name}\">${file}</file>\n")
  endforeach()
  set(collection ${CMAKE_CURRENT_BINARY_DIR}/${catalogue}-translations.qrc)
  file(CONFIGURE OUTPUT ${collection}
    CONTENT "<RCC>\n  <qresource prefix=\"/translations\">\n${files}  </qresource>\n</RCC>\n")
  qt5_add_resources(embedded ${collection})
  target_sources(${target} PRIVATE ${embedded})
endfunction()
