message(FATAL_ERROR "this folder is the host's")
