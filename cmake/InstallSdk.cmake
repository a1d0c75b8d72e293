# Installs the host interface for other plug-ins: headers, and a package that finds them and the host's libraries.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/PlotvaneSdk)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/PlotvaneSdkConfig.cmake.in
  ${PROJECT_BINARY_DIR}/PlotvaneSdkConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/PlotvaneSdkConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)

set_target_properties(plotvane_sdk PROPERTIES EXPORT_NAME sdk)
install(TARGETS plotvane_sdk EXPORT PlotvaneSdk)
install(EXPORT PlotvaneSdk NAMESPACE Plotvane:: FILE PlotvaneSdkTargets.cmake DESTINATION ${package_dir})
install(FILES ${PROJECT_BINARY_DIR}/PlotvaneSdkConfig.cmake ${PROJECT_BINARY_DIR}/PlotvaneSdkConfigVersion.cmake
  DESTINATION ${package_dir})
install(DIRECTORY plugin/sdk/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/plotvane FILES_MATCHING PATTERN "*.h")
