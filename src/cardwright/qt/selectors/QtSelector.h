// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QPalette>
#include <QToolButton>

#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/widgets/QtLockable.h"

namespace cardwright::qt {

/// What all selectors have in common: a locked one takes neither mouse nor keys.
template <class Interface>
class QtSelector : public QtLockable<Interface> {
 protected:
  using QtLockable<Interface>::QtLockable;

  bool IsBlocked() const final { return this->m_IsLocked; }
};

/// Those that open a dialog, which has a title.
template <class Interface>
class QtDialogSelector : public QtSelector<Interface> {
 public:
  Text Title() const final { return this->Live(m_Title); }
  void SetTitle(const Text& title) final { this->Live(m_Title) = title; }

 protected:
  using QtSelector<Interface>::QtSelector;

  Text m_Title;
};

/// Those of a field and a button beside it, which opens the dialog. The field has its own colours,
/// and so has the background around both.
template <class Interface>
class QtButtonSelector : public QtDialogSelector<Interface> {
 public:
  QWidget* Part(std::u16string_view name) const final {
    if (!this->Native()) return nullptr;
    if (EqualsNoCase(name, u"edit")) return m_Field;
    return EqualsNoCase(name, u"button") ? m_Button : nullptr;
  }

  OleColor BackColorBkg() const final { return this->Live(m_BackColorBkg); }
  void SetBackColorBkg(OleColor color) final {
    this->Live(m_BackColorBkg) = color;
    this->ApplyColors();
  }

 protected:
  using QtDialogSelector<Interface>::QtDialogSelector;

  void Adopt(QWidget& whole, QWidget& field, QToolButton& button) {
    m_Field = &field;
    m_Button = &button;
    WidgetCore::Adopt(whole);
    this->WatchPart(field);
    this->WatchPart(button);
    QObject::connect(&button, &QToolButton::clicked, this, [this] { Choose(); });
  }

  void Choose() {
    if (this->m_IsLocked) return;
    // Handlers, or whatever runs while the dialog is open, may take the widget away.
    const WidgetCore::HandlerScope scope(*this);
    this->Notify([](WidgetListener& listener) { listener.OnBeforeButtonClick(); });
    if (this->Native()) RunDialog();
    if (this->Native()) this->Notify([](WidgetListener& listener) { listener.OnAfterButtonClick(); });
  }

  /// Lets the user choose, and stores the choice.
  virtual void RunDialog() = 0;

 private:
  void CollectColors(QPalette& own, const QPalette& inherited) const final {
    WidgetCore::CollectColors(own, inherited);
    const QColor background = ToQColor(m_BackColorBkg, QApplication::palette());
    if (inherited.color(QPalette::Active, QPalette::Window) != background)
      own.setColor(QPalette::Window, background);
  }
  bool IsClickedBy(const QWidget& part) const final { return this->m_IsLocked || &part != m_Button; }

  QWidget* m_Field = nullptr;
  QWidget* m_Button = nullptr;
  OleColor m_BackColorBkg = ToOleColor(SystemColor::ButtonFace);
};

}  // namespace cardwright::qt
