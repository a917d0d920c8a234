// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <vector>

#include "cardwright/automation/Variant.h"
#include "cardwright/platform/Font.h"
#include "cardwright/platform/Scale.h"

namespace cardwright::workbench {

/// A form's script, which belongs to the project and not to the designer.
struct Script {
  Text language;  ///< "VBScript", "JScript" or any other text of the project
  Text content;

  friend bool operator==(const Script&, const Script&) = default;
};

/// A project at one moment.
struct ProjectState {
  /// The project file without the script; empty for a form without controls, which has no file.
  QByteArray file;
  Text theme;  ///< the form's
  /// @name Settings of a form without controls
  /// @{
  ScaleMode scale = ScaleMode::Pixels;
  std::vector<Variant> formRows;
  FontValues formFont;
  /// @}
  Script script;
  Text selected;  ///< user name of the selected control

  /// Compares the forms, regardless of scripts and selection.
  bool HasSameForm(const ProjectState& other) const;
  bool IsSameProject(const ProjectState& other) const { return script == other.script && HasSameForm(other); }
};

}  // namespace cardwright::workbench
