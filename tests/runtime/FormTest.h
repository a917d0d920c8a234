// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "automation/Printing.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/Library.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetCore.h"
#include "cardwright/shared/ModuleState.h"
#include "runtime/RecordingEngine.h"
#include "runtime/ScriptedHost.h"
#include "storage/TempFolder.h"

namespace cardwright {

using Lines = std::vector<std::string>;

/// One element of a form project: its `Type` and user name, and what else its section holds.
struct Element {
  std::string type;
  std::string name;
  std::string keys = {};
};

inline std::string ProjectText(const std::vector<Element>& elements, const std::string& formKeys = {},
                               const std::string& script = {}) {
  std::string text = "[FORM]\r\nScaleMode=3\r\nText=A form\r\nWidth=400\r\nHeight=200\r\n" +
                     (formKeys.empty() ? "ThemeName=wells\r\nFeatureType=0\r\n" : formKeys) +
                     "ControlsNumber=" + std::to_string(elements.size()) + "\r\n";
  int number = 0;
  for (const Element& each : elements) {
    ++number;
    text += "[CONTROLS_" + std::to_string(number) + "]\r\nType=" + each.type + "\r\nName=object_" +
            std::to_string(number + 1) + "\r\nUserName=" + each.name +
            "\r\nLeft=8\r\nTop=" + std::to_string(24 * number) + "\r\nWidth=120\r\nHeight=21\r\n" + each.keys;
  }
  if (!script.empty()) text += "[SCRIPT]\r\n" + script;
  return text;
}

/// Answers each message box with its default button and keeps what it showed.
class Boxes final : public QObject {
 public:
  Boxes() {
    m_Timer.callOnTimeout(this, [this] { Look(); });
    m_Timer.start(1);
  }

  /// "title|text|icon" of the boxes since the last call.
  Lines Take() { return std::exchange(m_Shown, {}); }
  std::function<void()> beforeAnswer;

 private:
  void Look() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    m_Shown.push_back(box->windowTitle().toStdString() + "|" + box->text().toStdString() + "|" +
                      (box->icon() == QMessageBox::Warning ? "exclamation" : "other"));
    if (beforeAnswer) beforeAnswer();
    box->defaultButton()->click();
  }

  QTimer m_Timer;
  Lines m_Shown;
};

/// A form in a host's window, with a scripted host and a recording engine behind it.
class FormTest : public testing::Test {
 protected:
  explicit FormTest(std::u16string_view locale = u"en-us") : m_Locale(locale) {
    ModuleState& module = Module();
    module.debugOutput = nullptr;
    module.attachedEditor = nullptr;
    SharedHost().SetHandle(0);
    module.makeScriptControl = [this] { return engine; };
    library.emplace();
    library->Connect(host);
    host->SetTheme({});
    window.resize(640, 480);
    form = new qt::FormInput(&window);
    Watch();
  }
  ~FormTest() override {
    if (form) delete form.data();
    library.reset();
    Module().makeScriptControl = nullptr;
    Module().debugOutput = nullptr;
    SharedHost().SetHandle(0);
  }

  /// Reads a project of these elements and forgets what the host and the engine were told on the way.
  bool Read(const std::vector<Element>& elements, const std::string& formKeys = {},
            const std::string& script = {}) {
    const bool read = ReadWhole(elements, formKeys, script);
    host->Take();
    engine->Take();
    return read;
  }
  bool ReadWhole(const std::vector<Element>& elements, const std::string& formKeys = {},
                 const std::string& script = {}) {
    return form->ProjectRead(qt::ToQString(folder.Put("form.cwf", ProjectText(elements, formKeys, script))));
  }

  IControl& Control(std::u16string_view name) {
    IControl* found = FindControl(form->Object()->Controls(), name);
    if (!found) throw std::runtime_error("no such control");
    return *found;
  }
  Text Row(std::u16string_view control, std::u16string_view row) {
    return ToText(Control(control).PropertyValue(Variant(row)));
  }
  void SetRow(std::u16string_view control, std::u16string_view row, const Variant& value) {
    Control(control).SetPropertyValue(Variant(row), value);
  }
  template <class Kind = Widget>
  Kind& WidgetOf(std::u16string_view control) {
    return dynamic_cast<Kind&>(*Control(control).BoundObject());
  }
  QWidget& Native(std::u16string_view control) {
    return *dynamic_cast<qt::WidgetCore&>(WidgetOf(control)).Native();
  }
  /// One of the two fixed buttons.
  QPushButton& Button(const char* name) { return *form->findChild<QPushButton*>(name); }
  void ClickOk() { QTest::mouseClick(&Button("cmdOK"), Qt::LeftButton); }
  void ClickCancel() { QTest::mouseClick(&Button("cmdCancel"), Qt::LeftButton); }
  void Show() {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  /// Everything that the host, the engine and the form's owner hear goes to one list, in order.
  void MergeLogs() {
    host->onLine = [this](const std::string& line) { merged.push_back(line); };
    engine->onLine = [this](const std::string& line) { merged.push_back(line); };
  }
  Lines TakeEvents() { return std::exchange(events, {}); }
  Lines TakeMerged() { return std::exchange(merged, {}); }

  InLocale m_Locale;
  TempFolder folder;
  Ref<ScriptedHost> host = MakeRef<ScriptedHost>();
  Ref<RecordingEngine> engine = MakeRef<RecordingEngine>();
  std::optional<qt::Library> library;
  Boxes boxes;
  QWidget window;
  QPointer<qt::FormInput> form;
  Lines events;
  Lines merged;

 private:
  void Watch() {
    form->Object()->Connect([this](std::u16string_view event, Args args) {
      std::string line = Text(event).ToUtf8();
      for (const Variant& each : args)
        line += " " + (each.Deref().IsObject() ? std::string("object") : ToText(each).ToUtf8());
      events.push_back(line);
      merged.push_back(line);
    });
  }
};

/// What a host executes and asks around the commands that a test is about.
inline const std::string kOff = "X APPLICATION_FLAGREDRAW OFF";
inline const std::string kOn = "X APPLICATION_FLAGREDRAW ON";
inline const std::string kRedrawNow = "X APPLICATION_REDRAW";
inline const std::string kTwoItems =
    "ItemsNumber=2\r\nValue_Item_1=1\r\nText_Item_1=One\r\nValue_Item_2=2\r\nText_Item_2=Two\r\n";
inline const std::string kPlace = " |wells| |POINT|";
inline const std::string kSelect7 = "X THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 7 NEW";
inline const std::string kSelected = "R THEME_SELECTED_NUMBER |wells| |POINT|";
inline const std::string kMoveFirst = "X THEME_MOVEFIRST |wells| |POINT|";
inline const std::string kIsValid = "R THEME_CURRENT_ISVALID |wells| |POINT|";
inline const std::string kSelectNone = "X THEME_SELECTION_NONE |wells| |POINT|";
inline const std::string kCount = "R THEME_ATTRIBUTE_NUMBER |wells| |POINT|";
inline std::string Describe(int number) {
  return "R THEME_ATTRIBUTE |wells| |POINT| " + std::to_string(number);
}
inline std::string Get(const std::string& name) {
  return "R THEME_GET_ATTRIBUTE |wells| |POINT| |" + name + "|";
}
inline std::string Set(const std::string& name, const std::string& value) {
  return "X THEME_SET_ATTRIBUTE |wells| |POINT| |" + name + "| " + value;
}

}  // namespace cardwright
