// SPDX-License-Identifier: MIT
#include <QFileInfo>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/desktop/TerminalBreak.h"
#include "cardwright/runtime/FormInput.h"
#include "desktop/DesktopCommands.h"
#include "desktop/DesktopSession.h"
#include "desktop/FormWindow.h"
#include "launcher/CommandLine.h"

namespace cardwright::desktop {
namespace {

// The theme of the command line replaces that of the project.
void ChooseTheme(qt::FormInput& form, const std::string& theme) {
  if (IControl* root = FindControl(form.Object()->Controls(), u"Form"))
    root->SetPropertyValue(u"ThemeName", Text::FromUtf8(theme));
}

app::CommandLine FillLine() {
  return app::CommandLine({.name = "fill",
                           .summary = "Fills in a form for one feature. Status 0 after OK, 3 after Cancel.",
                           .operands = "FORM",
                           .leastOperands = 1,
                           .mostOperands = 1,
                           .options = {{"--data <SOURCE>", "the data source, as a GeoPackage's path"},
                                       {"--theme <NAME>", "the theme that the feature is in"},
                                       {"--id <N>", "the feature's identifier"},
                                       {"--new", "the feature is new: its attributes are not loaded"},
                                       {"--debug",
                                        "only show what would be stored, in a pane below the form,\n"
                                        "which stays open after OK"}}});
}

// Reads the form into its window; the exit status if that fails.
std::optional<int> OpenForm(const app::CommandLine& line, FormWindow& window, DataSource& data) {
  if (line.Has("debug")) {
    window.ShowDebugOutput();
    window.Form().SetDebugMode(true);
  }
  const std::string& file = line.Operands().front();
  if (!window.Form().ProjectRead(QString::fromStdString(file)))
    return line.Fail("the form project " + file + " could not be read");
  const std::string theme = line.Value("theme");
  ChooseTheme(window.Form(), theme);
  const std::string id = line.Value("id");
  if (data.HasFeature(window.Form().Object()->GetFeatureClass(), Text::FromUtf8(id))) return std::nullopt;
  return line.Fail("the theme " + theme + " has no feature " + id + " of the form's feature type",
                   app::kWrongUse);
}

}  // namespace

int RunFill(std::span<const std::string> words) {
  app::CommandLine line = FillLine();
  if (const auto status = line.Parse(words)) return *status;
  for (const char* needed : {"data", "theme", "id"})
    if (!line.Has(needed)) return line.Refuse("--" + std::string(needed) + " is missing");

  const std::string& file = line.Operands().front();
  if (!QFileInfo(QString::fromStdString(file)).isFile())
    return line.Fail("there is no form project " + file, app::kWrongUse);
  DesktopSession session(Display::Needed);
  const qt::TerminalBreak terminal;
  DataSource& data = session.Data();
  data.Open(QString::fromStdString(line.Value("data")));
  const std::string theme = line.Value("theme");
  if (!(data.Client().ThemeNumber(Text::FromUtf8(theme)) > 0))
    return line.Fail("the data source has no theme " + theme, app::kWrongUse);

  FormWindow window(data);
  if (const auto status = OpenForm(line, window, data)) return *status;
  window.Form().SetNewFeature(line.Has("new"));
  window.Form().SetFeatureID(QString::fromStdString(line.Value("id")));
  window.show();
  QApplication::exec();
  return window.IsAccepted() ? app::kDone : app::kCancelled;
}

}  // namespace cardwright::desktop
