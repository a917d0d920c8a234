#include "cardwright/orv/EmbeddedHost.h"

#include "cardwright/orv/Session.h"

namespace cardwright {

EmbeddedHost::EmbeddedHost(std::unique_ptr<Session> session) : m_Session(std::move(session)) {}

EmbeddedHost::~EmbeddedHost() { Tell(m_Session->FinishEdits()); }

Ref<EmbeddedHost> EmbeddedHost::Open(const Text& source, Access access) {
  return new EmbeddedHost(std::make_unique<Session>(source, access == Access::ReadOnly));
}

Text EmbeddedHost::Execute(std::u16string_view command) {
  const Ref<EmbeddedHost> self = Hold();
  const Session::Outcome outcome = m_Session->Run(command);
  Tell(outcome.isQuestion ? outcome.refusal : outcome.telling);
  return outcome.refusal.IsEmpty() ? outcome.answer : u"ERROR: " + outcome.refusal;
}

Text EmbeddedHost::Request(std::u16string_view command) {
  const Ref<EmbeddedHost> self = Hold();
  const Session::Outcome outcome = m_Session->Run(command);
  Tell(outcome.telling);
  return outcome.refusal.IsEmpty() ? outcome.answer : Text();
}

Ref<EmbeddedHost> EmbeddedHost::Hold() { return IsHeld() ? this : nullptr; }

void EmbeddedHost::Tell(const Text& reason) const {
  if (reason.IsEmpty() || !onRefusal) return;
  const auto tell = onRefusal;  // may be replaced while it runs
  tell(reason);
}

std::vector<std::int64_t> EmbeddedHost::FeatureIds(std::u16string_view theme) {
  const Ref<EmbeddedHost> self = Hold();
  Tell(m_Session->FinishEdits());
  return m_Session->FeatureIds(theme);
}

void EmbeddedHost::ReadFeatures(
    std::u16string_view theme, std::span<const Text> attributes,
    const std::function<void(std::int64_t id, std::vector<Text> values)>& onFeature) {
  const Ref<EmbeddedHost> self = Hold();
  Tell(m_Session->FinishEdits());
  m_Session->ReadFeatures(theme, attributes, onFeature);
}

Text EmbeddedHost::LastError() const { return m_Session->lastError; }

bool EmbeddedHost::IsReadOnly() const noexcept { return m_Session->IsReadOnly(); }

void EmbeddedHost::SetHandle(std::int32_t handle) noexcept { m_Session->handle = handle; }

}  // namespace cardwright
