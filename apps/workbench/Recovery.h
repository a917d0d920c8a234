// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <memory>
#include <vector>

namespace cardwright::workbench {

/// Unsaved changes left by a program that ended unexpectedly.
struct LeftWork {
  QString file;     ///< with the changes
  QString project;  ///< the project file; "" for a project without one
  QDateTime time;
};

/// Keeps unsaved changes in a file next to the project, which is deleted when they are saved or discarded.
/// Other running programs do not offer this file.
class Recovery {
 public:
  Recovery() = default;
  ~Recovery() { Drop(); }
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;

  /// The file for the changes of a project: next to the project, or in the user's data folder if that is not
  /// writable or the project has no file.
  static QString FileFor(const QString& project);
  /// The changes left for one project, or for any; none that belong to a running program.
  static std::vector<LeftWork> Left();
  static std::vector<LeftWork> LeftOn(const QString& project);
  static void Forget(const LeftWork& work);
  /// Keeps left changes for later, in a file that new changes do not overwrite.
  static void SetAside(const LeftWork& work);

  /// Keeps the bytes of a file as the changes of a project.
  void Keep(const QString& project, const QByteArray& bytes);
  /// The changes were saved or discarded.
  void Drop();

 private:
  QString m_File;
  std::unique_ptr<QLockFile> m_Lock;
};

}  // namespace cardwright::workbench
