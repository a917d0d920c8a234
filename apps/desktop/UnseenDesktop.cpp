// SPDX-License-Identifier: MIT
#include "desktop/UnseenDesktop.h"

#include <string>

#include "cardwright/hosting/DefaultButton.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::desktop {

UnseenDesktop::UnseenDesktop(std::function<void(const Text& line)> say)
    : ForwardingDesktop(*Module().desktop), m_Say(std::move(say)) {
  Module().desktop = this;
}

UnseenDesktop::~UnseenDesktop() {
  if (Module().desktop == this) Module().desktop = &Next();
}

void UnseenDesktop::Say(const Text& text) const {
  std::u16string lines(text.View());
  std::erase(lines, u'\r');
  m_Say(lines);
}

int UnseenDesktop::ShowMessage(const Text& text, int style, const Text& title) {
  if (Module().desktop != this) return ForwardingDesktop::ShowMessage(text, style, title);
  Say(text);
  return DefaultButton(style);
}

Variant UnseenDesktop::AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                               const Variant& y) {
  if (Module().desktop != this) return ForwardingDesktop::AskText(prompt, title, initial, x, y);
  Say(prompt);
  return Variant(initial);
}

}  // namespace cardwright::desktop
