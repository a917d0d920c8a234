#pragma once

#include <QStringList>

#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/qt/Library.h"
#include "cardwright/shared/OrvClient.h"

namespace cardwright::desktop {

/// The data source of a program: the host of its forms, with the log of what they have sent.
class DataSource {
 public:
  explicit DataSource(qt::Library& library) : m_Library(library) {}
  ~DataSource() { Close(); }
  DataSource(const DataSource&) = delete;
  DataSource& operator=(const DataSource&) = delete;

  /// Opens a source and makes it the host of the forms, in place of one that is open. Error 53 with a
  /// description where it cannot be opened; what was open before stays.
  void Open(const QString& source);
  void Close();
  bool IsOpen() const noexcept { return static_cast<bool>(m_Log); }
  /// What Open was given last; "" where nothing is open.
  const QString& Name() const noexcept { return m_Name; }
  /// The connection's handle; 0 where nothing is open.
  std::int32_t Handle() const noexcept { return m_Handle; }

  /// For commands of the program's own, which the log shows too; it answers nothing where nothing is open.
  OrvClient Client() const { return OrvClient::At(m_Handle); }
  /// The connection with its log, which must be open.
  LoggedConnection& Log() const noexcept { return *m_Log; }
  /// Whether the source has the feature. Ends the selection in its theme.
  bool HasFeature(const FeatureClass& features, const Text& id);
  /// Reasons for which the source has refused changes, emptied by the call.
  QStringList TakeRefusals() { return std::exchange(m_Refusals, {}); }

 private:
  qt::Library& m_Library;
  Ref<LoggedConnection> m_Log;
  QString m_Name;
  std::int32_t m_Handle = 0;
  QStringList m_Refusals;
};

}  // namespace cardwright::desktop
