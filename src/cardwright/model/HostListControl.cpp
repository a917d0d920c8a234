// SPDX-License-Identifier: MIT
#include "cardwright/model/HostListControl.h"

#include "cardwright/model/WidgetFields.h"
#include "cardwright/shared/FindListItem.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/storage/SectionReader.h"

namespace cardwright {

void HostListControl::BindObject(Ref<Object> object) {
  SelectorControl::BindObject(std::move(object));
  if (Bound()) HandOverConnection();
}

void HostListControl::HandOverConnection() {
  BoundAs<HostListWidget>(*this).SetConnectionHandle(SharedHost().Handle());
}

void HostListControl::Select(const Text& text) {
  auto& list = BoundAs<HostListWidget>(*this);
  list.SetListIndex(FindListItem(list, text, {.exact = true}));
}

// A selector that was just drawn has not requested its list yet.
void HostListControl::SelectText(TableControl& control, const Variant& text) {
  auto& self = As<HostListControl>(control);
  const Text wanted = ToText(text);
  if (self.Designer() && BoundAs<HostListWidget>(self).ListCount() == 0) BestEffort([&] { self.FillList(); });
  self.m_PendingText = Text();
  self.Select(wanted);
}

// A project that is read and saved without a connection keeps its author's choice.
Variant HostListControl::StoredText(const TableControl& control) {
  const Text chosen = BoundAs<HostListWidget>(control).DisplayText();
  return chosen.IsEmpty() ? As<HostListControl>(control).m_PendingText : chosen;
}

void HostListControl::ChoosePending() {
  if (m_PendingText.IsEmpty() || BoundAs<HostListWidget>(*this).ListCount() == 0) return;
  const Text wanted = m_PendingText;
  m_PendingText = Text();
  Select(wanted);
}

// A press that chooses nothing, as on a locked list, is a click as well.
void HostListControl::OnClick() {
  if (Bound() && !Bound()->DisplayText().IsEmpty()) m_PendingText = Text();
  SelectorControl::OnClick();
}

void HostListControl::FinishRead(const SectionReader& section) {
  BestEffort([&] { FillList(); });
  BestEffort([&] {
    const auto stored = section.Find(u"Text");
    const Text wanted = stored ? ToText(*stored) : Bound()->DisplayText();
    Select(wanted);
    m_PendingText = BoundAs<HostListWidget>(*this).ListCount() == 0 ? wanted : Text();
  });
  SelectorControl::FinishRead(section);
}

}  // namespace cardwright
