// SPDX-License-Identifier: MIT
// A form project byte by byte: what is read, and what is written from it.

#include "cardwright/model/CItems.h"
#include "cardwright/platform/Picture.h"
#include "model/Forms.h"
#include "model/ProjectTexts.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

/// What a designer saves of a project that it has read. Each save adds a line break to the script.
std::string Resaved(const TempFolder& folder, const std::string& project) {
  DesignForm on;
  const Text file = folder.Put("in.frm", project);
  EXPECT_TRUE(on.form->Read(file, {}));
  EXPECT_TRUE(on.form->Save(folder.Name("out.frm"), {}));
  return folder.Get("out.frm");
}

std::string Numbered(std::string text, const std::string& from, int number) {
  for (std::size_t at; (at = text.find(from)) != std::string::npos;)
    text.replace(at, from.size(), std::to_string(number));
  return text;
}

}  // namespace

TEST(Project, IsSavedAsReadWithOneMoreLineBreakInTheScript) {
  const TempFolder folder;
  EXPECT_EQ(Resaved(folder, Example()), Example() + "\r\n");
  EXPECT_EQ(Resaved(folder, Example() + "\r\n"), Example() + "\r\n\r\n");
}

TEST(Project, NotifiesTheDesignerInOrderWhileReading) {
  const TempFolder folder;
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_EQ(
      on.owner->Take(),
      "scale and grid; events suspended; grid; events resumed; NeedResize 4800 x 2700; RefreshPropertyList");
  EXPECT_EQ(on.Names(), "Form, lblDepth, txtDepth");
  EXPECT_EQ(Module().formScaleMode, ScaleMode::Twips);
  EXPECT_EQ(Module().scriptLanguage, u"VBScript");
  EXPECT_EQ(Module().scriptContent, u"Sub Form_Initialize()\r\nEnd Sub\r\n");
  EXPECT_EQ(on.window.windowTitle(), "Well inspection");
  EXPECT_EQ(on.surface.Width(), 4800);
  EXPECT_EQ(on.canvas->size(), QSize(320, 180));

  const auto text = on.Find(u"txtDepth");
  EXPECT_EQ(text->Name(), u"object_2");
  EXPECT_EQ(text->Left(), 1560);
  EXPECT_EQ(NativeOf(*text).geometry(), QRect(104, 16, 160, 19));
  EXPECT_EQ(TextOf(*text, u"InputType"), u"Float");
  EXPECT_EQ(TextOf(*text, u"MinusSignEnabled"), u"False");
  EXPECT_EQ(text->ParentForm(), on.owner.get());
  EXPECT_EQ(TextOf(*on.form, u"ThemeName"), u"wells");
  EXPECT_EQ(ToLong(on.form->PropertyValue(u"ShowMenu")), 1);
}

TEST(Project, RestoresTheZOrderInTheOrderOfItsSection) {
  const TempFolder folder;
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example()), {}));
  EXPECT_EQ(on.Find(u"txtDepth")->ZOrder(), 1);
  EXPECT_EQ(on.Find(u"lblDepth")->ZOrder(), 0);
  EXPECT_EQ(on.form->ZOrder(), 0);
  const QObjectList& children = on.canvas->children();
  EXPECT_LT(children.indexOf(&NativeOf(*on.Find(u"txtDepth"))),
            children.indexOf(&NativeOf(*on.Find(u"lblDepth"))));
  std::string list;
  for (const Ref<IControl>& control : on.owner->ZList()) list += control->UserName().ToUtf8() + ".";
  EXPECT_EQ(list, "Form.lblDepth.txtDepth.");
}

TEST(Project, IgnoresTheZOrderOfUnknownControls) {
  const TempFolder folder;
  std::string project = Example();
  project.replace(project.find("[ZORDER]"), 8, "[ZORDER]\r\ngone= 1\r\nLBLDEPTH= 7");
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", project), {}));
  EXPECT_EQ(on.owner->ZList().size(), 4U);  // a name that is listed twice counts twice
  EXPECT_EQ(on.owner->ZList().front()->UserName(), u"lblDepth");
  EXPECT_EQ(on.Find(u"lblDepth")->ZOrder(), 7);  // the first of the two entries
}

TEST(Project, StoresEveryClassInItsScale) {
  const TempFolder folder;
  for (const int scale : {1, 3}) {
    const std::string project = EveryClass(scale);
    EXPECT_EQ(Resaved(folder, project), project + "\r\n") << "scale " << scale;
  }
}

TEST(Project, KeepsOtherScaleModesAndTreatsThemAsPixels) {
  const TempFolder folder;
  const std::string project = EveryClass(7);
  EXPECT_EQ(Resaved(folder, project), project + "\r\n");
}

TEST(Project, RestoresTheContentsOfFrames) {
  const TempFolder folder;
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", EveryClass(3)), {}));
  EXPECT_EQ(on.Names(), "Form, fra, lbl, chk, opt, txt, mul, cbo, lst, cmd, res, thm, att, fnt, col");
  EXPECT_EQ(NativeOf(*on.Find(u"opt")).parentWidget(), &NativeOf(*on.Find(u"fra")));
  EXPECT_EQ(on.Find(u"opt")->GetFont()->Values(),
            (FontValues{.name = u"Arial", .size = 12.5, .bold = true, .strikethrough = true}));
  EXPECT_EQ(on.Find(u"cbo")->Value(), u"2");
}

TEST(Project, IsReadAlikeInEveryLocale) {
  const TempFolder folder;
  const std::string project = EveryClass(3);
  for (const auto locale : {u"de-DE", u"en-US", u"it-IT"}) {
    ASSERT_TRUE(Locale::Find(locale));
    const InLocale in(locale);
    EXPECT_EQ(Resaved(folder, project), project + "\r\n") << Text(locale).ToUtf8();
  }
}

TEST(Project, AcceptsDecimalCommas) {
  const TempFolder folder;
  std::string project = Replaced(EveryClass(3), "Width= 100.5\r\n", "Width=100,5\r\n");
  project = Replaced(project, "FontSize= 8.25\r\n", "FontSize=8,25\r\n");
  EXPECT_EQ(Resaved(folder, project), EveryClass(3) + "\r\n");
}

TEST(Project, AcceptsKeysInAnyOrderAndCase) {
  const TempFolder folder;
  const std::string project = Crlf(R"([controls_1]
container=
HEIGHT= 20
width= 100
TYPE=LABEL
text=Depth
username=lbl
name=object_9
[form]
controlsnumber= 1
HEIGHT= 150
Width= 200
text=Title
scalemode= 3
)");
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", project), {}));
  EXPECT_EQ(on.Names(), "Form, lbl");
  EXPECT_EQ(on.Find(u"lbl")->Name(), u"object_9");
  EXPECT_EQ(on.Find(u"lbl")->Width(), 100);
  EXPECT_EQ(on.surface.Width(), 200);
  EXPECT_EQ(on.surface.Height(), 150);
}

TEST(Project, UsesDefaultsForMissingKeys) {
  const TempFolder folder;
  DesignForm on;
  on.window.setWindowTitle("As before");
  on.surface.SetBackColor(255);
  LetProperty(*on.surface.GetFont(), u"Bold", true);
  EXPECT_TRUE(
      on.form->Read(folder.Put("a.frm", "[FORM]\r\nControlsNumber=2\r\n[CONTROLS_1]\r\nType=label\r\n"), {}));
  EXPECT_EQ(Module().formScaleMode, ScaleMode::Twips);
  EXPECT_EQ(on.surface.BackColor(), 255);
  EXPECT_TRUE(on.surface.GetFont()->Values().bold);
  EXPECT_EQ(on.window.windowTitle(), "As before");
  EXPECT_EQ(on.canvas->size(), QSize(400, 300));
  EXPECT_EQ(TextOf(*on.form, u"StartMode"), u"Always");
  EXPECT_EQ(ToLong(on.form->PropertyValue(u"FeatureType")), -1);
  EXPECT_EQ(TextOf(*on.form, u"ThemeName"), u"");
  EXPECT_EQ(on.Names(), "Form, object_2");  // named after the number of its section plus one
  EXPECT_EQ(Module().scriptContent, u"");
  EXPECT_EQ(Module().scriptLanguage, u"");
}

TEST(Project, MayBeAnEmptyForm) {
  const TempFolder folder;
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", "[FORM]\r\nControlsNumber=0\r\n"), {}));
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", ""), {}));
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", "any other text"), {}));
  EXPECT_EQ(on.Names(), "Form");
}

TEST(Project, HasItsScriptAfterTheFirstMarker) {
  const TempFolder folder;
  const std::string script = "\r\n' comment\r\n[SCRIPT]\r\n[FORM]\r\nText=no title\r\n";
  const std::string project = "[FORM]\r\nText=Title\r\nControlsNumber=0\r\n[script]\r\njscript" + script;
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", project), {}));
  EXPECT_EQ(Module().scriptLanguage, u"jscript");
  EXPECT_EQ(Module().scriptContent, Text::FromUtf8(script.substr(2)));
  EXPECT_EQ(on.window.windowTitle(), "Title");
}

TEST(Project, KeepsOnlyTheFirstLineOfAText) {
  const TempFolder folder;
  const Text file = folder.Name("a.frm");
  {
    DesignForm on;
    const auto box = on.Add(u"CTextBoxMultiline");
    box->SetPropertyValue(u"Text", u"one\r\ntwo");
    EXPECT_TRUE(on.form->Save(file, {}));
  }
  EXPECT_NE(folder.Get("a.frm").find("Text=one\r\ntwo\r\n"), std::string::npos);
  DesignForm on;
  EXPECT_TRUE(on.form->Read(file, {}));
  EXPECT_EQ(on.Find(u"a")->DisplayText(), u"one");
}

TEST(Project, LosesTheZOrderOfANameWithAnEqualsSign) {
  const TempFolder folder;
  const Text file = folder.Name("a.frm");
  {
    DesignForm on;
    const auto box = on.Add(u"CTextBox", u"a=b", u"object_1");
    box->SetZOrder(1);
    on.owner->AppendToZList(box);
    EXPECT_TRUE(on.form->Save(file, {}));
  }
  DesignForm on;
  EXPECT_TRUE(on.form->Read(file, {}));
  EXPECT_EQ(on.Names(), "Form, a=b");
  EXPECT_EQ(on.Find(u"a=b")->ZOrder(), 0);
  EXPECT_TRUE(on.owner->ZList().empty());
}

TEST(Project, TruncatesALongValueOnReading) {
  const TempFolder folder;
  const Text file = folder.Name("a.frm");
  const std::u16string text(100 * 1024, u'x');
  {
    DesignForm on;
    on.Add(u"CTextBoxMultiline")->SetPropertyValue(u"Text", Text(text));
    EXPECT_TRUE(on.form->Save(file, {}));
  }
  EXPECT_GT(folder.Get("a.frm").size(), text.size());
  DesignForm on;
  EXPECT_TRUE(on.form->Read(file, {}));
  EXPECT_EQ(on.Find(u"a")->DisplayText().Size(), 8191U);
}

TEST(Project, KeepsTheCharactersOfItsCodePage) {
  const TempFolder folder;
  const std::string project = Replaced(Example(), "Text=Depth\r\n", "Text=Profondit\xE0 \x80\r\n");
  EXPECT_EQ(Resaved(folder, project), project + "\r\n");
  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", project), {}));
  EXPECT_EQ(on.Find(u"lblDepth")->DisplayText(), u"Profondit\u00E0 \u20AC");
}

TEST(Project, StoresItsIconAfterTheFormsSection) {
  const TempFolder folder;
  std::string image = "[FORM_IMAGE]\r\n";
  for (int i = 0; i < 256; ++i) image += "p" + std::to_string(i) + "= " + std::to_string(i * 257) + "\r\n";
  std::string project = Example();
  project.insert(project.find("[CONTROLS_1]"), image);
  EXPECT_EQ(Resaved(folder, project), project + "\r\n");

  DesignForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", project), {}));
  const auto* picture = dynamic_cast<Picture*>(on.form->PropertyValue(u"Image").ObjectPtr());
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Width(), 16);
  EXPECT_EQ(picture->Pixels()[3], 771);
  on.form->SetPropertyValue(u"Image", Ref<Picture>());
  EXPECT_TRUE(on.form->Save(folder.Name("a.frm"), {}));
  EXPECT_EQ(folder.Get("a.frm").find("FORM_IMAGE"), std::string::npos);
}

TEST(Project, HasNoIconIfItsColorsSumUpToANegativeNumber) {
  const TempFolder folder;
  InputForm on;
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example() + "[FORM_IMAGE]\r\np0= 200\r\n"), {}));
  EXPECT_EQ(on.form->PropertyValue(u"Image").ObjectPtr(), nullptr);
  EXPECT_TRUE(on.form->Read(folder.Put("a.frm", Example() + "[FORM_IMAGE]\r\np0= 255\r\n"), {}));
  EXPECT_NE(on.form->PropertyValue(u"Image").ObjectPtr(), nullptr);
}

TEST(Project, CountsOnlyTheControlsThatItCouldRead) {
  const TempFolder folder;
  const std::string project = Replaced(Example(), "Type=Label\r\n", "Type=DbTableViewer\r\n");
  const std::string saved = Resaved(folder, project);
  EXPECT_NE(saved.find("ControlsNumber= 1\r\n[CONTROLS_1]\r\nType=TextBox\r\n"), std::string::npos) << saved;
  EXPECT_EQ(saved.find("CONTROLS_2"), std::string::npos);
  EXPECT_NE(saved.find("[ZORDER]\r\nForm= 0\r\ntxtDepth= 1\r\n[SCRIPT]\r\n"), std::string::npos);
}

TEST(Project, CountsTheControlsOfTheForm) {
  const TempFolder folder;
  std::string project = Example();
  const std::string label = project.substr(project.find("[CONTROLS_1]"),
                                           project.find("[CONTROLS_2]") - project.find("[CONTROLS_1]"));
  std::string sections, stacking;
  for (int i = 1; i <= 200; ++i) {
    sections +=
        Numbered(Replaced(Replaced(Replaced(label, "CONTROLS_1", "CONTROLS_#"), "object_1", "object_#"),
                          "lblDepth", "lbl#"),
                 "#", i);
    stacking += "lbl" + std::to_string(i) + "= 0\r\n";
  }
  project = "[FORM]" + project.substr(6, project.find("ControlsNumber") - 6) + "ControlsNumber= 200\r\n" +
            sections + "[ZORDER]\r\nForm= 0\r\n" + stacking + project.substr(project.find("[SCRIPT]"));
  EXPECT_EQ(Resaved(folder, project), project + "\r\n");
}

}  // namespace cardwright
