// SPDX-License-Identifier: MIT
#include "cardwright/runtime/Vellum.h"

#include <QImage>

#include "cardwright/qt/surface/QtSurface.h"
#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class VellumTest : public FormTest {
 protected:
  Vellum& App() { return library->Vellum(); }
  Variant Get(std::u16string_view name) { return GetProperty(App(), name); }
  void Let(std::u16string_view name, const Variant& value) { LetProperty(App(), name, value); }
};

TEST_F(VellumTest, OffersItsMembersInTheirOrder) {
  const std::vector<Text> expected = {u"TarvoHandle",
                                      u"AttachOVeditor",
                                      u"GetOrvPath",
                                      u"SettingsAppName",
                                      u"SettingsSectionEditor",
                                      u"SettingsSectionGlobal",
                                      u"SettingsSectionOrvInfo",
                                      u"EnableScreenKeyboard",
                                      u"ScriptContent",
                                      u"GetFormImage",
                                      u"GetShowMenu",
                                      u"SetShowMenu",
                                      u"DefaultBackColor",
                                      u"DefaultForeColor",
                                      u"DebugOutputObject",
                                      u"ButtonsOffsetY",
                                      u"ButtonsOffsetX",
                                      u"FormScaleMode",
                                      u"ResizeHandleDims",
                                      u"ResizeHandleBackColor",
                                      u"ResizeHandleBorderColor",
                                      u"ResizeHandleEnabled",
                                      u"ResizeHandleIsEnabled"};
  EXPECT_EQ(App().MemberNames(), expected);
  EXPECT_EQ(App().TypeName(), u"Vellum");
}

TEST_F(VellumTest, StartsWithItsDefaults) {
  EXPECT_EQ(ToLong(Get(u"FormScaleMode")), 3);
  EXPECT_EQ(ToLong(Get(u"ResizeHandleDims")), 7);
  EXPECT_EQ(ToLong(Get(u"ResizeHandleBackColor")), static_cast<std::int32_t>(0x8000000Du));
  EXPECT_EQ(ToLong(Get(u"ResizeHandleBorderColor")), static_cast<std::int32_t>(0x8000000Eu));
  EXPECT_EQ(ToText(Get(u"SettingsAppName")), u"");
  EXPECT_FALSE(ToBoolean(Get(u"EnableScreenKeyboard")));
  EXPECT_EQ(ErrorOf([&] { Let(u"FormScaleMode", 1); }), 438) << "read only";
  EXPECT_EQ(ErrorOf([&] { Let(u"ButtonsOffsetX", 1); }), 438);
}

TEST_F(VellumTest, KeepsWhatAHostSets) {
  const std::pair<const char16_t*, Variant> kSettings[] = {
      {u"SettingsAppName", u"Tarvo"},        {u"SettingsSectionEditor", u"Editor"},
      {u"SettingsSectionGlobal", u"Global"}, {u"SettingsSectionOrvInfo", u"Info"},
      {u"EnableScreenKeyboard", true},       {u"ResizeHandleDims", 9},
      {u"ResizeHandleBackColor", 255},       {u"ResizeHandleBorderColor", 65280}};
  for (const auto& [name, value] : kSettings) {
    const Variant before = Get(name);
    Let(name, value);
    EXPECT_EQ(ToText(Get(name)), ToText(value));
    Let(name, before);
  }
}

TEST_F(VellumTest, HandsOnTheConnectionHandle) {
  Let(u"TarvoHandle", 4711);
  EXPECT_EQ(SharedHost().Handle(), 4711);
  EXPECT_EQ(ToLong(Get(u"TARVOHANDLE")), 4711);
}

TEST_F(VellumTest, PartsTheScriptFromItsLanguageLine) {
  Let(u"ScriptContent", u"JScript\r\nvar a;\r\n");
  EXPECT_EQ(ToText(Get(u"ScriptContent")), u"var a;\r\n");
  EXPECT_EQ(Module().scriptLanguage, u"JScript");
  Let(u"ScriptContent", u"one line");
  EXPECT_EQ(ToText(Get(u"ScriptContent")), u"one line");
  EXPECT_EQ(Module().scriptLanguage, u"");
}

TEST_F(VellumTest, AnswersSystemColoursUntilTwoThatDifferAreSet) {
  const auto system = [](std::uint32_t color) { return static_cast<std::int32_t>(color); };
  const auto back = [this] { return ToLong(Get(u"DefaultBackColor")); };
  const auto fore = [this] { return ToLong(Get(u"DefaultForeColor")); };
  Let(u"DefaultBackColor", 0);
  Let(u"DefaultForeColor", 0);
  EXPECT_EQ(back(), system(0x8000000F));
  EXPECT_EQ(fore(), system(0x80000012));
  Let(u"DefaultBackColor", 255);
  EXPECT_EQ(back(), 255);
  EXPECT_EQ(fore(), 0);
  Let(u"DefaultForeColor", 255);
  EXPECT_EQ(back(), system(0x8000000F));
  EXPECT_EQ(fore(), system(0x80000012));
  Let(u"DefaultBackColor", 0);
  Let(u"DefaultForeColor", 0);
}

TEST_F(VellumTest, ReportsTheSpaceForTheButtonsInTheFormsScale) {
  EXPECT_EQ(ToSingle(Get(u"ButtonsOffsetX")), 196);
  EXPECT_EQ(ToSingle(Get(u"ButtonsOffsetY")), 49);
  Module().formScaleMode = ScaleMode::Twips;
  EXPECT_EQ(ToSingle(Get(u"ButtonsOffsetX")), 2940);
  EXPECT_EQ(ToSingle(Get(u"ButtonsOffsetY")), 735);
  EXPECT_EQ(ToLong(Get(u"FormScaleMode")), 1);
  Module().formScaleMode = ScaleMode::Pixels;
}

TEST_F(VellumTest, FindsFilesBesideAProject) {
  const Text project = folder.Name("form.cwf");
  folder.Put("there.orv", "x");
  std::filesystem::create_directory(folder.File("sub"));
  struct Case {
    const char* file;
    Variant checkFolder, checkFile;
    const char* found;
  };
  const Variant no(false), yes(true), none = Variant::Missing();
  const Case kCases[] = {
      {"", no, no, nullptr},
      {"", yes, yes, nullptr},
      {"there.orv", none, none, "there.orv"},
      {"there.orv", yes, yes, "there.orv"},
      {"gone.orv", no, no, "gone.orv"},
      {"gone.orv", yes, no, "gone.orv"},
      {"gone.orv", none, yes, nullptr},
      {"sub/gone.orv", yes, no, "sub/gone.orv"},
      {"lost/gone.orv", no, no, "lost/gone.orv"},
      {"lost/gone.orv", yes, no, nullptr},
      {"sub", no, yes, nullptr},
  };
  for (const Case& each : kCases) {
    const Variant path = CallMethod(App(), u"GetOrvPath",
                                    {project, Text::FromUtf8(each.file), each.checkFolder, each.checkFile});
    EXPECT_EQ(ToText(path), each.found ? folder.Name(each.found) : Text()) << each.file;
  }
}

TEST_F(VellumTest, AnswersForProjectFiles) {
  const Text project = folder.Put("form.cwf", ProjectText({}));
  EXPECT_FALSE(ToBoolean(CallMethod(App(), u"GetShowMenu", {project})));
  CallMethod(App(), u"SetShowMenu", {project, true});
  EXPECT_TRUE(ToBoolean(CallMethod(App(), u"GetShowMenu", {project})));
  const Variant image = CallMethod(App(), u"GetFormImage", {project});
  EXPECT_TRUE(image.IsObject() && !image.ObjectPtr());
}

// The host's editor object.

class Editor final : public TableObject {
 public:
  Text TypeName() const override { return u"Editor"; }
  Text ORVExecute(const Text& command) {
    asked = command;
    if (fails) Raise(ErrorNumber::CannotPerform);
    return reply;
  }

  Text reply = u"4242 and more";
  Text asked;
  bool fails = false;

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {Method<&Editor::ORVExecute>(u"ORVExecute")};
    static const MemberTable table(kMembers);
    return table;
  }
};

TEST_F(VellumTest, TakesTheHandleFromAnEditor) {
  const auto editor = MakeRef<Editor>();
  CallMethod(App(), u"AttachOVeditor", {editor});
  EXPECT_EQ(editor->asked, u"HWND_CONTROL");
  EXPECT_EQ(App().TarvoHandle(), 4242);
  EXPECT_EQ(SharedHost().Editor(), editor.get());
  EXPECT_EQ(Module().attachedEditor, editor.get());

  CallMethod(App(), u"AttachOVeditor", {Variant::Nothing()});
  EXPECT_EQ(App().TarvoHandle(), 4242) << "the handle stays";
  EXPECT_FALSE(SharedHost().Editor());
  EXPECT_FALSE(Module().attachedEditor);
}

TEST_F(VellumTest, HandsOnTheFailureOfAnEditor) {
  const auto first = MakeRef<Editor>();
  App().AttachOVeditor(first);
  const auto editor = MakeRef<Editor>();
  editor->fails = true;
  EXPECT_EQ(ErrorOf([&] { App().AttachOVeditor(editor); }), 17);
  EXPECT_EQ(Module().attachedEditor, editor.get()) << "stored before it was asked";
  EXPECT_EQ(SharedHost().Editor(), first.get()) << "and not handed on";
  EXPECT_EQ(App().TarvoHandle(), 4242);
  App().AttachOVeditor(nullptr);
}

TEST_F(VellumTest, GivesScriptsTheAttachedEditor) {
  const auto editor = MakeRef<Editor>();
  editor->reply = ToText(App().TarvoHandle());
  App().AttachOVeditor(editor);
  ReadWhole({}, {}, "VBScript\r\nx = 1\r\n");
  EXPECT_EQ(GetProperty(*engine->objects.at("OrvExecutor"), u"ORVEditor").ObjectPtr(), editor.get());
  App().AttachOVeditor(nullptr);
}

// Instances.

TEST_F(VellumTest, SharesItsStateWithASecondOneWhichRenewsTheDefaults) {
  QWidget canvas;
  qt::QtSurface surface(canvas);
  const Ref<Object> output = surface.Add(u"VB.TextBox", u"output", nullptr);
  Module().debugOutput = output;
  Let(u"ResizeHandleDims", 20);
  Let(u"SettingsAppName", u"Tarvo");
  Let(u"ScriptContent", u"VBScript\r\nx\r\n");
  Module().attachedEditor = output;
  Module().formScaleMode = ScaleMode::Twips;
  const Ref<Object> controlsBefore = Module().formControlsObject;
  const std::int32_t handle = App().TarvoHandle();
  const auto secondEngine = MakeRef<RecordingEngine>();
  Module().makeScriptControl = [&] { return secondEngine; };

  auto second = MakeRef<Vellum>();
  EXPECT_EQ(Module().scriptControl, secondEngine.get());
  EXPECT_NE(Module().formControlsObject, controlsBefore);
  EXPECT_FALSE(Module().attachedEditor);
  EXPECT_EQ(ToLong(Get(u"ResizeHandleDims")), 7);
  EXPECT_EQ(ToLong(Get(u"FormScaleMode")), 3);
  EXPECT_EQ(ToText(Get(u"SettingsAppName")), u"Tarvo");
  EXPECT_EQ(ToText(Get(u"ScriptContent")), u"x\r\n");
  EXPECT_EQ(Get(u"DebugOutputObject").ObjectPtr(), output.get());
  EXPECT_EQ(second->TarvoHandle(), handle);

  second = nullptr;
  EXPECT_TRUE(Module().scriptControl) << "the last one ends the engine, not the first to go";
  Let(u"SettingsAppName", u"");
}

TEST_F(VellumTest, EndsTheEngineWithTheLastInstance) {
  delete form.data();
  engine->SetLanguage(u"VBScript");
  engine->Take();
  SharedHost().SetEditor(MakeRef<Editor>());
  library.reset();
  EXPECT_EQ(engine->Take(), (Lines{"SitehWnd", "Reset"}));
  EXPECT_EQ(engine->site, 0);
  EXPECT_FALSE(Module().scriptControl);
  EXPECT_FALSE(Module().formControlsObject);
  EXPECT_FALSE(SharedHost().Editor());
}

TEST_F(VellumTest, ResetsNoEngineWithoutALanguage) {
  delete form.data();
  library.reset();
  EXPECT_EQ(engine->Take(), (Lines{"SitehWnd"}));
}

TEST_F(VellumTest, FindsTheDecimalSeparatorOfItsTime) {
  EXPECT_EQ(Module().decimalSeparator, u".");
  const InLocale italian(u"it-it");
  EXPECT_EQ(Module().decimalSeparator, u".");
  const auto second = MakeRef<Vellum>();
  EXPECT_EQ(Module().decimalSeparator, u",");
}

TEST_F(VellumTest, DrawsAHandleInTwoColoursThatChangePlaces) {
  QWidget canvas;
  qt::QtSurface surface(canvas);
  const Ref<Widget> handle = surface.Add(u"VB.PictureBox", u"handle", nullptr);
  handle->Move(0, 0, 7, 7);
  handle->SetVisible(true);
  Let(u"ResizeHandleBackColor", Rgb(255, 0, 0));
  Let(u"ResizeHandleBorderColor", Rgb(0, 0, 255));
  for (const ScaleMode scale : {ScaleMode::Pixels, ScaleMode::Twips}) {
    Module().formScaleMode = scale;
    for (const bool enabled : {true, false}) {
      CallMethod(App(), u"ResizeHandleEnabled", {handle, enabled});
      EXPECT_EQ(ToBoolean(CallMethod(App(), u"ResizeHandleIsEnabled", {handle})), enabled);
      const QImage image = dynamic_cast<qt::WidgetCore&>(*handle).Native()->grab().toImage();
      const QColor fill = enabled ? Qt::red : Qt::blue;
      const QColor edge = enabled ? Qt::blue : Qt::red;
      for (const QPoint at : {QPoint(0, 0), QPoint(6, 0), QPoint(0, 6), QPoint(6, 6), QPoint(3, 6)})
        EXPECT_EQ(image.pixelColor(at), edge) << at.x() << " " << at.y();
      for (const QPoint at : {QPoint(1, 1), QPoint(3, 3), QPoint(5, 5)})
        EXPECT_EQ(image.pixelColor(at), fill) << at.x() << " " << at.y();
    }
  }
  Module().formScaleMode = ScaleMode::Pixels;
}

TEST_F(VellumTest, DrawsNothingButPictureBoxesAsHandles) {
  QWidget canvas;
  qt::QtSurface surface(canvas);
  const Ref<Widget> label = surface.Add(u"VB.Label", u"label", nullptr);
  EXPECT_EQ(ErrorOf([&] { CallMethod(App(), u"ResizeHandleEnabled", {label, true}); }), 13);
  EXPECT_EQ(ErrorOf([&] { CallMethod(App(), u"ResizeHandleEnabled", {Variant::Nothing(), true}); }), 13);
  label->SetBackColor(static_cast<OleColor>(0x8000000Du));
  EXPECT_TRUE(ToBoolean(CallMethod(App(), u"ResizeHandleIsEnabled", {label})));
  label->SetBackColor(static_cast<OleColor>(0x8000000Eu));
  EXPECT_FALSE(ToBoolean(CallMethod(App(), u"ResizeHandleIsEnabled", {label})));
}

}  // namespace
}  // namespace cardwright
