// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/qt/Library.h"
#include "cardwright/shared/OrvClient.h"

namespace cardwright::desktop {

/// The data source of a program: the host of its forms, and the log of their commands.
class DataSource {
 public:
  explicit DataSource(qt::Library& library) : m_Library(library) {}
  ~DataSource() { Close(); }
  DataSource(const DataSource&) = delete;
  DataSource& operator=(const DataSource&) = delete;

  /// Opens a data source and makes it the host of the forms, instead of the one that is open. Error 53 with a
  /// description if it cannot be opened; the previous one stays open then.
  void Open(const QString& source);
  void Close();
  bool IsOpen() const noexcept { return static_cast<bool>(m_Log); }
  /// The argument of Open; "" if nothing is open.
  const QString& Name() const noexcept { return m_Name; }
  /// The handle of the connection; 0 if nothing is open.
  std::int32_t Handle() const noexcept { return m_Handle; }

  /// For commands of the program itself, which the log has too. Requests are not answered if nothing is open.
  OrvClient Client() const { return OrvClient::At(m_Handle); }
  /// The connection with its log; it must be open.
  LoggedConnection& Log() const noexcept { return *m_Log; }
  /// Whether the data source has the feature. Clears the selection of its theme.
  bool HasFeature(const FeatureClass& features, const Text& id);
  /// The reasons why changes were rejected since the last call.
  QStringList TakeRefusals() { return std::exchange(m_Refusals, {}); }

 private:
  qt::Library& m_Library;
  Ref<LoggedConnection> m_Log;
  QString m_Name;
  std::int32_t m_Handle = 0;
  QStringList m_Refusals;
};

}  // namespace cardwright::desktop
