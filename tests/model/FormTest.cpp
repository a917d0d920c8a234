// SPDX-License-Identifier: MIT
// The form object itself; its project file has tests of its own.

#include "cardwright/platform/Picture.h"
#include "model/AnsweringHost.h"
#include "model/Forms.h"

namespace cardwright {
TEST(CForm, HasNoPositionAndNoForeColor) {
  DesignForm on;
  on.form->SetLeft(3);
  on.form->SetTop(3);
  on.form->SetForeColor(3);
  EXPECT_EQ(on.form->Left(), 0);
  EXPECT_EQ(on.form->Top(), 0);
  EXPECT_EQ(on.form->ForeColor(), 0);
  on.form->SetZOrder(1);
  EXPECT_EQ(on.form->ZOrder(), 0);
  on.form->Delete();
  on.form->Refresh();
  EXPECT_EQ(on.form->AttributeName(), u"");
  EXPECT_EQ(on.owner->Take(), "");
}

TEST(CForm, HasTheNameThatWasSet) {
  DesignForm on;
  EXPECT_EQ(on.form->Name(), u"Form");
  EXPECT_EQ(on.form->UserName(), u"Form");
  on.form->SetName(u"Other");
  EXPECT_EQ(on.form->Name(), u"Other");
  EXPECT_TRUE(on.form->PropertyValue(u"Name").IsEmpty());
}

TEST(CForm, ReturnsTheDesignerAsItsObject) {
  DesignForm design;
  design.form->BindObject(MakeRef<CForm>());
  EXPECT_EQ(design.form->BoundObject(), design.owner.get());
  EXPECT_EQ(design.form->ParentForm(), design.owner.get());
  InputForm input;
  EXPECT_FALSE(input.form->BoundObject());
  EXPECT_EQ(input.form->ParentForm(), input.owner.get());
}

TEST(CForm, ResizesTheDesignerAndRaisesPropertyChanged) {
  DesignForm on;
  on.form->SetWidth(320);
  on.form->SetHeight(200);
  EXPECT_EQ(on.owner->Take(), "PropertyChanged 3 320; PropertyChanged 4 200");
  EXPECT_EQ(on.surface.Width(), 320);
  EXPECT_EQ(on.form->Width(), 320);
  EXPECT_EQ(on.form->Height(), 200);
}

TEST(CForm, ResizesTheDesignerByRowsWithoutPropertyChanged) {
  DesignForm on;
  on.form->SetPropertyValue(u"Width", 310);
  on.form->SetPropertyValue(u"Height", 210);
  EXPECT_EQ(on.owner->Take(), "");
  EXPECT_EQ(on.surface.Width(), 310);
  EXPECT_EQ(on.surface.Height(), 210);
}

TEST(CForm, CannotBeResizedWhileItIsFilledIn) {
  InputForm on;
  on.form->SetWidth(320);
  on.form->SetPropertyValue(u"Height", 20);
  EXPECT_EQ(on.surface.Width(), 400);
  EXPECT_EQ(on.surface.Height(), 300);
  EXPECT_EQ(on.form->Width(), 400);
}

TEST(CForm, ShowsTheHostsSizeInItsRows) {
  DesignForm design;
  EXPECT_EQ(ToSingle(design.form->PropertyValue(u"Width")), 500);  // pixels of the window
  design.surface.SetScale(ScaleMode::Twips);
  EXPECT_EQ(ToSingle(design.form->PropertyValue(u"Height")), 6000);
  InputForm input;
  EXPECT_EQ(ToSingle(input.form->PropertyValue(u"Width")), 7500);  // the window counts in twips
  InputForm alone(false);
  EXPECT_EQ(ToSingle(alone.form->PropertyValue(u"Width")), 400);
  DesignForm aloneInDesign(false);
  EXPECT_EQ(ToSingle(aloneInDesign.form->PropertyValue(u"Width")), 0);
}

TEST(CForm, SetsTheTitleOfTheHostsWindow) {
  DesignForm on;
  on.form->SetPropertyValue(u"Text", u"Wells");
  EXPECT_EQ(on.window.windowTitle(), "Wells");
  EXPECT_EQ(TextOf(*on.form, u"Text"), u"Wells");
  EXPECT_EQ(on.form->DisplayText(), u"Wells");
  EXPECT_EQ(on.form->Value(), u"Wells");
  DesignForm alone(false);
  alone.form->SetPropertyValue(u"Text", u"Wells");
  EXPECT_EQ(TextOf(*alone.form, u"Text"), u"");
}

TEST(CForm, PassesItsTitleToTheHostWhileItIsFilledIn) {
  InputForm on;
  on.window.setWindowTitle("Host");
  on.form->SetPropertyValue(u"Text", u"Wells");
  EXPECT_EQ(on.owner->Take(), "SetParentCaption Wells");
  EXPECT_EQ(TextOf(*on.form, u"Text"), u"Host");  // the window's title, not the one that was set
  InputForm alone(false);
  alone.form->SetPropertyValue(u"Text", u"Wells");
  EXPECT_EQ(TextOf(*alone.form, u"Text"), u"Wells");
}

TEST(CForm, RepaintsTheGridOnANewBackground) {
  DesignForm on;
  on.form->SetBackColor(255);
  on.form->SetPropertyValue(u"BackColor", 65280);
  EXPECT_EQ(on.owner->Take(), "grid; grid");
  EXPECT_EQ(on.surface.BackColor(), 65280);
  EXPECT_EQ(on.form->BackColor(), 65280);
  InputForm input;
  input.form->SetPropertyValue(u"BackColor", 255);
  EXPECT_EQ(input.owner->Take(), "");
  EXPECT_EQ(ToLong(input.form->PropertyValue(u"BackColor")), 255);
  const auto nobody = MakeRef<CForm>();
  nobody->SetBackColor(255);
  nobody->SetWidth(3);
  EXPECT_EQ(nobody->BackColor(), 0);
}

TEST(CForm, SetsTheFontNameByAccessorAndTheWholeFontByRow) {
  DesignForm on;
  const Ref<Font> font = MakeRef<Font>(FontValues{.name = u"Arial", .size = 12, .bold = true});
  on.form->SetFont(font);
  EXPECT_EQ(on.surface.GetFont()->Values(), (FontValues{.name = u"Arial", .size = 8.25}));
  on.form->SetPropertyValue(u"Font", font);
  EXPECT_EQ(on.surface.GetFont()->Values(), font->Values());
  EXPECT_EQ(on.form->GetFont(), on.surface.GetFont());
  InputForm input;
  input.form->SetPropertyValue(u"Font", font);
  EXPECT_EQ(input.surface.GetFont()->Values(), FontValues());
}

TEST(CForm, StoresItsRows) {
  InputForm on;
  EXPECT_EQ(TextOf(*on.form, u"StartMode"), u"Always");
  EXPECT_EQ(ToLong(on.form->PropertyValue(u"FeatureType")), -1);
  EXPECT_EQ(ToLong(on.form->PropertyValue(u"ShowMenu")), 0);
  EXPECT_EQ(on.form->PropertyValue(u"Image").ObjectPtr(), nullptr);
  on.form->SetPropertyValue(u"StartMode", u"OnNew");
  on.form->SetPropertyValue(u"FeatureType", u"2");
  on.form->SetPropertyValue(9, 1);  // the hidden row
  const auto image = MakeRef<Picture>(1, 1, std::vector<OleColor>{255});
  on.form->SetPropertyValue(u"Image", image);
  EXPECT_EQ(TextOf(*on.form, u"StartMode"), u"OnNew");
  EXPECT_EQ(on.form->PropertyValue(u"FeatureType").Type(), VarType::Long);
  EXPECT_EQ(ToLong(on.form->PropertyValue(u"FeatureType")), 2);
  EXPECT_EQ(ToLong(on.form->PropertyValue(u"ShowMenu")), 1);
  EXPECT_EQ(on.form->PropertyValue(u"Image").ObjectPtr(), image.get());
  on.form->SetPropertyValue(u"Image", Ref<Picture>());
  EXPECT_EQ(on.form->PropertyValue(u"Image").ObjectPtr(), nullptr);
}

TEST(CForm, ListsTheStartModesForAnyIndex) {
  InputForm on;
  for (const Variant& index : {Variant(u"StartMode"), Variant(0), Variant(u"Nothing"), Variant(99)})
    EXPECT_EQ(on.form->PropertyList(index), (std::vector<Text>{u"OnNew", u"OnUpdate", u"Always"}));
  EXPECT_TRUE(on.form->FilenameFilter(u"image").View().starts_with(u"All image files (*.emf;"));
  EXPECT_EQ(on.form->FilenameFilter(u"Text"), u"");
}

TEST(CForm, ReportsAResizeOnlyWhileItIsSelected) {
  DesignForm on;
  const auto label = on.Add(u"CLabel");
  on.owner->SetCtrl(label);
  on.owner->Take();
  on.form->OnDesignerResized();
  EXPECT_EQ(on.owner->Take(), "");
  on.owner->SetCtrl(on.form);
  on.owner->Take();
  on.form->OnDesignerResized();
  EXPECT_EQ(on.owner->Take(), "PropertyChanged 3 400; PropertyChanged 4 300");
}

TEST(CForm, ListsTheAttributesOfItsThemeForTheGrid) {
  const Connected connection;
  DesignForm on;
  connection.host->answer = u"DEPTH,NAME,OWNER";
  on.form->SetPropertyValue(u"ThemeName", u"wells");
  EXPECT_EQ(connection.host->asked, u"THEME_ATTRIBUTE_NAMES |wells| ||");
  EXPECT_EQ(on.owner->Take(), "AttribsList DEPTH NAME OWNER");
  for (const auto& [type, word] : {std::pair(0, u"POINT"), {1, u"ARC"}, {2, u"POLYGON"}, {7, u""}}) {
    on.form->SetPropertyValue(u"FeatureType", type);
    EXPECT_EQ(connection.host->asked, Text(u"THEME_ATTRIBUTE_NAMES |wells| |") + word + u"|");
  }
  on.owner->Take();
  connection.host->answer = Text();
  on.form->SetPropertyValue(u"FeatureType", -1);
  EXPECT_EQ(on.owner->Take(), "AttribsList");
}

TEST(CForm, RequestsNothingForAnEmptyThemeOrOutsideTheDesigner) {
  const Connected connection;
  DesignForm on;
  on.form->SetPropertyValue(u"ThemeName", u"");
  EXPECT_EQ(on.owner->Take(), "AttribsList");
  InputForm input;
  input.form->SetPropertyValue(u"ThemeName", u"wells");
  EXPECT_EQ(connection.host->asked, u"");
  EXPECT_EQ(TextOf(*input.form, u"ThemeName"), u"wells");
}

TEST(CForm, StartsWithoutAScript) {
  Module().scriptContent = u"Sub Old()";
  Module().scriptLanguage = u"VBScript";
  const auto form = MakeRef<CForm>();
  EXPECT_EQ(Module().scriptContent, u"");
  EXPECT_EQ(Module().scriptLanguage, u"");
}

}  // namespace cardwright
