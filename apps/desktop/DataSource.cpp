// SPDX-License-Identifier: MIT
#include "desktop/DataSource.h"

#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::desktop {

void DataSource::Open(const QString& source) {
  const Ref<EmbeddedHost> host = EmbeddedHost::Open(qt::FromQString(source));
  Close();
  host->onError = [this](const Text& reason) { m_Refusals += qt::ToQString(reason); };
  m_Log = MakeRef<LoggedConnection>(host);
  m_Handle = m_Library.Connect(m_Log);
  m_Name = source;
  host->SetHandle(m_Handle);
}

void DataSource::Close() {
  if (!m_Log) return;
  m_Library.Vellum().SetTarvoHandle(0);
  Module().connections.Close(m_Handle);
  m_Log = nullptr;
  m_Handle = 0;
  m_Name.clear();
}

bool DataSource::HasFeature(const FeatureClass& features, const Text& id) {
  OrvClient host = Client();
  host.SelectByValue(features, id);
  const bool found = host.SelectedNumber(features) > 0;
  host.SelectNone(features);
  return found;
}

}  // namespace cardwright::desktop
