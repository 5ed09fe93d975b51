# Finds CLI11, which is headers alone, for a build for another system: the machine's own headers
# are for the machine.
include(${CMAKE_CURRENT_LIST_DIR}/ZQ7HeaderLibrary.cmake)
zq7_header_library(CLI11 CLI/CLI.hpp)
