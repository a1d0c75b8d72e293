# plotvane_host_library(SysName [files…] LINKS [libraries…])
# A shared library of the host. It sees the host interface and the libraries that it links, and nothing else.
function(plotvane_host_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
  string(TOUPPER ${name} upper)
  add_library(${name} SHARED ${arg_UNPARSED_ARGUMENTS})
  target_compile_definitions(${name} PRIVATE ${upper}_BUILD)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC plotvane_sdk ${arg_LINKS})
  target_link_options(${name} PRIVATE -Wl,-z,defs)
  install(TARGETS ${name} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/plotvane)
endfunction()

# plotvane_test(Name LINKS [libraries…])
# One Qt Test executable out of Name.cpp in the current folder, run on the offscreen platform in a fixed locale.
function(plotvane_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
  add_executable(${name} ${name}.cpp ${arg_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} plotvane_test_support Qt5::Test)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC;QT_SCALE_FACTOR=1;ASAN_OPTIONS=detect_leaks=0" TIMEOUT 600)
endfunction()
