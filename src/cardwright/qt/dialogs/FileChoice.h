// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace cardwright::qt {

enum class FileMode { Open, OpenSeveral, Save, Folder };

/// What a file dialog asks for.
struct FileQuestion {
  FileMode mode = FileMode::Open;
  QString title;   ///< "" for the desktop's own
  QString filter;  ///< as NameFilters takes it
  QString path;    ///< a path list: what is chosen now
  QString folder;  ///< where to start when no folder of `path` is there
};

/// Lets a user choose; the path list, or none where it was cancelled or the dialog ended with its window.
/// The dialog is the desktop's own where there is one.
std::optional<QString> ChooseFiles(QWidget& owner, const FileQuestion& question);

}  // namespace cardwright::qt
