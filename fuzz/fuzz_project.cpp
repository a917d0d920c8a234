// The project loader with real widgets: any bytes as project file, any replies of the host, then a click on
// OK.

#include <unistd.h>

#include <QApplication>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "platform/Files.h"
#include "qt/FormInput.h"
#include "qt/Library.h"
#include "qt/QtText.h"
#include "shared/ModuleState.h"

namespace {

using namespace cardwright;

/// Nobody is there to answer a message box.
class SilentDesktop final : public qt::QtDesktop {
 public:
  int ShowMessage(const Text&, int, const Text&) override { return 1; }
  void Beep() override {}
  void Start(const Text&) override {}
};

/// Answers with pieces of the input.
class NoisyHost final : public HostConnection {
 public:
  explicit NoisyHost(std::string_view bytes) : m_Bytes(bytes) {}
  Text Execute(std::u16string_view) override { return Piece(); }
  Text Request(std::u16string_view command) override {
    if (command.starts_with(u"THEME_SELECTED_NUMBER") || command.starts_with(u"THEME_CURRENT")) return u"1";
    if (command.starts_with(u"THEME_ATTRIBUTE_NUMBER")) return u"6";
    return Piece();
  }

 private:
  Text Piece() {
    if (m_Bytes.empty()) return {};
    m_At = (m_At * 31 + 7) % m_Bytes.size();
    const std::string_view piece = m_Bytes.substr(m_At, m_At % 60);
    return Text::FromUtf8(piece);
  }

  std::string_view m_Bytes;
  std::size_t m_At = 0;
};

struct Environment {
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

  Environment() {
    Module().desktop = &desktop;
    std::filesystem::create_directories(folder);
  }
  ~Environment() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    Module().desktop = nullptr;
  }
};

void Run(Environment& environment, std::string_view bytes) {
  const auto project = environment.folder / "project.cwf";
  std::ofstream(project, std::ios::binary | std::ios::trunc)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  const std::int32_t handle = environment.library.Connect(MakeRef<NoisyHost>(bytes));
  {
    qt::FormInput form;
    form.ProjectRead(qt::ToQString(FromPath(project)));
    form.SetFeatureID(QStringLiteral("1"));
    form.show();
    form.Object()->Ok();
    form.Object()->Cancel();
    form.ProjectSave(qt::ToQString(FromPath(environment.folder / "saved.cwf")));
  }
  Module().connections.Close(handle);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static thread_local Environment environment;  // goes before the state that the library keeps for the thread
  Run(environment, {reinterpret_cast<const char*>(data), size});
  return 0;
}
