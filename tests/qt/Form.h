// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <QWindow>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/Widget.h"
#include "cardwright/qt/surface/QtSurface.h"
#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright {

/// For the messages of failed tests.
inline void PrintTo(const Text& text, std::ostream* out) { *out << '"' << text.ToUtf8() << '"'; }

}  // namespace cardwright

namespace cardwright::qt {

/// Writes down what a widget tells, and does to keys what a test asks for.
struct Listener final : WidgetListener {
  std::vector<std::string> log;
  bool logsMoves = false;
  std::function<void()> onClick, onChange, onMouseDown, onItemCheck, onBefore, onAfter;
  std::function<void(int& keyCode, int& shift)> onKeyDown;
  std::function<void(char16_t& key)> onKeyPress;

  std::string Take() {
    std::string all;
    for (const std::string& line : log) all += (all.empty() ? "" : " ") + line;
    log.clear();
    return all;
  }

  void OnClick() override {
    log.push_back("click");
    if (onClick) onClick();
  }
  void OnChange() override {
    log.push_back("change");
    if (onChange) onChange();
  }
  void OnGotFocus() override { log.push_back("got"); }
  void OnLostFocus() override { log.push_back("lost"); }
  void OnKeyDown(int& keyCode, int& shift) override {
    log.push_back("key" + std::to_string(keyCode) + (shift ? "+" + std::to_string(shift) : ""));
    if (onKeyDown) onKeyDown(keyCode, shift);
  }
  void OnKeyPress(char16_t& key) override {
    log.push_back("char" + std::to_string(key));
    if (onKeyPress) onKeyPress(key);
  }
  void OnMouseDown(int button, int shift, float x, float y) override {
    log.push_back(Mouse("down", button, shift, x, y));
    if (onMouseDown) onMouseDown();
  }
  void OnMouseMove(int button, int shift, float x, float y) override {
    if (logsMoves) log.push_back(Mouse("move", button, shift, x, y));
  }
  void OnMouseUp(int button, int shift, float x, float y) override {
    log.push_back(Mouse("up", button, shift, x, y));
  }
  void OnItemCheck(int index) override {
    log.push_back("check" + std::to_string(index));
    if (onItemCheck) onItemCheck();
  }
  void OnBeforeButtonClick() override {
    log.push_back("before");
    if (onBefore) onBefore();
  }
  void OnAfterButtonClick() override {
    log.push_back("after");
    if (onAfter) onAfter();
  }
  void OnResize() override { log.push_back("resize"); }

 private:
  static std::string Mouse(const char* what, int button, int shift, float x, float y) {
    return what + std::to_string(button) + "+" + std::to_string(shift) + "@" +
           std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y));
  }
};

/// Shows a window and waits until it has its place and the focus. Some systems give that of their own accord,
/// and later than they show the window.
[[nodiscard]] inline bool ShowActive(QWidget& window) {
  window.show();
  window.activateWindow();
  return QTest::qWaitForWindowActive(&window) &&
         QTest::qWaitFor([&] { return window.windowHandle()->isActive(); });
}

/// A window with a canvas in it, and a surface on the canvas.
struct Form {
  Form() {
    window.resize(400, 300);
    canvas->setGeometry(0, 0, 400, 300);
  }

  template <class T = Widget>
  Ref<T> Add(std::u16string_view identifier, std::u16string_view name, Widget* container = nullptr) {
    const Ref<Widget> widget = surface.Add(identifier, name, container);
    widget->SetVisible(true);
    return Ref<T>(dynamic_cast<T*>(widget.get()));
  }
  /// The same at a place of its own, by its number from the top.
  template <class T = Widget>
  Ref<T> AddAt(int row, std::u16string_view identifier, std::u16string_view name) {
    Ref<T> widget = Add<T>(identifier, name);
    widget->Move(10, static_cast<float>(10 + 40 * row), 120, 30);
    return widget;
  }
  void Show() { ASSERT_TRUE(ShowActive(window)); }

  QWidget window;
  QWidget* canvas = new QWidget(&window);
  QtSurface surface{*canvas};
};

inline QWidget& NativeOf(Widget& widget) { return *dynamic_cast<WidgetCore&>(widget).Native(); }
template <class T>
T& NativeAs(Widget& widget) {
  return dynamic_cast<T&>(NativeOf(widget));
}

/// Number of the error that `step` raises; 0 where it raises none.
template <class Step>
int ErrorOf(Step&& step) {
  try {
    step();
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

inline void Click(QWidget& widget, QPoint at = {}, Qt::MouseButton button = Qt::LeftButton,
                  Qt::KeyboardModifiers modifiers = {}) {
  QTest::mouseClick(&widget, button, modifiers, at);
}

inline const std::vector<std::u16string_view> kIdentifiers = {u"vb.label",
                                                              u"vb.frame",
                                                              u"vb.commandbutton",
                                                              u"vb.checkbox",
                                                              u"vb.optionbutton",
                                                              u"vb.textbox",
                                                              u"CardwrightCtrl.MultilineTextBox",
                                                              u"vb.combobox",
                                                              u"MSComctlLib.ListViewCtrl.2"};

}  // namespace cardwright::qt
