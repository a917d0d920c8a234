#pragma once

#include <functional>

#include "cardwright/platform/ForwardingDesktop.h"

namespace cardwright::desktop {

/// The thread's desktop where nobody sees the windows: a box would wait for ever, so its text is said instead
/// and it answers as it would with its default button. For its life it stands in front of the desktop that
/// was there; where another one stands in front of it, boxes are shown, as that one answers them.
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
