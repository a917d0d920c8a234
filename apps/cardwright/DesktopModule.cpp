#include "cardwright/DesktopModule.h"

#include <dlfcn.h>

#include <filesystem>

#include "automation/Errors.h"

namespace cardwright::app {
namespace {

namespace fs = std::filesystem;

constexpr int kModuleNotLoaded = 48;
constexpr const char* kFileName = "cardwright-desktop.so";

// Beside the program where it was built, in the library folder where it was installed.
fs::path ModulePath() {
  const fs::path folder = fs::path(ProgramPath()).parent_path();
  std::error_code ignored;
  if (fs::exists(folder / kFileName, ignored)) return folder / kFileName;
  return (folder / CARDWRIGHT_MODULE_FOLDER / kFileName).lexically_normal();
}

const DesktopModule& Load() {
  void* module = dlopen(ModulePath().c_str(), RTLD_NOW | RTLD_LOCAL);
  const void* symbol = module ? dlsym(module, kDesktopModuleSymbol) : nullptr;
  if (!symbol)
    Raise(kModuleNotLoaded, Text::FromUtf8("the desktop module cannot be loaded: " + std::string(dlerror())));
  return *static_cast<const DesktopModule*>(symbol);
}

}  // namespace

const DesktopModule& LoadDesktopModule() {
  static const DesktopModule& module = Load();
  return module;
}

std::string ProgramPath() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).string();
}

}  // namespace cardwright::app
