// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "cardwright/platform/Surface.h"
#include "cardwright/platform/WidgetListener.h"

namespace cardwright {

/// One of the form's fixed buttons: its widget and what a click on it does.
class FormButton final : private WidgetListener {
 public:
  /// The caption is a message; its number is kept in the widget's Tag, as translation tools expect.
  FormButton(Surface& surface, std::u16string_view name, int message, std::function<void()> onClick);
  ~FormButton();
  FormButton(const FormButton&) = delete;
  FormButton& operator=(const FormButton&) = delete;

  Widget& Button() const noexcept { return *m_Widget; }

 private:
  void OnClick() override;

  Ref<Widget> m_Widget;
  std::function<void()> m_OnClick;
};

}  // namespace cardwright
