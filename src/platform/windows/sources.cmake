# The machine's services on Windows.
target_sources(zq7_objects PRIVATE
  src/platform/windows/child_process.cc
  src/platform/windows/clock.cc
  src/platform/windows/command_line.cc
  src/platform/windows/date_convention.cc
  src/platform/windows/desktop.cc
  src/platform/windows/file_contents.cc
  src/platform/windows/file_copier.cc
  src/platform/windows/file_errors.cc
  src/platform/windows/file_rewrite.cc
  src/platform/windows/file_rights.cc
  src/platform/windows/file_status.cc
  src/platform/windows/file_versions.cc
  src/platform/windows/folders.cc
  src/platform/windows/limited_call.cc
  src/platform/windows/machine.cc
  src/platform/windows/mail_composer.cc
  src/platform/windows/management.cc
  src/platform/windows/message_box.cc
  src/platform/windows/native_path.cc
  src/platform/windows/new_file.cc
  src/platform/windows/open_file.cc
  src/platform/windows/page_canvas.cc
  src/platform/windows/page_document.cc
  src/platform/windows/page_output.cc
  src/platform/windows/pictures.cc
  src/platform/windows/printer_device.cc
  src/platform/windows/printer_errors.cc
  src/platform/windows/printers.cc
  src/platform/windows/printing_module.cc
  src/platform/windows/program_search.cc
  src/platform/windows/programs.cc
  src/platform/windows/serial_port.cc
  src/platform/windows/special_folders.cc
  src/platform/windows/system_registry.cc
  src/platform/windows/system_text.cc
  src/platform/windows/time_servers.cc
  src/platform/windows/time_text.cc
  src/platform/windows/time_zone.cc
  src/platform/windows/user_session.cc
  src/platform/windows/winsock.cc
  src/platform/no_network.cc
  src/platform/system_picture_encoder.cc
  src/platform/system_printers.cc)
list(APPEND needed_libraries advapi32 gdi32 ole32 oleaut32 shell32 user32 uuid wbemuuid
     windowscodecs winspool ws2_32)
target_compile_definitions(zq7_objects PRIVATE
  UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00)
