# Finds nlohmann's JSON library, as FindCLI11.cmake does.
include(${CMAKE_CURRENT_LIST_DIR}/ZQ7HeaderLibrary.cmake)
zq7_header_library(nlohmann_json nlohmann/json.hpp)
