# Finds Mono's C# compiler and its runtime.
find_program(ZQ7_MCS mcs)
find_program(ZQ7_MONO mono)
mark_as_advanced(ZQ7_MCS ZQ7_MONO)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(ZQ7Mono REQUIRED_VARS ZQ7_MCS ZQ7_MONO)
