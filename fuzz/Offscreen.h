// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <QApplication>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "cardwright/qt/Library.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {

/// Nobody is there to answer a message box.
class SilentDesktop final : public qt::QtDesktop {
 public:
  int ShowMessage(const Text&, int, const Text&) override { return 1; }
  void Beep() override {}
  void Start(const Text&) override {}
};

/// The application that a fuzzer with real widgets runs in, and a folder for its files. A fuzzer makes one
/// that goes before the state that the library keeps for the thread.
struct Offscreen {
  bool hasPlatform =
      !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || qputenv("QT_QPA_PLATFORM", "offscreen");
  int argc = 1;
  char name[5] = "fuzz";
  char* argv[2] = {name, nullptr};
  QApplication application{argc, argv};
  qt::Library library;
  SilentDesktop desktop;
  std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("cardwright-fuzz-" + std::to_string(::getpid()));

  Offscreen() {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // it is verbose
    Module().desktop = &desktop;
    std::filesystem::create_directories(folder);
  }
  ~Offscreen() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    Module().desktop = nullptr;
  }
  Offscreen(const Offscreen&) = delete;
  Offscreen& operator=(const Offscreen&) = delete;

  std::filesystem::path Put(const char* fileName, std::string_view bytes) const {
    std::ofstream(folder / fileName, std::ios::binary | std::ios::trunc)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return folder / fileName;
  }
};

}  // namespace cardwright
