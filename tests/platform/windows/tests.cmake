# The tests of the machine's services on Windows.
target_sources(zq7_tests PRIVATE
  platform/windows/files_test.cc
  platform/windows/pictures_test.cc
  platform/windows/printing_test.cc
  support/windows/read_only.cc)
