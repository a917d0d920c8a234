#pragma once

#include <QByteArray>
#include <vector>

#include "automation/Variant.h"
#include "platform/Font.h"
#include "platform/Scale.h"

namespace cardwright::workbench {

/// A form's script, which belongs to the project and not to the designer.
struct Script {
  Text language;  ///< "VBScript", "JScript" or what the project has
  Text content;

  friend bool operator==(const Script&, const Script&) = default;
};

/// All of a project at one moment.
struct ProjectState {
  QByteArray file;  ///< the project as it is saved; empty for a form without controls, which has no file
  /// @name Such a form's own settings.
  /// @{
  ScaleMode scale = ScaleMode::Pixels;
  std::vector<Variant> formRows;
  FontValues formFont;
  /// @}
  Script script;
  Text selected;  ///< user name of the selected control

  /// Whether the projects are the same; what is selected does not count.
  bool IsSameProject(const ProjectState& other) const;
};

}  // namespace cardwright::workbench
