# Installs the libraries with their public headers, so that other projects find them with
# find_package(quorvel), whose component "qt" needs Qt 6, and with pkg-config.
include(CMakePackageConfigHelpers)
set(quorvel_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/quorvel)

# EXPORT is a set of targets, a file of the package; what it holds may be installed alone. COMPONENT
# has what programs run with; what they are built with is "development".
function(quorvel_install_targets export component)
  install(TARGETS ${ARGN} EXPORT ${export}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component}
    NAMELINK_COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component})
  install(EXPORT ${export} NAMESPACE Quorvel:: DESTINATION ${quorvel_package_folder}
    COMPONENT development)
endfunction()

# The prefix is found from where the file lies: the folder may be moved.
function(quorvel_install_pkg_config name)
  set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH quorvel_up /${folder} /)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${folder} COMPONENT development)
endfunction()

if(NOT BUILD_SHARED_LIBS)
  set(quorvel_static_flag " -DQUORVEL_STATIC")
endif()

quorvel_install_targets(quorvel-targets libraries
  quorvel quorvel_platform_common quorvel_headless)
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
quorvel_install_pkg_config(quorvel)
quorvel_install_pkg_config(quorvel-platform-common)
quorvel_install_pkg_config(quorvel-headless)
if(QUORVEL_C)
  quorvel_install_targets(quorvel-c-targets c quorvel_c)
  quorvel_install_pkg_config(quorvel-c)
endif()
set(QUORVEL_PYTHON_FOLDER "" CACHE STRING
  "Folder of Python packages in the prefix, as lib/python3/dist-packages; empty: none is installed")
if(QUORVEL_C AND QUORVEL_PYTHON_FOLDER)
  install(DIRECTORY bindings/python/quorvel DESTINATION ${QUORVEL_PYTHON_FOLDER} COMPONENT python
    FILES_MATCHING PATTERN *.py PATTERN py.typed PATTERN __pycache__ EXCLUDE)
endif()
if(QUORVEL_QT)
  quorvel_install_targets(quorvel-qt-targets qt quorvel_qt)
  install(DIRECTORY platform/qt/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    COMPONENT development)
  quorvel_install_pkg_config(quorvel-qt)
endif()

configure_package_config_file(cmake/quorvel-config.cmake.in quorvel-config.cmake
  INSTALL_DESTINATION ${quorvel_package_folder})
# Before 1.0 each minor version may change what hosts see.
write_basic_package_version_file(quorvel-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/quorvel-config.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/quorvel-config-version.cmake
  DESTINATION ${quorvel_package_folder} COMPONENT development)
install(FILES CHANGELOG.md docs/hosting.md docs/block-map.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT development)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
