// SPDX-License-Identifier: MIT
// Reading and saving forms: owners, hosts, and everything that a project can get wrong.

#include <sys/stat.h>

#include "cardwright/runtime/FormInput.h"
#include "cardwright/storage/ProjectWriter.h"
#include "model/AnsweringHost.h"
#include "model/Forms.h"
#include "model/ProjectTexts.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

/// A real form in a window, as a host has it.
struct RealInput {
  RealInput() {
    window.resize(500, 400);
    canvas->resize(400, 300);
  }
  ~RealInput() { input->DetachSurface(); }

  QWidget window;
  QWidget* canvas = new QWidget(&window);
  qt::QtSurface surface{*canvas};
  Ref<FormInput> input = FormInput::Create(surface);
};

/// Records, when it is saved, whether the save is a temporary one.
class Witness final : public IControl {
 public:
  Text TypeName() const override { return u"Witness"; }
  bool SaveTo(SectionWriter& section) const override {
    wasTemporary = section.Project().IsTemporary();
    return true;
  }
  mutable bool wasTemporary = false;
};

/// Appends itself to a form and records the order of the calls.
class Linker final : public IControl {
 public:
  explicit Linker(FakeInput& owner) : m_Owner(owner) {}
  Text TypeName() const override { return u"Linker"; }
  void AttachControls(Collection& controls) override {
    m_Owner.Write("attach " + std::to_string(controls.Count()));
  }

 private:
  FakeInput& m_Owner;
};

std::string ProjectOf(std::string_view sections, int count) {
  return Crlf("[FORM]\nScaleMode= 3\nControlsNumber=" + std::to_string(count) + "\n" + std::string(sections));
}

}  // namespace

TEST(Read, CreatesTheControlsThenLinksAndLaysOut) {
  const TempFolder folder;
  InputForm on;
  const auto linker = MakeRef<Linker>(*on.owner);
  on.owner->Controls().Add(Variant(Ref<Object>(linker)), Variant(u"linker"));
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_EQ(on.owner->Take(), "attach 4; LayOut");
  EXPECT_EQ(on.surface.Scale(), ScaleMode::Twips);
  EXPECT_EQ(on.surface.Width(), 4800);
  EXPECT_EQ(on.window.windowTitle(), "Well inspection");
  EXPECT_EQ(on.Find(u"lblDepth")->ParentForm(), on.owner.get());
  EXPECT_EQ(Module().scriptLanguage, u"VBScript");
}

TEST(Read, PassesTheTitleToAHostWithoutAWindow) {
  const TempFolder folder;
  InputForm on(false);
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_EQ(on.owner->Take(), "SetParentCaption Well inspection; LayOut");
  DesignForm design(false);
  EXPECT_TRUE(design.form->Read(folder.Name("a.frm"), {}));
}

TEST(Read, FailsWithoutOwnerOrFileAndKeepsTheScript) {
  const TempFolder folder;
  InputForm on;
  Module().scriptContent = u"Sub Old()";
  EXPECT_FALSE(on.form->Read(folder.Name("none.frm"), {}));
  EXPECT_FALSE(on.form->Read(Text(), {}));
  EXPECT_FALSE(MakeRef<CForm>()->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_FALSE(std::filesystem::exists(folder.File("none.frm")));
  EXPECT_EQ(on.owner->Take(), "");
  Module().scriptContent = u"Sub Old()";
  EXPECT_FALSE(on.form->Read(folder.Name("none.frm"), {}));
  EXPECT_EQ(Module().scriptContent, u"Sub Old()");
}

TEST(Read, AddsToTheExistingControls) {
  const TempFolder folder;
  DesignForm on;
  on.Add(u"CLabel", u"mine", u"object_77");
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_EQ(on.Names(), "Form, mine, lblDepth, txtDepth");
}

TEST(Read, SkipsTypesWithoutAClass) {
  const TempFolder folder;
  for (const std::string type : {"DbTableViewer", "ListView", "Timer", "", "vb.label", "Label1"}) {
    DesignForm on;
    const std::string project = Replaced(Example(), "Type=Label\r\n", "Type=" + type + "\r\n");
    EXPECT_TRUE(on.form->Read(folder.Put("a.frm", project), {}));
    EXPECT_EQ(on.Names(), "Form, txtDepth") << type;
    EXPECT_FALSE(on.surface.Find(u"object_1")) << type;
  }
}

TEST(FindControlClass, KnowsTheClassOfATypeTextInAnyCase) {
  const auto identifier = [](std::u16string_view type) { return FindControlClass(type)->widgetIdentifier; };
  EXPECT_EQ(identifier(u"TextBoxMultiline"), u"CardwrightCtrl.MultilineTextBox");
  EXPECT_EQ(identifier(u"RESOURCESELECTOR"), u"CardwrightCtrl.ResourceSelector");
  EXPECT_EQ(identifier(u"themeselector"), u"CardwrightCtrl.ThemeSelector");
  EXPECT_EQ(identifier(u"attributeselector"), u"CardwrightCtrl.AttributeSelector");
  EXPECT_EQ(identifier(u"fontselector"), u"CardwrightCtrl.FontSelector");
  EXPECT_EQ(identifier(u"colorselector"), u"CardwrightCtrl.ColorSelector");
  EXPECT_EQ(identifier(u"ListBox"), u"MSComctlLib.ListViewCtrl.2");
  EXPECT_EQ(identifier(u"Label"), u"vb.label");
  for (const ClassTable* entry : ControlClasses()) EXPECT_EQ(FindControlClass(entry->typeText), entry);
}

TEST(FindControlClass, KnowsNoClassForTheTableViewerAndOtherTexts) {
  for (const char16_t* type :
       {u"dbtableviewer", u"CardwrightCtrl.DbTableViewer", u"vb.label", u"Picture", u""})
    EXPECT_EQ(FindControlClass(type), nullptr) << Text(type).ToUtf8();
  EXPECT_EQ(FindDrawable(ControlTypeEnum::ctDbTableViewer)->design.identifier,
            u"CardwrightCtrl.DbTableViewer");
}

TEST(Read, SkipsAControlWhoseContainerComesLater) {
  const TempFolder folder;
  const auto names = [&](std::string_view sections, int count) {
    DesignForm on;
    EXPECT_TRUE(on.form->Read(folder.Put("a.frm", ProjectOf(sections, count)), {}));
    return on.Names();
  };
  EXPECT_EQ(names("[CONTROLS_1]\nType=Label\nUserName=a\nContainer=object_9\n", 1), "Form");
  EXPECT_EQ(names("[CONTROLS_1]\nType=Label\nName=b\nUserName=a\nContainer=f\n"
                  "[CONTROLS_2]\nType=Frame\nName=f\nUserName=f\n",
                  2),
            "Form, f");
  // Each in the other, and one in itself.
  EXPECT_EQ(names("[CONTROLS_1]\nType=Frame\nName=f\nContainer=g\n"
                  "[CONTROLS_2]\nType=Frame\nName=g\nContainer=f\n"
                  "[CONTROLS_3]\nType=Frame\nName=h\nUserName=h\nContainer=h\n",
                  3),
            "Form");
  // Only a frame contains anything.
  EXPECT_EQ(names("[CONTROLS_1]\nType=Label\nName=f\nUserName=f\n"
                  "[CONTROLS_2]\nType=Label\nName=g\nUserName=g\nContainer=f\n",
                  2),
            "Form, f");
  EXPECT_EQ(names("[CONTROLS_1]\nType=Frame\nName=F\nUserName=f\n"
                  "[CONTROLS_2]\nType=Label\nName=g\nUserName=g\nContainer=f\n",
                  2),
            "Form, f, g");
}

TEST(Read, SkipsAControlWithADuplicateName) {
  const TempFolder folder;
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", ProjectOf("[CONTROLS_1]\nType=Label\nName=x\nUserName=a\n"
                                                          "[CONTROLS_2]\nType=TextBox\nName=X\nUserName=b\n"
                                                          "[CONTROLS_3]\nType=Label\nName=z\nUserName=c\n",
                                                          3)),
                            {}));
  EXPECT_EQ(on.Names(), "Form, a, c");
}

TEST(Read, KeepsTheWidgetOfADuplicateUserName) {
  const TempFolder folder;
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", ProjectOf("[CONTROLS_1]\nType=Label\nName=x\nUserName=a\n"
                                                          "[CONTROLS_2]\nType=TextBox\nName=y\nUserName=A\n",
                                                          2)),
                            {}));
  EXPECT_EQ(on.Names(), "Form, a");
  EXPECT_EQ(on.Find(u"a")->Name(), u"x");
  EXPECT_TRUE(on.surface.Find(u"y"));
  on.Show();
  QTest::mouseClick(dynamic_cast<qt::WidgetCore&>(*on.surface.Find(u"y")).Native(), Qt::LeftButton);
}

TEST(Read, ReadsTheNumberOfControlsAsA16BitInteger) {
  const TempFolder folder;
  const std::string label = "[CONTROLS_1]\nType=Label\nUserName=a\n[CONTROLS_7]\nType=Label\nUserName=b\n";
  for (const auto& [count, names] : std::vector<std::pair<std::string, std::string>>{{"0", "Form"},
                                                                                     {"-5", "Form"},
                                                                                     {"many", "Form"},
                                                                                     {"1 control", "Form, a"},
                                                                                     {"1,4", "Form, a"},
                                                                                     {"6", "Form, a"},
                                                                                     {"7", "Form, a, b"},
                                                                                     {"32767", "Form, a, b"},
                                                                                     {"32768", "Form"},
                                                                                     {"1e300", "Form"}}) {
    DesignForm on;
    EXPECT_TRUE(
        on.form->Read(folder.Put("a.frm", Crlf("[FORM]\nControlsNumber=" + count + "\n" + label)), {}));
    EXPECT_EQ(on.Names(), names) << count;
  }
}

TEST(Read, ReplacesAnUnknownThemeByTheActiveOne) {
  const TempFolder folder;
  const Connected connection;
  connection.host->answers = {{u"THEME_NUMBER |wells|", u"0"}, {u"THEME_ACTIVE", u"pipes"}};
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_EQ(TextOf(*on.form, u"ThemeName"), u"pipes");
  EXPECT_TRUE(on.form->Save(folder.Name("a.frm"), {}));
  EXPECT_NE(folder.Get("a.frm").find("ThemeName=pipes\r\n"), std::string::npos);
  EXPECT_EQ(on.owner->Take().find("AttribsList"), std::string::npos);  // raised only for the grid
}

TEST(Read, KeepsAKnownTheme) {
  const TempFolder folder;
  const Connected connection;
  connection.host->answers = {{u"THEME_NUMBER |wells|", u"3 themes"}, {u"THEME_ACTIVE", u"pipes"}};
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_EQ(TextOf(*on.form, u"ThemeName"), u"wells");
  EXPECT_EQ(connection.host->asked, u"THEME_NUMBER |wells|");
}

TEST(Read, RequestsNothingWithoutAThemeOrAConnection) {
  const TempFolder folder;
  {
    const Connected connection;
    DesignForm on;
    EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Replaced(Example(), "ThemeName=wells", "ThemeName=")), {}));
    EXPECT_EQ(connection.host->asked, u"");
    EXPECT_EQ(TextOf(*on.form, u"ThemeName"), u"");
  }
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_EQ(TextOf(*on.form, u"ThemeName"), u"wells");
}

TEST(Read, SurvivesTheEndOfItsOwner) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", Example());
  const Connected connection;
  for (const bool designing : {true, false}) {
    DesignForm design;
    InputForm input;
    CForm& form = designing ? *design.form : *input.form;
    connection.host->onRequest = [&] { form.ForgetOwner(); };
    EXPECT_TRUE(form.Read(file, {}));
    EXPECT_EQ(design.Names(), "Form");
    EXPECT_EQ(input.Names(), "Form");
    EXPECT_FALSE(form.Save(file, {}));
  }
}

TEST(Save, DeletesTheFileOfAFormWithoutControls) {
  const TempFolder folder;
  DesignForm design;
  InputForm input;
  for (CForm* form : {design.form.get(), input.form.get()}) {
    const Text file = folder.Put("a.frm", Example());
    EXPECT_TRUE(form->Save(file, {}));
    EXPECT_FALSE(std::filesystem::exists(folder.File("a.frm")));
    EXPECT_TRUE(form->Save(file, {}));
    EXPECT_FALSE(std::filesystem::exists(folder.File("a.frm")));
  }
}

TEST(Save, FailsWithoutOwnerOrFolder) {
  const TempFolder folder;
  DesignForm on;
  on.Add(u"CLabel");
  EXPECT_FALSE(on.form->Save(folder.Name("none/a.frm"), {}));
  EXPECT_FALSE(std::filesystem::exists(folder.File("none")));
  EXPECT_FALSE(MakeRef<CForm>()->Save(folder.Name("a.frm"), {}));
  EXPECT_TRUE(on.form->Save(folder.Name("new.frm"), {}));
  EXPECT_TRUE(folder.Get("new.frm").starts_with("[FORM]\r\nScaleMode= 3\r\n"));
}

TEST(Save, ReplacesTheWholeFile) {
  const TempFolder folder;
  DesignForm on;
  on.Add(u"CLabel");
  EXPECT_TRUE(on.form->Save(folder.Put("a.frm", "; mine\r\n[OTHER]\r\na=b\r\n[ZORDER]\r\nx=1\r\n"), {}));
  const std::string saved = folder.Get("a.frm");
  EXPECT_TRUE(saved.starts_with("[FORM]\r\n"));
  EXPECT_EQ(saved.find("OTHER"), std::string::npos);
  EXPECT_TRUE(saved.ends_with("Container=\r\n[SCRIPT]\r\n\r\n\r\n")) << saved;
}

TEST(Save, KeepsAReadOnlyFileWithoutAnError) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "[FORM]\r\nText=old\r\n");
  ::chmod(folder.File("a.frm").c_str(), 0444);
  DesignForm on;
  EXPECT_TRUE(on.form->Save(file, {}));
  on.Add(u"CLabel");
  EXPECT_TRUE(on.form->Save(file, {}));
  EXPECT_EQ(folder.Get("a.frm"), "[FORM]\r\nText=old\r\n");
}

TEST(Save, OmitsTheControlsOfAFilledFormButNotTheirNumber) {
  const TempFolder folder;
  InputForm on(false);
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_TRUE(on.form->Save(folder.Name("a.frm"), {}));
  const std::string saved = folder.Get("a.frm");
  EXPECT_NE(saved.find("Text=Well inspection\r\n"), std::string::npos);  // as the host has it
  EXPECT_TRUE(
      saved.ends_with("ControlsNumber= 2\r\n[SCRIPT]\r\nVBScript\r\nSub Form_Initialize()\r\nEnd "
                      "Sub\r\n\r\n"))
      << saved;
  EXPECT_EQ(saved.find("CONTROLS_"), std::string::npos);
  EXPECT_EQ(saved.find("ZORDER"), std::string::npos);
  InputForm again;
  EXPECT_TRUE(again.form->Read(folder.Name("a.frm"), {}));
  EXPECT_EQ(again.Names(), "Form");
}

TEST(ProjectSave, OmitsTheControlsOfARealFormToo) {
  const TempFolder folder;
  RealInput on;
  const Text file = folder.Put("a.frm", Example());
  EXPECT_TRUE(on.input->ProjectRead(file));
  EXPECT_EQ(on.input->Controls().Count(), 3);
  EXPECT_TRUE(on.input->ProjectSave(file));
  const std::string saved = folder.Get("a.frm");
  EXPECT_EQ(saved.find("CONTROLS_"), std::string::npos);
  EXPECT_NE(saved.find("ControlsNumber= 2\r\n[SCRIPT]\r\n"), std::string::npos);
}

TEST(ProjectSave, TellsElementsThatASaveIsTemporary) {
  const TempFolder folder;
  RealInput on;
  const auto witness = MakeRef<Witness>();
  on.input->Controls().Add(Variant(Ref<Object>(witness)), Variant(u"witness"));
  EXPECT_TRUE(on.input->ProjectSave(folder.Name("a.frm"), true));
  EXPECT_TRUE(witness->wasTemporary);
  EXPECT_TRUE(on.input->ProjectSave(folder.Name("a.frm")));
  EXPECT_FALSE(witness->wasTemporary);
}

TEST(ProjectRead, PlacesTheButtonsBelowTheForm) {
  const TempFolder folder;
  RealInput on;
  float width = 0, height = 0;
  on.input->Connect([&](std::u16string_view event, Args args) {
    if (event != u"NeedResize") return;
    width = ToSingle(args[0]);
    height = ToSingle(args[1]);
  });
  EXPECT_TRUE(on.input->ProjectRead(folder.Put("a.frm", Example())));
  EXPECT_EQ(width, 4800);
  EXPECT_EQ(height, 2700 + (15 + 30 + 4) * 15);
  EXPECT_FALSE(on.input->ProjectRead(folder.Name("none.frm")));
}

}  // namespace cardwright
