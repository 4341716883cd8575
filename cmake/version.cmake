# The version stands once, in the public header; quorvel_version is made of it.
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/../include/quorvel/version.h quorvel_version_lines
  REGEX "^#define QUORVEL_VERSION_(MAJOR|MINOR|PATCH) [0-9]+$")
string(REGEX MATCHALL "[0-9]+" quorvel_version_numbers "${quorvel_version_lines}")
list(JOIN quorvel_version_numbers "." quorvel_version)
