# What every CMakeLists.txt of the project uses.

# zq7_feature(<result> <option> <description> <Debian packages> <package to find>...)
#
# Declares an option that is AUTO, ON or OFF. <result> tells whether the feature is built:
# AUTO builds it if everything it needs is found, ON fails if something is missing.
function(zq7_feature result option description debian)
  set(${option} AUTO CACHE STRING "${description}: AUTO, ON or OFF")
  set_property(CACHE ${option} PROPERTY STRINGS AUTO ON OFF)
  string(TOUPPER "${${option}}" wanted)
  if(NOT wanted MATCHES "^(AUTO|ON|OFF|YES|NO|TRUE|FALSE|1|0)$")
    message(FATAL_ERROR "${option} is \"${${option}}\"; it must be AUTO, ON or OFF.")
  endif()

  set(built OFF)
  if(wanted)  # AUTO too
    set(built ON)
    list(PREPEND CMAKE_MODULE_PATH ${PROJECT_SOURCE_DIR}/cmake)
    foreach(package IN LISTS ARGN)
      string(REPLACE " " ";" name_and_version "${package}")
      list(GET name_and_version 0 name)
      # A host's folders link the library too, so they must see what it links.
      find_package(${name_and_version} QUIET GLOBAL)
      if(NOT ${name}_FOUND)
        set(built OFF)
      endif()
    endforeach()
  endif()
  if(wanted AND NOT wanted STREQUAL "AUTO" AND NOT built)
    message(FATAL_ERROR "${description}: its dependencies were not found (Debian: ${debian}). "
                        "-D${option}=OFF builds without it.")
  endif()
  message(STATUS "${description}: ${built}")
  set(${result} ${built} PARENT_SCOPE)
endfunction()

# zq7_settings(<target>...)
#
# Sets the build settings of the project's targets. They are set per target because a host
# that includes the project has settings of its own.
function(zq7_settings)
  foreach(target IN LISTS ARGN)
    set_target_properties(${target} PROPERTIES
      CXX_EXTENSIONS OFF
      CXX_VISIBILITY_PRESET hidden
      VISIBILITY_INLINES_HIDDEN ON
      POSITION_INDEPENDENT_CODE ON)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:zq7_build>)
  endforeach()
endfunction()
