#pragma once

#include <QApplication>
#include <memory>

#include "desktop/DataSource.h"

namespace cardwright::desktop {

/// Whether a command shows windows to a person, does so where there is a display, or works without one.
enum class Display { Needed, IfThere, Unused };

/// What a command holds of toolkit and library while it runs.
class DesktopSession {
 public:
  /// Error 5 with a description where a display is needed and there is none.
  explicit DesktopSession(Display display);

  /// Whether a person can see the windows.
  bool HasDisplay() const;

  /// Nobody answers the boxes of forms.
  void SetUnattended() noexcept { m_Library->Desktop().SetUnattended(); }

  /// The host of the forms, once it has been opened.
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
