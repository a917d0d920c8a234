// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <functional>

class QFileSystemModel;
class QMimeData;

namespace cardwright::qt {

/// A line for a path: it completes what is typed by the folders and files that are there, and takes files
/// that are dropped on it.
class PathEdit final : public QLineEdit {
 public:
  explicit PathEdit(QWidget* parent);

  /// What is offered for completion and taken when it is dropped.
  struct Wanted {
    bool folders = false;  ///< folders and not files
    bool several = false;  ///< more than one file at a time
    QStringList patterns;  ///< of names that completion offers; empty for all
  };
  void SetWanted(Wanted wanted);

  /// A key asked for the choice of a path.
  std::function<void()> onChoose;
  /// Files or a folder of the kind wanted were dropped.
  std::function<void(const QStringList& paths)> onDropped;
  /// While it is set nothing can be dropped.
  bool isLocked = false;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void PrepareCompletion();
  void ReadFolderOf(const QString& typed);
  void ApplyToFiles();
  QStringList WantedPaths(const QMimeData& dropped) const;
  bool Takes(QDropEvent& event) const;

  Wanted m_Wanted;
  QFileSystemModel* m_Files = nullptr;  // made when somebody first types
};

}  // namespace cardwright::qt
