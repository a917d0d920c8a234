// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <memory>

#include "desktop/DataSource.h"

namespace cardwright::desktop {

/// Whether a command needs a display, uses one if there is one, or works without one.
enum class Display { Needed, IfThere, Unused };

/// The toolkit and the library while a command runs.
class DesktopSession {
 public:
  /// Error 5 with a description if a display is needed and there is none.
  explicit DesktopSession(Display display);

  /// Whether a user can see the windows.
  bool HasDisplay() const;

  /// Message boxes of forms are not shown, because nobody can answer them.
  void SetUnattended() noexcept { m_Library->Desktop().SetUnattended(); }

  /// The host of the forms, after it has been opened.
  DataSource& Data() noexcept { return *m_Data; }
  qt::Library& Library() noexcept { return *m_Library; }

 private:
  int m_Argc = 1;
  char m_Name[11] = "cardwright";
  char* m_Argv[2] = {m_Name, nullptr};
  std::unique_ptr<QApplication> m_Application;
  std::unique_ptr<qt::Library> m_Library;
  std::unique_ptr<DataSource> m_Data;
};

}  // namespace cardwright::desktop
