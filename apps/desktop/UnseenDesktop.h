// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "cardwright/platform/ForwardingDesktop.h"

namespace cardwright::desktop {

/// The thread's desktop without a display. A message box would wait forever, so its text is printed, and it
/// returns its default button. It wraps the previous desktop while it exists. If another desktop wraps this
/// one, message boxes are shown, because that one answers them.
class UnseenDesktop final : public ForwardingDesktop {
 public:
  explicit UnseenDesktop(std::function<void(const Text& line)> say);
  ~UnseenDesktop() override;
  UnseenDesktop(const UnseenDesktop&) = delete;
  UnseenDesktop& operator=(const UnseenDesktop&) = delete;

  int ShowMessage(const Text& text, int style, const Text& title) override;
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override;

 private:
  void Say(const Text& text) const;

  const std::function<void(const Text& line)> m_Say;
};

}  // namespace cardwright::desktop
