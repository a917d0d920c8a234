// SPDX-License-Identifier: MIT
#include "launcher/Modules.h"

#include <dlfcn.h>

#include <filesystem>

#include "cardwright/automation/Errors.h"

namespace cardwright::app {
namespace {

namespace fs = std::filesystem;

constexpr int kModuleNotLoaded = 48;

// Next to the program in a build tree, in the library folder of an installation.
fs::path ModulePath(const std::string& fileName) {
  const fs::path folder = fs::path(ProgramPath()).parent_path();
  std::error_code ignored;
  if (fs::exists(folder / fileName, ignored)) return folder / fileName;
  return (folder / CARDWRIGHT_MODULE_FOLDER / fileName).lexically_normal();
}

}  // namespace

const void* LoadModule(const std::string& name, const char* symbol) {
  void* module = dlopen(ModulePath("cardwright-" + name + ".so").c_str(), RTLD_NOW | RTLD_LOCAL);
  const void* found = module ? dlsym(module, symbol) : nullptr;
  if (!found)
    Raise(kModuleNotLoaded,
          Text::FromUtf8("the " + name + " module cannot be loaded: " + std::string(dlerror())));
  return found;
}

std::string ProgramPath() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).string();
}

}  // namespace cardwright::app
