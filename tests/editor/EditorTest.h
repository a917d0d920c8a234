// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "automation/Printing.h"
#include "cardwright/automation/Collection.h"
#include "cardwright/editor/EditorSurface.h"
#include "cardwright/model/IControl.h"
#include "cardwright/qt/Library.h"
#include "cardwright/qt/OrvEditor.h"
#include "cardwright/qt/editor/QtEditorSurface.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/ModuleState.h"
#include "editor/ListingEngine.h"
#include "storage/TempFolder.h"

namespace cardwright {

/// Settings that end with the test.
class MemorySettings final : public SettingsStore {
 public:
  Text Get(std::u16string_view app, std::u16string_view section, std::u16string_view key,
           std::u16string_view fallback) const override {
    const std::string name = Name(app, section, key);
    reads.push_back(name);
    const auto found = values.find(name);
    return found == values.end() ? Text(fallback) : Text::FromUtf8(found->second);
  }
  void Save(std::u16string_view app, std::u16string_view section, std::u16string_view key,
            std::u16string_view value) override {
    values[Name(app, section, key)] = Text(value).ToUtf8();
  }

  std::map<std::string, std::string> values;  ///< under "app/section/key"
  mutable std::vector<std::string> reads;

 private:
  static std::string Name(std::u16string_view app, std::u16string_view section, std::u16string_view key) {
    return (Text(app) + u"/" + section + u"/" + key).ToUtf8();
  }
};

/// A desktop whose message boxes are answered at once.
class AnsweringDesktop final : public qt::QtDesktop {
 public:
  int ShowMessage(const Text& text, int style, const Text& /*title*/) override {
    boxes.push_back(text.ToUtf8() + "|" + std::to_string(style));
    return answer;
  }
  SettingsStore& Settings() override { return settings; }

  std::vector<std::string> TakeBoxes() { return std::exchange(boxes, {}); }

  MemorySettings settings;
  std::vector<std::string> boxes;  ///< "text|style"
  int answer = 1;
};

/// A control of a form of which an editor sees the name and the events.
class NamedControl final : public IControl {
 public:
  NamedControl(Text name, std::vector<Text> events) : m_Name(std::move(name)), m_Events(std::move(events)) {}

  Text TypeName() const override { return u"CCommandButton"; }
  Text UserName() const override { return m_Name; }
  void SetName(const Text& name) override { m_Name = name; }
  std::vector<Text> Events() const override { return m_Events; }

 private:
  Text m_Name;
  std::vector<Text> m_Events;
};

/// What exists before the first editor of a test is made.
class EditorSetup : public testing::Test {
 protected:
  EditorSetup() {
    ModuleState& module = Module();
    module.makeScriptControl = [] { return MakeRef<ListingEngine>(); };
    library.emplace();
    module.desktop = &desktop;
    module.formControlsObject = nullptr;
    module.scriptContent = Text();
    module.scriptLanguage = Text();
    NameSettings(u"", u"", u"", u"");
    window.resize(900, 500);
  }
  ~EditorSetup() override {
    delete editor;
    library.reset();
    ModuleState& module = Module();
    module.makeScriptControl = nullptr;
    module.scriptContent = Text();
    module.scriptLanguage = Text();
    NameSettings(u"", u"", u"", u"");
  }

  static void NameSettings(const Text& app, const Text& editor, const Text& global, const Text& description) {
    ModuleState& module = Module();
    module.settingsAppName = app;
    module.settingsSectionEditor = editor;
    module.settingsSectionGlobal = global;
    module.settingsSectionOrvInfo = description;
  }

  void MakeEditor() {
    editor = new qt::OrvEditor(&window);
    editor->resize(window.size());
    object = editor->Object();
    surface = dynamic_cast<qt::QtEditorSurface*>(object->GetSurface());
    pad = surface->Pad();
    object->Connect([this](std::u16string_view event, Args args) {
      events.push_back(Text(event).ToUtf8());
      if (onEvent) onEvent(event, args);
    });
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    pad->SetFocus();
    QApplication::processEvents();
    events.clear();
  }

  TempFolder folder;
  AnsweringDesktop desktop;
  std::optional<qt::Library> library;
  QWidget window;
  qt::OrvEditor* editor = nullptr;
  Ref<OrvEditor> object;
  qt::QtEditorSurface* surface = nullptr;
  Ref<Lexipad> pad;
  std::vector<std::string> events;
  std::function<void(std::u16string_view event, Args args)> onEvent;
};

/// An editor in a window that has the keyboard.
class EditorTest : public EditorSetup {
 protected:
  void SetUp() override { MakeEditor(); }

  QWidget& NativeOf(Widget& widget) const { return *dynamic_cast<qt::WidgetCore&>(widget).Native(); }
  QWidget& Keyboard() const { return NativeOf(*pad); }
  void Type(const char* text) const {
    for (const char* at = text; *at != '\0'; ++at) {
      if (*at == '\n')
        QTest::keyClick(&Keyboard(), Qt::Key_Return);
      else
        QTest::keyClick(&Keyboard(), *at);
    }
    QApplication::processEvents();
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QTest::keyClick(&Keyboard(), key, modifiers);
    QApplication::processEvents();
  }
  void SetScript(std::u16string_view script, std::u16string_view language = u"VBScript") {
    object->SetFileContent(Text(language) + u"\r\n" + script);
    QApplication::processEvents();
  }
  void PutCaret(std::u16string_view behind) {
    const Text text = pad->Contents();
    const std::size_t at = text.View().find(behind);
    ASSERT_NE(at, std::u16string_view::npos);
    pad->SetSelStart(static_cast<std::int32_t>(at + behind.size()));
    QApplication::processEvents();
  }

  Ref<ToolButton> Button(std::u16string_view key) const { return surface->Toolbar()->Buttons()->Find(key); }
  ComboWidget& Controls() const { return *surface->ControlsCombo(); }
  ComboWidget& Events() const { return *surface->EventsCombo(); }
  /// Entries between bars, the chosen one between angles.
  static std::string Entries(const ComboWidget& combo) {
    std::string all;
    for (int i = 0; i < combo.ListCount(); ++i) {
      const std::string text = combo.ListText(i).ToUtf8();
      all += (i == 0 ? "" : "|") + (i == combo.ListIndex() ? "<" + text + ">" : text);
    }
    return all;
  }

  /// Runs an act with a modal dialog of that name, which is closed in any case.
  template <class Opens>
  bool WithDialog(const char* name, std::function<void(QDialog&)> act, Opens&& opens) {
    bool isOpen = false;
    QTimer hand;
    hand.callOnTimeout([&] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!dialog || dialog->objectName() != QLatin1String(name)) return;
      hand.stop();
      isOpen = true;
      act(*dialog);
      if (QApplication::activeModalWidget() == dialog) dialog->reject();
    });
    hand.start(1);
    opens();
    return isOpen;
  }
};

}  // namespace cardwright
