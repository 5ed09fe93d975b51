# Finds what pages are drawn and printed with, as the target Printing::Printing:
# Cairo, Pango, Fontconfig and the client library of CUPS.
find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
  pkg_check_modules(PAGES QUIET IMPORTED_TARGET GLOBAL cairo-pdf pangocairo fontconfig)
endif()
find_path(CUPS_INCLUDE_DIR cups/cups.h)
find_library(CUPS_LIBRARY cups)
mark_as_advanced(CUPS_INCLUDE_DIR CUPS_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Printing
  REQUIRED_VARS CUPS_LIBRARY CUPS_INCLUDE_DIR PAGES_FOUND)

if(Printing_FOUND AND NOT TARGET Printing::Printing)
  add_library(Printing::Printing INTERFACE IMPORTED)
  set_target_properties(Printing::Printing PROPERTIES
    INTERFACE_LINK_LIBRARIES "PkgConfig::PAGES;${CUPS_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${CUPS_INCLUDE_DIR}")
endif()
