// SPDX-License-Identifier: MIT
#include "cardwright/shared/KeyFilter.h"

#include "cardwright/automation/Conversions.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

constexpr char16_t kBackspace = 8, kTab = 9, kEnter = 13;

Text LowerTypeName(const Ref<Object>& control) {
  return control ? ToLower(control->TypeName()) : Text(u"nothing");
}

/// What a widget calls its text and selection.
struct EditNames {
  std::u16string_view selStart = u"SelStart";
  std::u16string_view text = u"Text";
  std::u16string_view selLength = u"SelLength";
};

// Editable grids are widgets of hosts that filter their keys by this function; the library has none.
EditNames EditNamesOf(std::u16string_view lowerTypeName) {
  if (lowerTypeName == u"edgridado" || lowerTypeName == u"editgrid") {
    return {u"TextSelStart", u"GridText", u"TextSelLength"};
  }
  return {};
}

// Puts a sign before the text or takes it away; the caret stays between the characters where it was. A
// selection of the whole text is left to the key, which then overtypes it.
char16_t ToggleSign(Object& control) {
  const EditNames names = EditNamesOf(ToLower(control.TypeName()));
  const std::int32_t start = ToLong(GetProperty(control, names.selStart));
  const Text text = ToText(GetProperty(control, names.text));
  const auto selected = static_cast<std::size_t>(ToLong(GetProperty(control, names.selLength)));
  if (selected == text.Size()) return u'-';

  const bool isNegative = text.View().starts_with(u'-');
  if (isNegative) {
    LetProperty(control, names.text, text.View().substr(1));
    LetProperty(control, names.selStart, start > 0 ? start - 1 : 0);
  } else {
    LetProperty(control, names.text, Text(u"-") + text);
    LetProperty(control, names.selStart, start + 1);
  }
  return 0;
}

Ref<Object> ActiveControl() {
  const Desktop* desktop = Module().desktop;
  return desktop ? Ref<Object>(desktop->ActiveControl()) : nullptr;
}

// Only a text box is checked for a separator that it contains already; a combo box accepts a second one.
char16_t FilterSeparator(const Ref<Object>& control, std::u16string_view separator) {
  if (LowerTypeName(control) == u"textbox" &&
      FindNoCase(ToText(GetProperty(*control, u"Text")), separator) != std::u16string_view::npos) {
    return 0;
  }
  return separator.front();
}

}  // namespace

char16_t FilterKey(char16_t key, Ref<Object> control, std::u16string_view separator, bool allowNegative) {
  if (!control) control = ActiveControl();  // for callers outside the library
  if (!separator.empty() && (key == u'.' || separator == std::u16string_view(&key, 1))) {
    return FilterSeparator(control, separator);
  }
  if (key == kBackspace || key == kEnter || key == kTab) return key;
  if (key >= u'0' && key <= u'9') return key;
  if (key == u'-' && allowNegative && control) return ToggleSign(*control);
  if (Desktop* desktop = Module().desktop) desktop->Beep();
  return 0;
}

}  // namespace cardwright
