#include "cardwright/model/HostListControl.h"

#include "cardwright/model/WidgetFields.h"
#include "cardwright/shared/Lookups.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {

void HostListControl::BindObject(Ref<Object> object) {
  SelectorControl::BindObject(std::move(object));
  if (Bound()) HandOverConnection();
}

void HostListControl::HandOverConnection() {
  BoundAs<HostListWidget>(*this).SetConnectionHandle(SharedHost().Handle());
}

void HostListControl::Choose(const Text& text) {
  auto& list = BoundAs<HostListWidget>(*this);
  list.SetListIndex(FindListItem(list, text, {.exact = true}));
}

// A selector that was only just drawn has not asked for its list yet.
void HostListControl::SelectText(TableControl& control, const Variant& text) {
  auto& self = As<HostListControl>(control);
  const Text wanted = ToText(text);
  if (self.Designer() && BoundAs<HostListWidget>(self).ListCount() == 0) Attempt([&] { self.FillList(); });
  self.m_Waiting = Text();
  self.Choose(wanted);
}

// A project that is opened and saved without its data keeps what its author chose.
Variant HostListControl::StoredText(const TableControl& control) {
  const Text chosen = BoundAs<HostListWidget>(control).DisplayText();
  return chosen.IsEmpty() ? As<HostListControl>(control).m_Waiting : chosen;
}

void HostListControl::ChooseWaiting() {
  if (m_Waiting.IsEmpty() || BoundAs<HostListWidget>(*this).ListCount() == 0) return;
  const Text wanted = m_Waiting;
  m_Waiting = Text();
  Choose(wanted);
}

// A press that chooses nothing, as on a locked list, is a click too.
void HostListControl::OnClick() {
  if (Bound() && !Bound()->DisplayText().IsEmpty()) m_Waiting = Text();
  SelectorControl::OnClick();
}

void HostListControl::FinishRead(const CIni& ini, const Text& sectionName) {
  Attempt([&] { FillList(); });
  Attempt([&] {
    const auto stored = ini.Find(sectionName, u"Text");
    const Text wanted = stored ? ToText(*stored) : Bound()->DisplayText();
    Choose(wanted);
    m_Waiting = BoundAs<HostListWidget>(*this).ListCount() == 0 ? wanted : Text();
  });
  SelectorControl::FinishRead(ini, sectionName);
}

}  // namespace cardwright
