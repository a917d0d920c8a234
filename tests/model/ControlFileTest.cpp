// SPDX-License-Identifier: MIT
// One control and its section of a project.

#include "cardwright/model/BestEffortSteps.h"
#include "model/Forms.h"
#include "storage/TempFolder.h"

namespace cardwright {
TEST(Read, ChangesNothingForAnEmptySection) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "[CONTROLS_1]\r\n");
  for (const ClassTable* entry : ControlClasses()) {
    DesignForm on;
    const auto control = on.Add(entry->className, u"a", u"object_1");
    WidgetOf(*control).SetVisible(false);
    WidgetOf(*control).Move(10, 20, 130, 40);
    const float height = WidgetOf(*control).Height();
    control->SetBackColor(255);
    EXPECT_TRUE(control->Read(file, u"CONTROLS_1")) << control->TypeName().ToUtf8();
    EXPECT_TRUE(WidgetOf(*control).IsVisible());
    EXPECT_EQ(control->Left(), 10);
    EXPECT_EQ(control->Top(), 20);
    EXPECT_EQ(control->Width(), 130);
    EXPECT_EQ(control->Height(), height);
    EXPECT_EQ(control->BackColor(), control->TypeName() == u"CCommandButton" ? 0 : 255);
    EXPECT_EQ(control->GetFont()->Values(), FontValues());
    EXPECT_EQ(control->UserName(), u"object_1");  // the widget's name is the default
    EXPECT_EQ(WidgetOf(*control).DisplayText(), u"");
  }
}

TEST(Read, FailsWithoutAFile) {
  const TempFolder folder;
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  WidgetOf(*box).SetVisible(false);
  EXPECT_FALSE(box->Read(folder.Name("none.frm"), u"CONTROLS_1"));
  EXPECT_FALSE(WidgetOf(*box).IsVisible());
  EXPECT_FALSE(std::filesystem::exists(folder.File("none.frm")));
}

TEST(Read, SkipsValuesThatDoNotConvert) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm",
                               "[CONTROLS_1]\r\nText=x\r\nBackColor=red\r\nForeColor=2147483663\r\n"
                               "FontName=Arial\r\nFontSize=big\r\nFontBold=perhaps\r\nFontItalic=True\r\n"
                               "FontUnderline=1\r\nLeft=far\r\nTop=12 pixels\r\nWidth=-5\r\nHeight=1e\r\n"
                               "Attribute=DEPTH\r\n");
  DesignForm on;
  const auto label = on.Add(u"CTextBox");
  WidgetOf(*label).Move(10, 20, 130, 40);
  label->SetBackColor(255);
  const OleColor foreColor = label->ForeColor();
  LetProperty(*label->GetFont(), u"Bold", true);
  EXPECT_TRUE(label->Read(file, u"CONTROLS_1"));
  EXPECT_EQ(label->DisplayText(), u"x");
  EXPECT_EQ(label->BackColor(), 255);        // not a number: unchanged
  EXPECT_EQ(label->ForeColor(), foreColor);  // too large: unchanged
  const FontValues font = label->GetFont()->Values();
  EXPECT_EQ(font.name, u"Arial");
  EXPECT_EQ(font.size, 8.25);  // no font has size 0
  EXPECT_TRUE(font.bold);      // not a boolean: unchanged
  EXPECT_TRUE(font.italic);
  EXPECT_TRUE(font.underline);
  EXPECT_EQ(label->Left(), 0);     // not a number: 0
  EXPECT_EQ(label->Top(), 12);     // text after the number is ignored
  EXPECT_EQ(label->Width(), 130);  // not a valid width: unchanged
  EXPECT_EQ(label->Height(), 1);
  EXPECT_EQ(label->AttributeName(), u"DEPTH");
}

TEST(Read, ReadsAnEmptyValueAsEmptyNotAsMissing) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm",
                               "[CONTROLS_1]\r\nText=\r\nBackColor=\r\nLeft=\r\nFontBold=\r\nUserName=\r\n"
                               "IsNeeded=\r\n");
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  WidgetOf(*box).Move(10, 20, 130, 40);
  WidgetOf(*box).SetDisplayText(u"old");
  LetProperty(*box->GetFont(), u"Bold", true);
  EXPECT_TRUE(box->Read(file, u"CONTROLS_1"));
  EXPECT_EQ(box->DisplayText(), u"");
  EXPECT_EQ(box->BackColor(), 0);
  EXPECT_EQ(box->Left(), 0);
  EXPECT_FALSE(box->GetFont()->Values().bold);
  EXPECT_EQ(box->UserName(), u"");
  EXPECT_EQ(TextOf(*box, u"IsNeeded"), u"");
}

TEST(Read, AcceptsKeysInAnyOrderAndCase) {
  const TempFolder folder;
  const Text file = folder.Put(
      "a.frm", "[controls_1]\r\ninputtype=Float\r\nHEIGHT=50\r\nusername=txt\r\nTOP= 7\r\nleft=1,5\r\n");
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  EXPECT_TRUE(box->Read(file, u"CONTROLS_1"));
  EXPECT_EQ(box->UserName(), u"txt");
  EXPECT_EQ(TextOf(*box, u"InputType"), u"Float");
  EXPECT_EQ(box->Height(), 50);
  EXPECT_EQ(box->Top(), 7);
  EXPECT_EQ(box->Left(), 1.5F);
}

TEST(BestEffortSteps, FailsOnlyIfTheLastErrorIsMinusOne) {
  BestEffortSteps step;
  int run = 0;
  step([&] { Raise(ErrorNumber::TypeMismatch); });
  step([&] { ++run; });
  EXPECT_EQ(run, 1);
  EXPECT_TRUE(step.Result());
  step([&] { Raise(-1); });
  step([&] { ++run; });
  EXPECT_EQ(run, 2);
  EXPECT_FALSE(step.Result());
  step([&] { Raise(ErrorNumber::Overflow); });
  EXPECT_TRUE(step.Result());
}

TEST(Save, WritesNothingOutsideTheDesigner) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "");
  InputForm on;
  for (const ClassTable* entry : ControlClasses()) {
    const auto control = on.Add(entry->className, entry->className, entry->className);
    EXPECT_FALSE(control->Save(file, u"CONTROLS_1")) << control->TypeName().ToUtf8();
  }
  EXPECT_EQ(folder.Get("a.frm"), "");
}

TEST(Save, WritesTheKeysInOrderWithTheContainerLast) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "");
  DesignForm on;
  const auto frame = on.Add(u"CFrame", u"fra", u"object_1");
  const Ref<Widget> widget = on.surface.Add(u"vb.label", u"object_2", &WidgetOf(*frame));
  const Ref<Control> label = FindControlClass(u"Label")->create();
  label->BindObject(widget);
  label->SetParentForm(on.owner);
  label->SetName(u"lbl");
  widget->Move(8, 16, 100.5F, 20);
  widget->SetDisplayText(u"Depth");
  label->SetBackColor(-2147483633);
  label->SetForeColor(255);
  LetProperty(*label->GetFont(), u"Italic", true);
  EXPECT_TRUE(label->Save(file, u"CONTROLS_1"));
  EXPECT_EQ(folder.Get("a.frm"),
            "[CONTROLS_1]\r\nType=Label\r\nName=object_2\r\nUserName=lbl\r\nText=Depth\r\n"
            "BackColor=-2147483633\r\nFontName=MS Sans Serif\r\nFontSize= 8.25\r\nFontBold= 0\r\n"
            "FontItalic= 1\r\nFontUnderline= 0\r\nFontStrikethrough= 0\r\nLeft= 8\r\nTop= 16\r\n"
            "Width= 100.5\r\nHeight= 20\r\nForeColor= 255\r\nContainer=object_1\r\n");
  EXPECT_FALSE(label->Save(folder.Name("none.frm"), u"CONTROLS_1"));
  label->ForgetOwner();
}

}  // namespace cardwright
