#pragma once

#include <QStringList>

namespace cardwright::workbench {

/// What the grid offers beside what a control itself knows.
class Choices {
 public:
  /// Themes of the data source; none while there is none.
  virtual QStringList Themes() const = 0;
  /// Attributes of the form's theme.
  virtual QStringList Attributes() const = 0;
  /// Folder of the project, where choosing a file begins.
  virtual QString Folder() const = 0;

 protected:
  ~Choices() = default;
};

}  // namespace cardwright::workbench
