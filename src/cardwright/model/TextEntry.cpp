#include "cardwright/model/TextEntry.h"

#include "cardwright/shared/KeyFilter.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/ScreenKeyboard.h"

namespace cardwright {

void TextEntry::OnGotFocus() {
  if (Input() && TakesTyping() && Input()->CanRunScripts()) ShowScreenKeyboard();
  Control::OnGotFocus();
}

void TextEntry::LimitInput(std::int32_t maxLength, InputTypeEnum type) {
  if (!Bound()) return;
  if (LimitsLength()) Attempt([&] { static_cast<TextWidget*>(Bound())->SetMaxLength(maxLength); });
  Bound()->SetTag(ToText(Variant(static_cast<std::int32_t>(type))));
}

// The Tag picks the filter: "1" lets an integer through, "2" a number with the system's decimal separator.
// Once a mode stands there it stays, whatever is set on the control later.
void TextEntry::OnKeyPress(char16_t& key) {
  if (!Input() || !Bound() || !TakesTyping()) return;
  ChooseInputMode();
  const Text mode = Bound()->Tag();
  const bool integer = mode == u"1";
  if (!integer && mode != u"2") return;
  key = FilterKey(key, Ref<Object>(Bound()), integer ? Text() : Module().decimalSeparator,
                  FlagIsSet(m_MinusSignEnabled));
}

}  // namespace cardwright
