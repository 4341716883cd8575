# Installs this build into a folder of its own, moves it, and builds and runs the example against
# it: with find_package, and by the compiler with what pkg-config says.
# Takes BUILD (the build's folder), EXAMPLES (theirs), FOLDER (to work in), CXX, FLAGS and GENERATOR.
function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${FOLDER})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER}/first)
file(RENAME ${FOLDER}/first ${FOLDER}/prefix)

run(${CMAKE_COMMAND} -S ${EXAMPLES} -B ${FOLDER}/build -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${CXX}
  -DCMAKE_CXX_FLAGS=${FLAGS} -DCMAKE_PREFIX_PATH=${FOLDER}/prefix)
run(${CMAKE_COMMAND} --build ${FOLDER}/build)
run(${FOLDER}/build/tiny_host)

file(GLOB_RECURSE found ${FOLDER}/prefix/quorvel.pc)
get_filename_component(pc_folder ${found} DIRECTORY)
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${pc_folder} pkg-config --cflags --libs
    quorvel-headless
  OUTPUT_VARIABLE options OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(options UNIX_COMMAND "${options}")
separate_arguments(flags UNIX_COMMAND "${FLAGS}")
run(${CXX} -std=c++20 ${flags} ${EXAMPLES}/tiny_host.cpp ${options} -o ${FOLDER}/by_pkg_config)
get_filename_component(libraries ${pc_folder} DIRECTORY)
run(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libraries} ${FOLDER}/by_pkg_config)
