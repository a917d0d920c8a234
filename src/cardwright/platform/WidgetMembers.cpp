// SPDX-License-Identifier: MIT
#include "cardwright/platform/WidgetMembers.h"

namespace cardwright {

namespace {

void Move(Widget& widget, float left, std::optional<float> top, std::optional<float> width,
          std::optional<float> height) {
  widget.Move(left, top.value_or(widget.Top()), width.value_or(widget.Width()),
              height.value_or(widget.Height()));
}

void SetFont(Widget& widget, Ref<Font> font) {
  if (!font) Raise(ErrorNumber::ObjectNotSet);
  widget.SetFont(std::move(font));
}

// Assigned without Set, a value goes to the default member of the widget's own font: its name.
void LetFont(Widget& widget, Variant value) {
  if (value.IsObject()) return SetFont(widget, FromVariant<Ref<Font>>(value));
  FontValues values = widget.GetFont()->Values();
  values.name = ToText(value);
  widget.GetFont()->Assign(std::move(values));
}

void ZOrder(Widget& widget, std::optional<std::int32_t> position) {
  const std::int32_t wanted = position.value_or(static_cast<std::int32_t>(StackPosition::Front));
  if (wanted < 0 || wanted > 1) Raise(ErrorNumber::InvalidPropertyValue);
  widget.SetZOrder(static_cast<StackPosition>(wanted));
}

constexpr Member kCommonMembers[] = {
    Property<&Widget::Name>(u"Name"),
    Property<&Widget::Left, &Widget::SetLeft>(u"Left"),
    Property<&Widget::Top, &Widget::SetTop>(u"Top"),
    Property<&Widget::Width, &Widget::SetWidth>(u"Width"),
    Property<&Widget::Height, &Widget::SetHeight>(u"Height"),
    Method<&Move>(u"Move"),
    Property<&Widget::IsVisible, &Widget::SetVisible>(u"Visible"),
    Property<&Widget::IsEnabled, &Widget::SetEnabled>(u"Enabled"),
    Property<&Widget::BackColor, &Widget::SetBackColor>(u"BackColor"),
    Property<&Widget::ForeColor, &Widget::SetForeColor>(u"ForeColor"),
    Property<&Widget::GetFont, &LetFont, &SetFont>(u"Font"),
    Property<&Widget::Tag, &Widget::SetTag>(u"Tag"),
    Property<&Widget::Container>(u"Container"),
    Property<&Widget::Parent>(u"Parent"),
    Method<&ZOrder>(u"ZOrder"),
    Method<&Widget::SetFocus>(u"SetFocus"),
    Method<&Widget::Refresh>(u"Refresh"),
};

}  // namespace

std::vector<Member> WithWidgetMembers(std::initializer_list<std::span<const Member>> lists) {
  std::vector<Member> members(std::begin(kCommonMembers), std::end(kCommonMembers));
  for (const auto& list : lists) members.insert(members.end(), list.begin(), list.end());
  return members;
}

}  // namespace cardwright
