#ifndef ZQ7STANDARD_SRC_PLATFORM_MODULE_ANSWER_H_
#define ZQ7STANDARD_SRC_PLATFORM_MODULE_ANSWER_H_

/// A module's answer to the core that loads it. C++ types pass between the two, so the core refuses
/// a module made by another compiler or version.
extern "C" {

struct ZQ7ModuleAnswer {
  const char* version;    // kModuleVersion
  const char* abi;        // kModuleAbi
  const void* functions;  // such as PrintingFunctions
};

/// The function that every module exports under the name kModuleFunction.
using ZQ7ModuleFunction = const ZQ7ModuleAnswer* (*)();
}

namespace ZQ7Standard {

inline constexpr const char* kModuleFunction = "zq7standard_module";

inline constexpr const char* kModuleVersion = ZQ7STANDARD_VERSION;

#define ZQ7STANDARD_TEXT_OF_VALUE(value) #value
#define ZQ7STANDARD_TEXT_OF(value) ZQ7STANDARD_TEXT_OF_VALUE(value)
inline constexpr const char* kModuleAbi = __VERSION__
    ", ABI " ZQ7STANDARD_TEXT_OF(__GXX_ABI_VERSION) ", C++ " ZQ7STANDARD_TEXT_OF(__cplusplus);
#undef ZQ7STANDARD_TEXT_OF
#undef ZQ7STANDARD_TEXT_OF_VALUE

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_MODULE_ANSWER_H_
