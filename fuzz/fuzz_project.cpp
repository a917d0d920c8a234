// SPDX-License-Identifier: MIT
// The project loader with real widgets: any bytes as project file, any replies of the host, then a click on
// OK.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Offscreen.h"
#include "cardwright/platform/Files.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/values/QtText.h"

namespace {

using namespace cardwright;

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

void Run(Offscreen& offscreen, std::string_view bytes) {
  const auto project = offscreen.Put("project.cwf", bytes);
  const std::int32_t handle = offscreen.library.Connect(MakeRef<NoisyHost>(bytes));
  {
    qt::FormInput form;
    form.ProjectRead(qt::ToQString(FromPath(project)));
    form.SetFeatureID(QStringLiteral("1"));
    form.show();
    form.Object()->Ok();
    form.Object()->Cancel();
    form.ProjectSave(qt::ToQString(FromPath(offscreen.folder / "saved.cwf")));
  }
  Module().connections.Close(handle);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static thread_local Offscreen offscreen;
  Run(offscreen, {reinterpret_cast<const char*>(data), size});
  return 0;
}
