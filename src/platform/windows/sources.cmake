# The machine's services on Windows.
target_sources(zq7_objects PRIVATE
  src/platform/windows/clock.cc
  src/platform/windows/date_convention.cc
  src/platform/windows/file_contents.cc
  src/platform/windows/file_copier.cc
  src/platform/windows/file_errors.cc
  src/platform/windows/file_rewrite.cc
  src/platform/windows/file_rights.cc
  src/platform/windows/file_status.cc
  src/platform/windows/folders.cc
  src/platform/windows/native_path.cc
  src/platform/windows/new_file.cc
  src/platform/windows/not_yet.cc
  src/platform/windows/open_file.cc
  src/platform/windows/page_canvas.cc
  src/platform/windows/page_document.cc
  src/platform/windows/page_output.cc
  src/platform/windows/pictures.cc
  src/platform/windows/printer_device.cc
  src/platform/windows/printer_errors.cc
  src/platform/windows/printers.cc
  src/platform/windows/printing_module.cc
  src/platform/windows/time_text.cc
  src/platform/windows/time_zone.cc
  src/platform/no_network.cc
  src/platform/system_picture_encoder.cc
  src/platform/system_printers.cc
  src/platform/unreachable_registry.cc)
list(APPEND needed_libraries advapi32 gdi32 ole32 oleaut32 user32 uuid windowscodecs winspool)
target_compile_definitions(zq7_objects PRIVATE
  UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00)
