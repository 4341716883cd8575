# Installs this build into a folder of its own, moves it, and builds and runs what is in try_prefix
# against it; then embeds the sources. Takes BUILD (the build's folder) and what try_prefix takes.
file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER}/first
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${FOLDER}/first ${FOLDER}/prefix)
set(PREFIX ${FOLDER}/prefix)
include(${CMAKE_CURRENT_LIST_DIR}/try_prefix.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/embed.cmake)
