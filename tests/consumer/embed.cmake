# Configures a host's project that embeds this folder and has folders named like ours: neither takes
# the other's files. Installs it: with our installation left out, nothing of ours comes along.
set(build ${FOLDER}/embedding)
run(${CMAKE_COMMAND} -S ${PROJECT}/tests/consumer/embedding -B ${build} -G Ninja
  -DCMAKE_CXX_COMPILER=${CXX} -DQUORVEL=${PROJECT} -DQUORVEL_QT=OFF
  -DCMAKE_EXPORT_COMPILE_COMMANDS=ON)
file(STRINGS ${build}/compile_commands.json theirs REGEX "\"file\": .*/tests/consumer/embedding/")
list(LENGTH theirs count)
if(NOT count EQUAL 1 OR NOT theirs MATCHES "/host\\.cpp\"")
  message(FATAL_ERROR "files of the host's that are compiled: ${theirs}")
endif()
run(${CMAKE_COMMAND} --build ${build} --target
  CMakeFiles/host.dir/host.cpp.o quorvel/CMakeFiles/quorvel.dir/core/combined_array.cpp.o)

run(${CMAKE_COMMAND} --install ${build} --prefix ${build}/prefix)
file(GLOB_RECURSE installed RELATIVE ${build}/prefix ${build}/prefix/*)
if(NOT installed STREQUAL "share/host.cpp")
  message(FATAL_ERROR "installed: ${installed}")
endif()
