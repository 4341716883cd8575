# Builds and runs a host's project and the examples against the libraries installed in PREFIX: with
# find_package, and by the compiler with what pkg-config says; starts the installed tools.
# Takes PREFIX, PROJECT (this repository), FOLDER (to work in), CXX, FLAGS; QT: the libraries for Qt
# are there; NO_RPATH: programs find the libraries only where the system looks for them.
function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(GLOB pc_file ${PREFIX}/lib*/pkgconfig/quorvel.pc ${PREFIX}/lib*/*/pkgconfig/quorvel.pc)
get_filename_component(pc_folder ${pc_file} DIRECTORY)
get_filename_component(libraries ${pc_folder} DIRECTORY)
if(NO_RPATH)
  set(ENV{LD_LIBRARY_PATH} ${libraries})
endif()
set(ENV{PKG_CONFIG_PATH} ${pc_folder})
set(ENV{QT_QPA_PLATFORM} offscreen)

foreach(source tests/consumer examples)
  run(${CMAKE_COMMAND} -S ${PROJECT}/${source} -B ${FOLDER}/${source} -G Ninja
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${FLAGS} -DCMAKE_C_FLAGS=${FLAGS}
    -DCMAKE_PREFIX_PATH=${PREFIX} -DWITH_QT=${QT} --no-warn-unused-cli)
  run(${CMAKE_COMMAND} --build ${FOLDER}/${source})
endforeach()
run(${FOLDER}/tests/consumer/consumer)
if(QT)
  run(${FOLDER}/tests/consumer/consumer_qt)
endif()
run(${CMAKE_CTEST_COMMAND} --test-dir ${FOLDER}/examples --output-on-failure --no-tests=error)
foreach(tool muxhost quorvel)
  if(EXISTS ${PREFIX}/bin/${tool})
    run(${PREFIX}/bin/${tool} --version)
  endif()
endforeach()
if(EXISTS ${PREFIX}/bin/quorvel)
  run(${PREFIX}/bin/quorvel defaults --model "Triplex NTSC" -o ${FOLDER}/factory.bin)
  run(${PREFIX}/bin/quorvel check ${FOLDER}/factory.bin)
endif()

set(ENV{LD_LIBRARY_PATH} ${libraries})  # no option says where the libraries are when it runs
function(run_by_pkg_config package)
  execute_process(COMMAND pkg-config --cflags --libs ${package}
    OUTPUT_VARIABLE options OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  separate_arguments(options UNIX_COMMAND "${FLAGS} ${options}")
  run(${ARGN} ${options} -o ${FOLDER}/${package})
  run(${FOLDER}/${package})
endfunction()
run_by_pkg_config(quorvel-headless ${CXX} -std=c++20 ${PROJECT}/tests/consumer/consumer.cpp)
run_by_pkg_config(quorvel-c cc -std=c99 ${PROJECT}/examples/tiny_host.c)

# Python does not load what sanitizers have been built into, unless their libraries are there first.
find_program(python python3)
if(python AND "${FLAGS}" STREQUAL "")
  set(ENV{PYTHONPATH} ${PROJECT}/bindings/python)  # where it is; else the package is installed
  set(ENV{PYTHONDONTWRITEBYTECODE} 1)
  foreach(example tiny_host asyncio_host settings_file)
    run(${python} ${PROJECT}/examples/python/${example}.py)
  endforeach()
endif()
if(QT)
  run(pkg-config --exists --print-errors quorvel-qt)
endif()
