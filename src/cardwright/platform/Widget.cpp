// SPDX-License-Identifier: MIT
#include "cardwright/platform/Widget.h"

#include "cardwright/platform/WidgetMembers.h"

namespace cardwright {

namespace {

constexpr Member kCaption[] = {Property<&Widget::DisplayText, &Widget::SetDisplayText>(u"Caption")};
constexpr Member kText[] = {Property<&Widget::DisplayText, &Widget::SetDisplayText>(u"Text")};

Variant GetValue(const StateWidget& widget) {
  return widget.IsOption() ? Variant(widget.State() != 0) : Variant(std::int32_t{widget.State()});
}

void LetValue(StateWidget& widget, const Variant& value) {
  if (widget.IsOption()) return widget.SetState(ToBoolean(value) ? 1 : 0);
  const std::int32_t state = ToLong(value);
  if (state < 0 || state > 2) Raise(ErrorNumber::InvalidPropertyValue);
  widget.SetState(state);
}

constexpr Member kState[] = {Property<&GetValue, &LetValue>(u"Value")};

constexpr Member kTextEntry[] = {
    Property<&TextWidget::IsLocked, &TextWidget::SetLocked>(u"Locked"),
    Property<&TextWidget::MaxLength, &TextWidget::SetMaxLength>(u"MaxLength"),
    Property<&TextWidget::SelStart, &TextWidget::SetSelStart>(u"SelStart"),
    Property<&TextWidget::SelLength, &TextWidget::SetSelLength>(u"SelLength"),
    Property<&TextWidget::SelText, &TextWidget::SetSelText>(u"SelText"),
};

constexpr Member kPicture[] = {
    Property<&PictureWidget::ScaleWidth>(u"ScaleWidth"),
    Property<&PictureWidget::ScaleHeight>(u"ScaleHeight"),
    Property<&PictureWidget::DrawWidth, &PictureWidget::SetDrawWidth>(u"DrawWidth"),
    Method<&PictureWidget::Cls>(u"Cls"),
};

constexpr Member kCombo[] = {
    Property<&ComboWidget::ListText>(u"List"),
    Property<&ComboWidget::ListCount>(u"ListCount"),
    Property<&ComboWidget::ListIndex, &ComboWidget::SetListIndex>(u"ListIndex"),
    Property<&ComboWidget::ItemData>(u"ItemData"),
    Method<&ComboWidget::AddItem>(u"AddItem"),
    Method<&ComboWidget::RemoveItem>(u"RemoveItem"),
    Method<&ComboWidget::Clear>(u"Clear"),
};

}  // namespace

const MemberTable& CaptionWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kCaption});
  static const MemberTable table(members, u"Caption");
  return table;
}

const MemberTable& StateWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kCaption, kState});
  static const MemberTable table(members, u"Value");
  return table;
}

const MemberTable& TextWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kText, kTextEntry});
  static const MemberTable table(members, u"Text");
  return table;
}

const MemberTable& PictureWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kPicture});
  static const MemberTable table(members);
  return table;
}

const MemberTable& ComboWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kText, kTextEntry, kCombo});
  static const MemberTable table(members, u"Text");
  return table;
}

}  // namespace cardwright
