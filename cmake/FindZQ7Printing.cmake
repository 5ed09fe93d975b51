# Finds the libraries that draw and print pages, as the target ZQ7Standard::printing: Cairo,
# Pango, Fontconfig, libjpeg and the client library of CUPS.
find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
  pkg_check_modules(ZQ7_PAGES QUIET IMPORTED_TARGET cairo-pdf pangocairo fontconfig libjpeg)
endif()
find_path(ZQ7_CUPS_INCLUDE_DIR cups/cups.h)
find_library(ZQ7_CUPS_LIBRARY cups)
mark_as_advanced(ZQ7_CUPS_INCLUDE_DIR ZQ7_CUPS_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(ZQ7Printing
  REQUIRED_VARS ZQ7_CUPS_LIBRARY ZQ7_CUPS_INCLUDE_DIR ZQ7_PAGES_FOUND)

if(ZQ7Printing_FOUND AND NOT TARGET ZQ7Standard::printing)
  add_library(ZQ7Standard::printing INTERFACE IMPORTED)
  set_target_properties(ZQ7Standard::printing PROPERTIES
    INTERFACE_LINK_LIBRARIES "PkgConfig::ZQ7_PAGES;${ZQ7_CUPS_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${ZQ7_CUPS_INCLUDE_DIR}")
endif()
