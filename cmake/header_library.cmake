# A library of headers alone, as an imported target: PACKAGE has it, HEADER is one of its headers, and
# FOLDER the folder with them all.
function(quorvel_header_library target package header folder)
  if(TARGET ${target})
    return()
  endif()
  if(NOT CMAKE_CROSSCOMPILING)
    find_package(${package} REQUIRED)
    return()
  endif()
  # The headers of this machine serve, but nothing else of the folder that they are in.
  find_path(${package}_FOLDER ${header}
    PATHS /usr/include /usr/local/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(alone ${PROJECT_BINARY_DIR}/headers/${package})
  file(MAKE_DIRECTORY ${alone})
  file(CREATE_LINK ${${package}_FOLDER}/${folder} ${alone}/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} INTERFACE ${alone})
endfunction()
