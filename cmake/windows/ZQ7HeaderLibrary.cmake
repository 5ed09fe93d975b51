# zq7_header_library(<package> <header>)
#
# Declares <package>::<package> if the machine has <header>, by a link to the header's folder
# among the build's own, as /usr/include itself holds the machine's C library.
macro(zq7_header_library package header)
  get_filename_component(zq7_folder ${header} DIRECTORY)
  set(${package}_FOUND OFF)
  if(EXISTS /usr/include/${header})
    set(${package}_FOUND ON)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/headers)
    file(CREATE_LINK /usr/include/${zq7_folder} ${PROJECT_BINARY_DIR}/headers/${zq7_folder} SYMBOLIC)
    if(NOT TARGET ${package}::${package})
      add_library(${package}::${package} INTERFACE IMPORTED GLOBAL)
      set_target_properties(${package}::${package} PROPERTIES
        INTERFACE_INCLUDE_DIRECTORIES ${PROJECT_BINARY_DIR}/headers)
    endif()
  endif()
endmacro()
