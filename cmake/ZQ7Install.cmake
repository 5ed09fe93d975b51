# Installs the components Runtime, Development and Documentation. tools/zq7 adds Tools.
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZQ7Standard)
foreach(kind IN LISTS kinds)
  install(TARGETS zq7standard_${kind} EXPORT zq7standard_${kind}
    RUNTIME COMPONENT Runtime
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE COMPONENT Development)
  install(EXPORT zq7standard_${kind} FILE ZQ7Standard-${kind}.cmake NAMESPACE ZQ7Standard::
    DESTINATION ${package_dir} COMPONENT Development)
endforeach()

if(TARGET zq7standard_c)
  install(TARGETS zq7standard_c EXPORT zq7standard_c
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development)
  install(EXPORT zq7standard_c FILE ZQ7Standard-c.cmake NAMESPACE ZQ7Standard::
    DESTINATION ${package_dir} COMPONENT Development)
  install(FILES include/zq7standard.h TYPE INCLUDE COMPONENT Development)
  install(FILES bindings/csharp/ZQ7Standard.cs
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zq7standard/csharp COMPONENT Development)
endif()

if(TARGET zq7_printing_module)
  install(TARGETS zq7_printing_module
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/zq7standard COMPONENT Printing)
endif()

if(TARGET zq7_network_module)
  install(TARGETS zq7_network_module
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/zq7standard COMPONENT Network)
endif()

if(NOT zq7_has_sodium)
  set(without_sodium PATTERN sodium_block_cipher.h EXCLUDE)
endif()
install(DIRECTORY include/ZQ7Standard TYPE INCLUDE COMPONENT Development ${without_sodium})
install(FILES ${PROJECT_BINARY_DIR}/include/ZQ7Standard/Export.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ZQ7Standard COMPONENT Development)

# A host that links the static library links the system's libraries too.
set(static_packages "")
set(pc_requires "")
set(pc_libs "")
if(TARGET zq7standard_static)
  if(zq7_has_sodium)
    list(APPEND static_packages ZQ7Sodium)
    list(APPEND pc_requires libsodium)
  endif()
  if(zq7_has_sqlite)
    list(APPEND static_packages SQLite3)
    list(APPEND pc_requires sqlite3)
  endif()
  if(zq7_has_printing)
    list(APPEND static_packages ZQ7Printing)
    list(APPEND pc_requires cairo-pdf pangocairo fontconfig libjpeg)
    string(APPEND pc_libs " -lcups")
  endif()
  if(zq7_has_network)
    list(APPEND static_packages CURL)
    # libcurl.pc names libraries that only a static libcurl needs.
    string(APPEND pc_libs " -lcurl")
  endif()
endif()
set(pc_cflags "")
if(NOT TARGET zq7standard_shared)
  set(pc_cflags -DZQ7STANDARD_STATIC_DEFINE)
endif()
list(JOIN pc_requires " " pc_requires)
file(RELATIVE_PATH pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/ZQ7Standard.pc.in ZQ7Standard.pc @ONLY)
set(pc_files ${PROJECT_BINARY_DIR}/ZQ7Standard.pc)
if(TARGET zq7standard_c)
  configure_file(cmake/ZQ7StandardC.pc.in ZQ7StandardC.pc @ONLY)
  list(APPEND pc_files ${PROJECT_BINARY_DIR}/ZQ7StandardC.pc)
endif()
install(FILES ${pc_files}
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)

configure_package_config_file(cmake/ZQ7StandardConfig.cmake.in ZQ7StandardConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(ZQ7StandardConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZQ7StandardConfig.cmake
              ${PROJECT_BINARY_DIR}/ZQ7StandardConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT Development)
if(TARGET zq7standard_static)
  install(FILES cmake/FindZQ7Sodium.cmake cmake/FindZQ7Printing.cmake
    DESTINATION ${package_dir} COMPONENT Development)
endif()

# The pages link each other as they do in the source.
set(doc_dir ${CMAKE_INSTALL_DATAROOTDIR}/doc/zq7standard)
install(FILES CHANGELOG.md CONTRIBUTING.md LICENSE README.md README.th.md SECURITY.md
  DESTINATION ${doc_dir} COMPONENT Documentation)
install(DIRECTORY demo examples DESTINATION ${doc_dir} COMPONENT Documentation)
install(DIRECTORY docs DESTINATION ${doc_dir} COMPONENT Documentation
  FILES_MATCHING PATTERN *.md PATTERN *.png)
