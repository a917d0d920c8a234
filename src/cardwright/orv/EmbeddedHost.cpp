// SPDX-License-Identifier: MIT
#include "cardwright/orv/EmbeddedHost.h"

#include "cardwright/orv/StoreSession.h"

namespace cardwright {

EmbeddedHost::EmbeddedHost(std::unique_ptr<orv::StoreSession> session) : m_Session(std::move(session)) {}

EmbeddedHost::~EmbeddedHost() { ReportError(m_Session->FlushEdits()); }

Ref<EmbeddedHost> EmbeddedHost::Open(const Text& source, Access access) {
  return new EmbeddedHost(std::make_unique<orv::StoreSession>(source, access == Access::ReadOnly));
}

Text EmbeddedHost::Execute(std::u16string_view command) {
  const Ref<EmbeddedHost> self = KeepAlive();
  const orv::CommandResult result = m_Session->Run(command);
  ReportError(result.isQuery ? result.error : result.notice);
  return result.error.IsEmpty() ? result.reply : u"ERROR: " + result.error;
}

Text EmbeddedHost::Request(std::u16string_view command) {
  const Ref<EmbeddedHost> self = KeepAlive();
  const orv::CommandResult result = m_Session->Run(command);
  ReportError(result.notice);
  return result.error.IsEmpty() ? result.reply : Text();
}

Ref<EmbeddedHost> EmbeddedHost::KeepAlive() { return IsHeld() ? this : nullptr; }

void EmbeddedHost::ReportError(const Text& reason) const {
  if (reason.IsEmpty() || !onError) return;
  const auto handler = onError;  // may be replaced while it runs
  handler(reason);
}

std::vector<std::int64_t> EmbeddedHost::FeatureIds(std::u16string_view theme) {
  const Ref<EmbeddedHost> self = KeepAlive();
  ReportError(m_Session->FlushEdits());
  return m_Session->FeatureIds(theme);
}

void EmbeddedHost::ReadFeatures(
    std::u16string_view theme, std::span<const Text> attributes,
    const std::function<void(std::int64_t id, std::vector<Text> values)>& onFeature) {
  const Ref<EmbeddedHost> self = KeepAlive();
  ReportError(m_Session->FlushEdits());
  m_Session->ReadFeatures(theme, attributes, onFeature);
}

Text EmbeddedHost::LastError() const { return m_Session->lastError; }

bool EmbeddedHost::IsReadOnly() const noexcept { return m_Session->IsReadOnly(); }

void EmbeddedHost::SetHandle(std::int32_t handle) noexcept { m_Session->handle = handle; }

}  // namespace cardwright
