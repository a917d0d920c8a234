// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace cardwright::workbench {

/// Choices that the grid offers and that do not come from the control.
class Choices {
 public:
  /// Themes of the data source; empty without one.
  virtual QStringList Themes() const = 0;
  /// Attributes of the form's theme.
  virtual QStringList Attributes() const = 0;
  /// Folder of the project, in which file dialogs start.
  virtual QString Folder() const = 0;

 protected:
  ~Choices() = default;
};

}  // namespace cardwright::workbench
