# Debian packages by CPack, each a component of the installation; scripts/package builds them. They
# are made of shared libraries, to which a program's own package is tied by their name.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorvel)
set(CPACK_PACKAGE_VENDOR Quorvel)
set(CPACK_PACKAGE_CONTACT "Quorvel maintainers <maintainers@quorvel.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL "")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
find_program(QUORVEL_SHLIBDEPS dpkg-shlibdeps)
mark_as_advanced(QUORVEL_SHLIBDEPS)
if(QUORVEL_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
endif()

# A component as the package NAME, which needs the packages of the components behind CONTENTS. A
# summary follows on "configuration menu of video multiplexers".
macro(quorvel_package component name section summary contents)
  string(TOUPPER ${component} upper)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "configuration menu of video multiplexers${summary}
Quorvel is the configuration menu of CCTV video multiplexers and recorders, which
a host application embeds. This package has ${contents}.")
  set(CPACK_COMPONENT_${upper}_DEPENDS ${ARGN})
endmacro()

set(quorvel_libraries libraries)
quorvel_package(libraries libquorvel${quorvel_soversion} libs "" "the shared libraries")
if(QUORVEL_QT)
  quorvel_package(qt libquorvel-qt${quorvel_soversion} libs ", in windows of Qt 6"
    "the shared library that draws it" libraries)
  list(APPEND quorvel_libraries qt)
endif()
if(QUORVEL_APPS OR QUORVEL_TOOLS)
  quorvel_package(tools quorvel-tools utils ": tools"
    "quorvel, a command line for settings files, and muxhost, a host application with a
simulated device" ${quorvel_libraries})
  if(QUORVEL_QT)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS qt6-translations-l10n)
  endif()
endif()
# The C interface, where it is built, comes with a library of its own.
if(TARGET quorvel_c)
  quorvel_package(c libquorvel-c${quorvel_soversion} libs ", for C"
    "the shared library for programs in C and other languages")
  list(APPEND quorvel_libraries c)
endif()
if(TARGET quorvel_c AND QUORVEL_PYTHON_FOLDER)
  quorvel_package(python python3-quorvel python ", for Python" "the module quorvel" c)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_ARCHITECTURE all)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "python3 (>= 3.9)")
endif()
quorvel_package(development libquorvel-dev libdevel ", for development"
  "what programs are built with that use the libraries" ${quorvel_libraries})
if(QUORVEL_QT)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS qt6-base-dev)
endif()
include(CPack)
