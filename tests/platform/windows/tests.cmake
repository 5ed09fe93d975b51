# The tests of the machine's services on Windows.
target_sources(zq7_tests PRIVATE
  platform/windows/desktop_test.cc
  platform/windows/files_test.cc
  platform/windows/machine_test.cc
  platform/windows/programs_test.cc
  platform/windows/serial_port_test.cc
  platform/windows/system_registry_test.cc
  platform/windows/time_servers_test.cc
  platform/windows/pictures_test.cc
  platform/windows/printing_test.cc
  support/windows/read_only.cc)
# Loaded in the place of the system's own where WINEDLLOVERRIDES says so.
add_library(zq7_netapi32 SHARED support/windows/netapi32.cc support/windows/netapi32.def)
zq7_settings(zq7_netapi32)
target_compile_definitions(zq7_netapi32 PRIVATE UNICODE _WIN32_WINNT=0x0A00)
set_target_properties(zq7_netapi32 PROPERTIES PREFIX "" OUTPUT_NAME netapi32)
# The linker of 32 bits looks for stdcall's own names.
target_link_options(zq7_netapi32 PRIVATE $<$<EQUAL:${CMAKE_SIZEOF_VOID_P},4>:-Wl,--kill-at,--enable-stdcall-fixup>)
add_dependencies(zq7_tests zq7_netapi32)
