#include <dlfcn.h>

#include <cstring>
#include <filesystem>
#include <string>

#include "platform/module_answer.h"
#include "platform/modules.h"

namespace ZQ7Standard {
namespace {

/// A module's functions, whose type the caller knows.
struct Loaded {
  const void* functions = nullptr;
  std::string problem = {};
};

/// The folder of the modules, beside the library with this code; empty if that was loaded by a
/// relative path, which a change of the current folder would redirect.
std::filesystem::path ModuleFolder() {
  Dl_info self{};
  if (dladdr(&kModuleFunction, &self) == 0 || self.dli_fname == nullptr) return {};
  const std::filesystem::path library = self.dli_fname;
  return library.is_absolute() ? library.parent_path() / "zq7standard" : std::filesystem::path();
}

std::string LoaderProblem() {
  const char* const problem = dlerror();
  return problem == nullptr ? "it cannot be loaded" : problem;
}

/// Loads a module permanently: its types and threads may outlive any use of it.
Loaded Load(const std::string& name) {
  const std::filesystem::path folder = ModuleFolder();
  if (folder.empty()) return {.problem = "the library was loaded by a relative path"};
  const std::filesystem::path path = folder / (name + ".so");
  if (!std::filesystem::exists(path)) {
    return {.problem = "there is no " + path.string() + " (install zq7standard-" + name + ")"};
  }
  void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (library == nullptr) return {.problem = LoaderProblem()};
  const auto function = reinterpret_cast<ZQ7ModuleFunction>(dlsym(library, kModuleFunction));
  if (function == nullptr) return {.problem = LoaderProblem()};
  const ZQ7ModuleAnswer& answer = *function();
  const auto differs = [&](const char* theirs, const char* ours) {
    return std::strcmp(theirs, ours) == 0
               ? std::string()
               : path.string() + " was made for \"" + theirs + "\", not \"" + ours + "\"";
  };
  std::string problem = differs(answer.version, kModuleVersion);
  if (problem.empty()) problem = differs(answer.abi, kModuleAbi);
  if (!problem.empty()) return {.problem = problem};
  return {.functions = answer.functions};
}

/// An exception of the module's own C++ is a problem of the module like any other.
template <typename Functions>
ModuleOf<Functions> LoadOf(const std::string& name) {
  try {
    const Loaded loaded = Load(name);
    return {static_cast<const Functions*>(loaded.functions), loaded.problem};
  } catch (const std::exception& error) {
    return {nullptr, error.what()};
  }
}

}  // namespace

const ModuleOf<PrintingFunctions>& PrintingModule() {
  static const auto module = LoadOf<PrintingFunctions>("printing");
  return module;
}

const ModuleOf<NetworkFunctions>& NetworkModule() {
  static const auto module = LoadOf<NetworkFunctions>("network");
  return module;
}

}  // namespace ZQ7Standard
