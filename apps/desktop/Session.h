#pragma once

#include <QApplication>
#include <QStringList>
#include <memory>

#include "orv/EmbeddedHost.h"
#include "qt/Library.h"
#include "runtime/HostCommands.h"

namespace cardwright::desktop {

/// Whether a command shows windows to a person, does so where there is a display, or works without one.
enum class Display { Needed, IfThere, Unused };

/// What a command holds of toolkit and library while it runs.
class Session {
 public:
  /// Error 5 with a description where a display is needed and there is none.
  explicit Session(Display display);
  ~Session();

  /// Whether a person can see the windows.
  bool HasDisplay() const;

  /// Opens a data source and makes it the host of the forms. Error 53 with a description where it cannot be
  /// opened.
  void OpenData(const QString& source);
  /// Sends a command to the data source.
  Text Send(std::u16string_view command) { return m_Log->Execute(command); }
  /// Whether the data source has the feature. Ends the selection in its theme.
  bool HasFeature(const FeaturePlace& place, const Text& id);
  LoggedConnection& Log() noexcept { return *m_Log; }
  /// Reasons for which the data source has refused changes, emptied by the call.
  QStringList TakeRefusals();

 private:
  int m_Argc = 1;
  char m_Name[11] = "cardwright";
  char* m_Argv[2] = {m_Name, nullptr};
  std::unique_ptr<QApplication> m_Application;
  std::unique_ptr<qt::Library> m_Library;
  Ref<LoggedConnection> m_Log;
  QStringList m_Refusals;
};

}  // namespace cardwright::desktop
