// SPDX-License-Identifier: MIT
#include <map>

#include "designer/DesignerTest.h"

namespace cardwright {
namespace {

using enum ControlTypeEnum;
using MemberTest = DesignerTest;

class FakeBag final : public PropertyBag {
 public:
  Variant ReadProperty(std::u16string_view name, const Variant& fallback) const override {
    const auto found = values.find(std::u16string(name));
    return found == values.end() ? fallback : found->second;
  }
  void WriteProperty(std::u16string_view name, const Variant& value, const Variant& fallback) override {
    values[std::u16string(name)] = value;
    fallbacks.push_back(ToText(fallback).ToUtf8());
  }
  std::map<std::u16string, Variant> values;
  std::vector<std::string> fallbacks;
};

TEST_F(MemberTest, AreListedInDeclaredOrder) {
  Lines names;
  for (const Text& name : designer->MemberNames()) names.push_back(name.ToUtf8());
  EXPECT_EQ(names, (Lines{"SetCtrl",
                          "SetGrid",
                          "Cut",
                          "Copy",
                          "Paste",
                          "Delete",
                          "SetForeground",
                          "SetBackground",
                          "LockUnlock",
                          "SetMenuState",
                          "UserControl_Resize",
                          "GridStep",
                          "GridAlignment",
                          "Controls",
                          "CurrentControl",
                          "ControlTypeToAdd",
                          "hWnd",
                          "ProjectRead",
                          "ProjectSave",
                          "GetThemeName",
                          "GetFeatureType",
                          "SetThemeName",
                          "SetFeatureType",
                          "EnableKeyDelete",
                          "ChangeControlName",
                          "FilterControls",
                          "CenterLeft",
                          "CenterTop",
                          "Parent"}));
  EXPECT_EQ(designer->TypeName(), u"FormDesigner");
}

TEST_F(MemberTest, AreAccessibleByName) {
  LetProperty(*designer, u"controltypetoadd", Variant(5));
  Press(20, 30);
  surface->listener->OnMouseDown(MouseButton::Left, 0, 20, 30);
  const Variant current = GetProperty(*designer, u"CurrentControl");
  EXPECT_EQ(AsControl(current)->UserName(), u"object_1");
  CallMethod(*designer, u"ChangeControlName", {current, Variant(u"lblA")});
  const Variant controls = GetProperty(*designer, u"Controls");
  EXPECT_EQ(ToLong(GetProperty(RequireObject(controls), u"Count")), 2);
  const Variant labels = CallMethod(*designer, u"FilterControls", {Variant(5)});
  EXPECT_EQ(AsControl(GetProperty(RequireObject(labels), u"Item", {Variant(u"LBLA")})), AsControl(current));
  EXPECT_EQ(ToLong(GetProperty(*designer, u"hWnd")), 77);
  EXPECT_EQ(ToText(GetProperty(RequireObject(GetProperty(*designer, u"Parent")), u"Caption")), u"Designer");
  LetProperty(*designer, u"GridStep", Variant(12));
  EXPECT_EQ(ToLong(GetProperty(*designer, u"GridStep")), 12);
  LetProperty(*designer, u"GridAlignment", Variant(true));
  EXPECT_TRUE(designer->GridAlignment());
  CallMethod(*designer, u"SetGrid");
  CallMethod(*designer, u"SetGrid", {Variant(8), Variant(true)});
  CallMethod(*designer, u"SetCtrl", {GetProperty(RequireObject(controls), u"Item", {Variant(1)})});
  EXPECT_EQ(designer->CurrentControl()->UserName(), u"Form");
}

TEST_F(MemberTest, DescribeAFormWithoutControlsInitially) {
  EXPECT_EQ(Names(), "Form");
  EXPECT_EQ(NamesOf(designer->ZList()), "Form");
  EXPECT_EQ(designer->CurrentControl()->UserName(), u"Form");
  EXPECT_EQ(designer->CurrentControl()->BoundObject().get(), designer.get());
  EXPECT_EQ(designer->ControlTypeToAdd(), ctDefault);
  EXPECT_EQ(designer->GridStep(), 8);
  EXPECT_FALSE(designer->GridAlignment());
  EXPECT_TRUE(designer->EnableKeyDelete());
  EXPECT_EQ(Module().formScaleMode, ScaleMode::Pixels);
  EXPECT_EQ(surface->backColor, ToOleColor(SystemColor::ButtonFace));
  EXPECT_EQ(surface->foreColor, ToOleColor(SystemColor::ButtonText));
}

TEST_F(MemberTest, UseTheHostsDefaultColorsIfTheyDiffer) {
  Module().defaultBackColor = 0x101010;
  Module().defaultForeColor = 0xF0F0F0;
  FakeDesignSurface other;
  const Ref<FormDesigner> second = FormDesigner::Create(other);
  EXPECT_EQ(other.backColor, 0x101010);
  EXPECT_EQ(other.foreColor, 0xF0F0F0);
  second->DetachSurface();
}

TEST_F(MemberTest, StoreEnableKeyDeleteInThePropertyBagAsANumber) {
  FakeBag bag;
  designer->SetEnableKeyDelete(false);
  EXPECT_EQ(surface->notified, (std::vector<Text>{u"EnableKeyDelete"}));
  designer->WriteProperties(bag);
  EXPECT_EQ(ToLong(bag.values.at(u"EnableKeyDelete")), 0);
  EXPECT_EQ(bag.fallbacks, (Lines{"1"}));
  designer->SetEnableKeyDelete(true);
  designer->ReadProperties(bag);
  EXPECT_FALSE(designer->EnableKeyDelete());
  designer->ReadProperties(FakeBag());
  EXPECT_TRUE(designer->EnableKeyDelete());
  designer->WriteProperties(bag);
  EXPECT_EQ(ToLong(bag.values.at(u"EnableKeyDelete")), 1);
}

TEST_F(MemberTest, ReadAndWriteThemeAndFeatureType) {
  EXPECT_EQ(designer->GetFeatureType(), FeatureTypeEnum::ftNone);
  EXPECT_EQ(designer->GetThemeName(), u"");
  designer->SetThemeName(u"wells");
  designer->SetFeatureType(FeatureTypeEnum::ftArc);
  EXPECT_EQ(Take(), (Lines{"AttribsList []", "AttribsList []"}));
  EXPECT_EQ(designer->GetThemeName(), u"wells");
  EXPECT_EQ(ToLong(CallMethod(*designer, u"GetFeatureType")), 1);
}

TEST_F(MemberTest, ReturnDefaultsForAnEmptyCollection) {
  designer->Controls().Clear();
  EXPECT_EQ(designer->GetThemeName(), u"");
  EXPECT_EQ(designer->GetFeatureType(), FeatureTypeEnum::ftNone);
  designer->SetThemeName(u"wells");
  designer->SetFeatureType(FeatureTypeEnum::ftPoint);
  EXPECT_FALSE(designer->ProjectRead(folder.Put("a.cwf", "[FORM]\r\n")));
  EXPECT_FALSE(designer->ProjectSave(folder.Name("b.cwf")));
  designer->Delete();
  designer->LockUnlock();
  surface->listener->OnClick();
  surface->Resize(10, 10);
}

TEST_F(MemberTest, FailOrDoNothingAfterTheSurfaceHasEnded) {
  const Ref<IControl> label = Draw(ctLabel, 20, 30, 120, 60);
  designer->DetachSurface();
  EXPECT_EQ(surface->WidgetCount(), 0);
  EXPECT_EQ(surface->listener, nullptr);
  EXPECT_EQ(surface->handles[0]->listener, nullptr);
  surface.reset();
  EXPECT_EQ(label->ParentForm(), nullptr);
  EXPECT_EQ(designer->WindowHandle(), 0);
  EXPECT_EQ(designer->OuterWidth(), 0);
  EXPECT_EQ(designer->Parent(), nullptr);
  designer->SetOuterSize(10, 10);
  designer->Copy();
  designer->Paste();
  designer->Delete();
  designer->CenterLeft();
  designer->SetForeground();
  designer->SetCtrl(label);
  designer->SetForeground();
  designer->Delete();
  designer->ShowHandles(true);
  designer->ShowArrowPointer();
  designer->UserControl_Resize();
  designer->SetEnableKeyDelete(false);
  EXPECT_EQ(ErrorOf([&] { designer->SetGrid(); }), 91);
}

TEST_F(MemberTest, DescribeAnEmptyDesignerAfterTheSurfaceHasEnded) {
  designer->SetThemeName(u"wells");
  designer->SetFeatureType(FeatureTypeEnum::ftArc);
  const Ref<IControl> label = Draw(ctLabel, 20, 30, 120, 60);
  const Ref<Collection> held = designer->ControlCollection();
  const std::string project = folder.File("a.cwf");
  ASSERT_TRUE(designer->ProjectSave(folder.Name("a.cwf")));
  designer->DetachSurface();
  EXPECT_EQ(designer->Controls().Count(), 0);
  EXPECT_TRUE(designer->ZList().empty());
  EXPECT_EQ(designer->CurrentControl(), nullptr);
  EXPECT_TRUE(designer->FilterControls(ctLabel).empty());
  EXPECT_EQ(designer->GetThemeName(), u"");
  EXPECT_EQ(designer->GetFeatureType(), FeatureTypeEnum::ftNone);
  EXPECT_FALSE(designer->ProjectRead(folder.Name("a.cwf")));
  EXPECT_FALSE(designer->ProjectSave(folder.Name("a.cwf")));
  EXPECT_TRUE(std::filesystem::exists(project));
  designer->SetThemeName(u"rivers");
  designer->LockUnlock();
  EXPECT_EQ(held->Count(), 2);
  EXPECT_EQ(label->UserName(), u"object_1");
}

TEST_F(MemberTest, AllowAHandlerToEndTheSurface) {
  for (const char* event : {"ControlNameChanged", "ObjectRemoved", "CurrObjectChanged", "RefreshPropertyList",
                            "MenuStateChanged", "ControlsLocked", "PropertyChanged", "StateChanged"}) {
    FakeDesignSurface own;
    const Ref<FormDesigner> each = FormDesigner::Create(own);
    each->Connect([&](std::u16string_view raised, Args) {
      if (Text(raised).ToUtf8() == event) each->DetachSurface();
    });
    each->SetControlTypeToAdd(ctAttributeSelector);
    own.listener->OnMouseUp(MouseButton::Left, 0, 50, 50);
    const Ref<IControl> control = each->CurrentControl();
    if (control) BestEffort([&] { each->ChangeControlName(control, u"chosen"); });
    BestEffort([&] { each->Copy(); });
    BestEffort([&] { each->Paste(); });
    BestEffort([&] { each->LockUnlock(); });
    BestEffort([&] { each->CenterLeft(); });
    BestEffort([&] { each->Delete(); });
    EXPECT_EQ(each->GetSurface(), nullptr) << event;
    EXPECT_EQ(each->Controls().Count(), 0) << event;
    EXPECT_EQ(own.screenPointers.back(), 0) << event;
  }
}

TEST_F(MemberTest, AllowAHandlerToEndTheSurfaceAtAPressOnAControl) {
  for (const int button : {MouseButton::Left, MouseButton::Right}) {
    FakeDesignSurface own;
    const Ref<FormDesigner> each = FormDesigner::Create(own);
    each->Place({.type = ctFrame, .rectangle = {10, 10, 100, 80}, .container = {}, .source = nullptr});
    const Ref<IControl> frame = each->CurrentControl();
    each->SetCtrl(ControlsOf(each->Controls())[0]);
    each->SetControlTypeToAdd(button == MouseButton::Left ? ctLabel : ctDefault);
    each->Connect([&](std::u16string_view, Args) { each->DetachSurface(); });
    BestEffort([&] { FakeDesignSurface::At(WidgetOf(*frame)).listener->OnMouseDown(button, 0, 5, 5); });
    EXPECT_EQ(each->GetSurface(), nullptr);
    EXPECT_FALSE(each->IsBusy());
    EXPECT_FALSE(Module().designDragging);
  }
}

TEST_F(MemberTest, DescribeAnEmptyDesignerAfterAPasteEndedTheSurface) {
  Draw(ctLabel, 20, 30, 120, 60);
  designer->Copy();
  onEvent = [&](std::string_view event) {
    if (event == "PropertyChanged") designer->DetachSurface();
  };
  designer->Paste();
  EXPECT_EQ(designer->Controls().Count(), 0);
  EXPECT_EQ(designer->CurrentControl(), nullptr);
  EXPECT_TRUE(designer->ZList().empty());
  EXPECT_EQ(surface->screenPointers.back(), 0);
}

}  // namespace
}  // namespace cardwright
