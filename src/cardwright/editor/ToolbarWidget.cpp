// SPDX-License-Identifier: MIT
#include "cardwright/editor/ToolbarWidget.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/WidgetMembers.h"

namespace cardwright {

namespace {

constexpr int kElementNotFound = 35601;

constexpr Member kToolButtonMembers[] = {
    Property<&ToolButton::Key>(u"Key"),
    Property<&ToolButton::Tag, &ToolButton::SetTag>(u"Tag"),
    Property<&ToolButton::Caption, &ToolButton::SetCaption>(u"Caption"),
    Property<&ToolButton::TooltipText, &ToolButton::SetTooltipText>(u"TooltipText"),
    Property<&ToolButton::IsEnabled, &ToolButton::SetEnabled>(u"Enabled"),
    Property<&ToolButton::IsVisible, &ToolButton::SetVisible>(u"Visible"),
    Property<&ToolButton::Value, &ToolButton::SetValue>(u"Value"),
};

constexpr Member kToolButtonsMembers[] = {
    Property<&ToolButtons::Count>(u"Count"),
    Property<&ToolButtons::Item>(u"Item"),
};

constexpr Member kToolbarMembers[] = {Property<&ToolbarWidget::Buttons>(u"Buttons")};

class ButtonWalk final : public Enumerator {
 public:
  explicit ButtonWalk(std::vector<Ref<ToolButton>> buttons) : m_Buttons(std::move(buttons)) {}
  bool Next(Variant& value) override {
    if (m_Next == m_Buttons.size()) return false;
    value = Variant(Ref<Object>(m_Buttons[m_Next++]));
    return true;
  }

 private:
  const std::vector<Ref<ToolButton>> m_Buttons;
  std::size_t m_Next = 0;
};

}  // namespace

const MemberTable& ToolButton::Members() const {
  static const MemberTable table(kToolButtonMembers, u"Value");
  return table;
}

Ref<ToolButton> ToolButtons::Find(std::u16string_view key) const {
  for (const Ref<ToolButton>& button : m_Buttons)
    if (EqualsNoCase(button->Key(), key)) return button;
  return nullptr;
}

Ref<ToolButton> ToolButtons::Item(const Variant& index) const {
  if (index.Deref().IsString()) {
    const Ref<ToolButton> button = Find(ToText(index));
    if (!button) Raise(kElementNotFound, u"Element not found");
    return button;
  }
  const std::int32_t position = ToLong(index);
  if (position < 1 || position > Count()) Raise(ErrorNumber::SubscriptOutOfRange);
  return m_Buttons[static_cast<std::size_t>(position - 1)];
}

std::unique_ptr<Enumerator> ToolButtons::Enumerate() { return std::make_unique<ButtonWalk>(m_Buttons); }

const MemberTable& ToolButtons::Members() const {
  static const MemberTable table(kToolButtonsMembers, u"Item");
  return table;
}

const MemberTable& ToolbarWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kToolbarMembers});
  static const MemberTable table(members);
  return table;
}

}  // namespace cardwright
