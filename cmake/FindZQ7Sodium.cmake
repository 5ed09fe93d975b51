# Finds libsodium as the target ZQ7Standard::sodium.
find_path(ZQ7_SODIUM_INCLUDE_DIR sodium.h)
find_library(ZQ7_SODIUM_LIBRARY sodium)
mark_as_advanced(ZQ7_SODIUM_INCLUDE_DIR ZQ7_SODIUM_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(ZQ7Sodium
  REQUIRED_VARS ZQ7_SODIUM_LIBRARY ZQ7_SODIUM_INCLUDE_DIR)

if(ZQ7Sodium_FOUND AND NOT TARGET ZQ7Standard::sodium)
  add_library(ZQ7Standard::sodium UNKNOWN IMPORTED)
  set_target_properties(ZQ7Standard::sodium PROPERTIES
    IMPORTED_LOCATION "${ZQ7_SODIUM_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${ZQ7_SODIUM_INCLUDE_DIR}")
endif()
