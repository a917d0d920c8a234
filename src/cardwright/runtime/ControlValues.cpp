#include "cardwright/runtime/ControlValues.h"

#include "cardwright/model/CItems.h"
#include "cardwright/model/Control.h"
#include "cardwright/platform/Widget.h"

namespace cardwright {
namespace {

Ref<Widget> WidgetOf(const IControl& control) {
  return Ref<Widget>(dynamic_cast<Widget*>(control.BoundObject().get()));
}

template <class Kind>
Kind& WidgetAs(const Control& control) {
  auto* widget = dynamic_cast<Kind*>(control.Bound());
  if (!widget) Raise(ErrorNumber::ObjectNotSet);
  return *widget;
}

CItems& ItemsOf(const Control& control) {
  auto* items = dynamic_cast<CItems*>(&RequireObject(control.PropertyValue(u"Items")));
  if (!items) Raise(ErrorNumber::TypeMismatch);
  return *items;
}

Text RowText(const IControl& control, const char16_t* row) { return ToText(control.PropertyValue(row)); }

// Showing a reply, class by class.

template <const char16_t* Row>
void ShowInRow(const Collection&, Control& control, const CAttrib&, const Text& reply) {
  control.SetRow(Row, Variant(reply));
}

void ShowInOptions(const Collection& controls, Control& control, const CAttrib& attrib, const Text& reply) {
  const Ref<Widget> container = WidgetAs<Widget>(control).Container();
  for (const Ref<IControl>& other : ControlsOf(controls)) {
    const Ref<Widget> widget = WidgetOf(*other);
    if (!widget || !EqualsNoCase(widget->TypeName(), u"OptionButton") || widget->Container() != container)
      continue;
    if (RowText(*other, u"Attribute") != attrib.m_Name || RowText(*other, u"Value") != reply) continue;
    other->SetPropertyValue(u"Selected", Variant(true));
    return;
  }
}

void ShowInCombo(const Collection&, Control& control, const CAttrib&, const Text& reply) {
  const std::int32_t position = ItemsOf(control).FindValue(reply);
  if (position > 0) WidgetAs<ComboWidget>(control).SetListIndex(position - 1);
  const bool editable = AttemptOr(false, [&] { return ToBoolean(control.PropertyValue(u"Editable")); });
  if (editable && RowText(control, u"Text") != reply) control.SetPropertyValue(u"Text", Variant(reply));
}

void ShowInList(const Collection&, Control& control, const CAttrib&, const Text& reply) {
  const std::int32_t position = ItemsOf(control).FindValue(reply);
  if (position > 0) WidgetAs<ListViewWidget>(control).SelectRow(position);
}

// Taking a value, class by class.

bool TakeNothing(Control&, Text&) { return false; }

bool TakeOption(Control& control, Text& value) {
  if (WidgetAs<StateWidget>(control).State() == 0) return false;
  value = RowText(control, u"Value");
  return true;
}

bool TakeCombo(Control& control, Text& value) {
  const auto& widget = WidgetAs<ComboWidget>(control);
  const Ref<CItem> item = ItemsOf(control).Item(Variant(std::int32_t{widget.ListIndex() + 1}));
  value = item ? item->m_Value : widget.DisplayText();
  return true;
}

bool TakeList(Control& control, Text& value) {
  const std::int32_t row = WidgetAs<ListViewWidget>(control).SelectedRow();
  if (const Ref<CItem> item = row > 0 ? ItemsOf(control).Item(Variant(row)) : nullptr) value = item->m_Value;
  return true;
}

enum class Limit { None, Kind, LengthAndKind };

struct Binding {
  std::u16string_view className;
  Limit limit = Limit::None;
  void (*show)(const Collection&, Control&, const CAttrib&, const Text&) = nullptr;
  bool (*take)(Control&, Text&) = nullptr;  // null: the control's own Value
};

constexpr char16_t kText[] = u"Text";
constexpr char16_t kSelected[] = u"Selected";
constexpr char16_t kPath[] = u"Path";

constexpr Binding kBindings[] = {
    {u"CTextBox", Limit::LengthAndKind, ShowInRow<kText>},
    {u"CTextBoxMultiline", Limit::LengthAndKind, ShowInRow<kText>},
    {u"CCheckBox", Limit::None, ShowInRow<kSelected>},
    {u"COptionButton", Limit::None, ShowInOptions, TakeOption},
    {u"CComboBox", Limit::Kind, ShowInCombo, TakeCombo},
    {u"CListBox", Limit::None, ShowInList, TakeList},
    {u"CCommandButton", Limit::None, nullptr, TakeNothing},
    {u"CResourceSelector", Limit::None, ShowInRow<kPath>},
    {u"CThemeSelector", Limit::None, ShowInRow<kText>},
    {u"CAttributeSelector", Limit::None, ShowInRow<kText>},
};

const Binding* BindingOf(const Control& control) {
  const std::u16string_view className = control.Table().className;
  for (const Binding& binding : kBindings)
    if (className == binding.className) return &binding;
  return nullptr;
}

InputTypeEnum InputTypeOf(const CAttrib& attrib) {
  if (attrib.m_AttribType == AttributeTypeEnum::atCharacter) return InputTypeEnum::itString;
  return attrib.m_Decs < 1 ? InputTypeEnum::itInteger : InputTypeEnum::itFloat;
}

// What the check of required fields looks at, type of widget by type.

void RequireRow(Control& control, const char16_t* row, Text& value) { value = RowText(control, row); }

// The value of a list counts as missing while nothing is chosen from a list that has something to choose.
void RequireChoice(Control& control, const char16_t*, Text& value) {
  const auto& widget = WidgetAs<ComboWidget>(control);
  value = widget.DisplayText();
  if (ItemsOf(control).Count() > 0 && widget.ListIndex() < 0) value = Text();
}

struct Requirement {
  std::u16string_view widgetType;
  void (*take)(Control& control, const char16_t* row, Text& value);
  const char16_t* row = nullptr;
};

// A list view is not among them: a needed list box is judged by the field before it, as forms have always
// been.
constexpr Requirement kRequirements[] = {
    {u"TextBox", RequireRow, kText},
    {u"MultilineTextBox", RequireRow, kText},
    {u"ComboBox", RequireChoice},
    {u"ListBox", RequireChoice},
    {u"ResourceSelector", RequireRow, kPath},
    {u"ThemeSelector", RequireRow, kText},
    {u"AttributeSelector", RequireRow, kText},
    {u"DbTableViewer", RequireRow, kText},
};

}  // namespace

void LimitInput(Control& control, const CAttrib& attrib) {
  const Binding* binding = BindingOf(control);
  if (!binding || binding->limit == Limit::None || !control.Bound()) return;
  if (binding->limit == Limit::LengthAndKind)
    Attempt([&] { WidgetAs<TextWidget>(control).SetMaxLength(attrib.m_Length); });
  control.Bound()->SetTag(ToText(Variant(static_cast<std::int32_t>(InputTypeOf(attrib)))));
}

void ShowReply(const Collection& controls, Control& control, const CAttrib& attrib, const Text& reply) {
  const Binding* binding = BindingOf(control);
  if (binding && binding->show) binding->show(controls, control, attrib, reply);
}

bool FollowsOthers(const Control& control) { return control.Table().className == u"CAttributeSelector"; }

bool TakeValue(Control& control, Text& value) {
  const Binding* binding = BindingOf(control);
  if (binding && binding->take) return binding->take(control, value);
  value = control.Value();
  return true;
}

void TakeRequiredValue(Control& control, Text& value) {
  const Text type = WidgetAs<Widget>(control).TypeName();
  for (const Requirement& requirement : kRequirements)
    if (EqualsNoCase(type, requirement.widgetType)) return requirement.take(control, requirement.row, value);
}

}  // namespace cardwright
