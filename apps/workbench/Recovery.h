#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <memory>
#include <vector>

namespace cardwright::workbench {

/// Unsaved work that a program which ended unexpectedly has left.
struct LeftWork {
  QString file;     ///< the work itself
  QString project;  ///< the project that it belongs to; "" for one without a file
  QDateTime time;
};

/// Keeps unsaved work beside the project, in a file that is gone once the work is saved or given up. While it
/// is there another program that runs does not offer it.
class Recovery {
 public:
  Recovery() = default;
  ~Recovery() { Drop(); }
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;

  /// Where the work on a project is kept: beside it, or in the user's data folder where nothing can be
  /// written there and for a project without a file.
  static QString FileFor(const QString& project);
  /// The work that was left on one project, or on any; none that a running program still keeps.
  static std::vector<LeftWork> Left();
  static std::vector<LeftWork> LeftOn(const QString& project);
  static void Forget(const LeftWork& work);
  /// Keeps left work for another time, where the work that begins now does not come over it.
  static void SetAside(const LeftWork& work);

  /// Keeps the file's bytes as the work on a project.
  void Keep(const QString& project, const QByteArray& bytes);
  /// The work is saved or given up.
  void Drop();

 private:
  QString m_File;
  std::unique_ptr<QLockFile> m_Lock;
};

}  // namespace cardwright::workbench
