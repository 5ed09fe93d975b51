# The machine's services on Linux.
target_sources(zq7_objects PRIVATE
  src/platform/linux/block_devices.cc
  src/platform/linux/child_process.cc
  src/platform/linux/clock.cc
  src/platform/linux/date_convention.cc
  src/platform/linux/desktop.cc
  src/platform/linux/environment.cc
  src/platform/linux/file_contents.cc
  src/platform/linux/file_copier.cc
  src/platform/linux/file_errors.cc
  src/platform/linux/file_place.cc
  src/platform/linux/file_rewrite.cc
  src/platform/linux/file_rights.cc
  src/platform/linux/file_status.cc
  src/platform/linux/file_versions.cc
  src/platform/linux/folders.cc
  src/platform/linux/locale_name.cc
  src/platform/linux/locale_table.cc
  src/platform/linux/machine.cc
  src/platform/linux/machine_tree.cc
  src/platform/linux/management.cc
  src/platform/linux/message_box.cc
  src/platform/linux/mount_table.cc
  src/platform/linux/name_lookup.cc
  src/platform/linux/native_path.cc
  src/platform/linux/new_file.cc
  src/platform/linux/open_file.cc
  src/platform/linux/package_version.cc
  src/platform/linux/processors.cc
  src/platform/linux/program_output.cc
  src/platform/linux/program_search.cc
  src/platform/linux/programs.cc
  src/platform/linux/serial_port.cc
  src/platform/linux/special_folders.cc
  src/platform/linux/system_calls.cc
  src/platform/linux/time_servers.cc
  src/platform/linux/time_step.cc
  src/platform/linux/time_text.cc
  src/platform/linux/time_zone.cc
  src/platform/system_picture_encoder.cc
  src/platform/system_printers.cc)
if(zq7_has_sqlite)
  target_sources(zq7_objects PRIVATE
    src/platform/linux/system_registry.cc
    src/platform/linux/registry_database.cc
    src/platform/linux/registry_folders.cc
    src/platform/linux/sqlite_connection.cc)
  list(APPEND needed_libraries SQLite::SQLite3)
else()
  target_sources(zq7_objects PRIVATE src/platform/unreachable_registry.cc)
endif()
