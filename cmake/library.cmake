# Before 1.0 the second number tells which libraries a program can run with.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(quorvel_soversion ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
else()
  set(quorvel_soversion ${PROJECT_VERSION_MAJOR})
endif()

# A library that hosts link, static or shared as BUILD_SHARED_LIBS says. Those who embed this folder
# know it by the name that it has in an installed package, Quorvel::NAME.
function(quorvel_library target name)
  add_library(${target} ${ARGN})
  add_library(Quorvel::${name} ALIAS ${target})
  # Static libraries, too, may become part of a host's shared one.
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name} VERSION ${PROJECT_VERSION} SOVERSION ${quorvel_soversion}
    POSITION_INDEPENDENT_CODE ON LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:quorvel_options>)
  # An installed library finds those beside it wherever the folder is.
  if(NOT APPLE AND NOT WIN32)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  endif()
endfunction()

# A program that is installed for users. Its man page and completions go with COMPONENT tools, too.
function(quorvel_tool target)
  if(QUORVEL_INSTALL)
    file(RELATIVE_PATH up /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${up}")
    install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
  endif()
endfunction()
