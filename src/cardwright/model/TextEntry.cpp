// SPDX-License-Identifier: MIT
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
  if (LimitsLength()) BestEffort([&] { static_cast<TextWidget*>(Bound())->SetMaxLength(maxLength); });
  Bound()->SetTag(ToText(Variant(static_cast<std::int32_t>(type))));
}

// The Tag selects the filter: "1" accepts integers, "2" numbers with the system's decimal separator. A mode
// that is set is never replaced, whatever is set on the control later.
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
