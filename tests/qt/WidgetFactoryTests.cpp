// SPDX-License-Identifier: MIT
#include "cardwright/platform/SelectorWidgets.h"
#include "qt/Form.h"

namespace cardwright::qt {

struct KindCase {
  const char16_t* identifier;
  const char16_t* typeName;
  const char* toolkitClass;
  OleColor backColor;
  OleColor foreColor;
};

void PrintTo(const KindCase& kind, std::ostream* out) { *out << Text(kind.typeName).ToUtf8(); }

class EveryKind : public testing::TestWithParam<KindCase> {};

constexpr OleColor kFace = ToOleColor(SystemColor::ButtonFace),
                   kFaceText = ToOleColor(SystemColor::ButtonText), kField = ToOleColor(SystemColor::Window),
                   kFieldText = ToOleColor(SystemColor::WindowText);

INSTANTIATE_TEST_SUITE_P(
    , EveryKind,
    testing::Values(
        KindCase{u"vb.label", u"Label", "QLabel", kFace, kFaceText},
        KindCase{u"VB.Frame", u"Frame", "QGroupBox", kFace, kFaceText},
        KindCase{u"VB.CommandButton", u"CommandButton", "QPushButton", kFace, kFaceText},
        KindCase{u"vb.checkbox", u"CheckBox", "QCheckBox", kFace, kFaceText},
        KindCase{u"vb.OPTIONBUTTON", u"OptionButton", "QRadioButton", kFace, kFaceText},
        KindCase{u"vb.textbox", u"TextBox", "QLineEdit", kField, kFieldText},
        KindCase{u"cardwrightctrl.multilinetextbox", u"MultilineTextBox", "QPlainTextEdit", kField,
                 kFieldText},
        KindCase{u"VB.ComboBox", u"ComboBox", "QComboBox", kField, kFieldText},
        KindCase{u"mscomctllib.listviewctrl.2", u"ListView", "QTreeWidget", kField, kFieldText},
        KindCase{u"cardwrightctrl.resourceselector", u"ResourceSelector", "QWidget", kField, kFieldText},
        KindCase{u"CardwrightCtrl.ThemeSelector", u"ThemeSelector", "QComboBox", kField, kFieldText},
        KindCase{u"CardwrightCtrl.ATTRIBUTESELECTOR", u"AttributeSelector", "QComboBox", kField, kFieldText},
        KindCase{u"CardwrightCtrl.FontSelector", u"FontSelector", "QWidget", kField, kFieldText},
        KindCase{u"CardwrightCtrl.ColorSelector", u"ColorSelector", "QWidget", kFace, kFaceText}));

TEST_P(EveryKind, StartsHiddenWithTheColoursOfItsKind) {
  Form form;
  const Ref<Widget> widget = form.surface.Add(GetParam().identifier, u"object_1", nullptr);
  EXPECT_EQ(widget->TypeName(), GetParam().typeName);
  EXPECT_TRUE(NativeOf(*widget).inherits(GetParam().toolkitClass));
  EXPECT_EQ(widget->Name(), u"object_1");
  EXPECT_FALSE(widget->IsVisible());
  EXPECT_TRUE(widget->IsEnabled());
  EXPECT_EQ(widget->BackColor(), GetParam().backColor);
  EXPECT_EQ(widget->ForeColor(), GetParam().foreColor);
  EXPECT_EQ(widget->Tag(), u"");
  EXPECT_FALSE(widget->Container());
  EXPECT_FALSE(widget->Parent());

  form.Show();
  EXPECT_FALSE(NativeOf(*widget).isVisible());
  widget->SetVisible(true);
  EXPECT_TRUE(NativeOf(*widget).isVisible());
}

TEST_P(EveryKind, CostsNoPaletteAndNoFontWhileItLooksLikeTheOthers) {
  Form form;
  const Ref<Widget> widget = form.surface.Add(GetParam().identifier, u"a", nullptr);
  EXPECT_FALSE(NativeOf(*widget).testAttribute(Qt::WA_SetPalette));
  EXPECT_FALSE(NativeOf(*widget).testAttribute(Qt::WA_SetFont));
  EXPECT_EQ(NativeOf(*widget).font(), form.canvas->font());
}

TEST_P(EveryKind, FailsWithObjectNotSetOnceItIsRemoved) {
  Form form;
  const Ref<Widget> widget = form.surface.Add(GetParam().identifier, u"a", nullptr);
  const QPointer<QWidget> native(&NativeOf(*widget));
  form.surface.Remove(u"A");
  EXPECT_FALSE(native);
  EXPECT_FALSE(form.surface.Find(u"a"));

  EXPECT_EQ(ErrorOf([&] { widget->Name(); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->Left(); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->Move(1, 2, 3, 4); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->SetBackColor(0); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->GetFont(); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->DisplayText(); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->SetDisplayText(u"x"); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->SetVisible(true); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->SetTag(u"x"); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->SetFocus(); }), 91);
  EXPECT_EQ(ErrorOf([&] { widget->Refresh(); }), 91);
  widget->SetListener(nullptr);
}

TEST_P(EveryKind, SurvivesItsToolkitWidget) {
  Form form;
  const Ref<Widget> widget = form.surface.Add(GetParam().identifier, u"a", nullptr);
  delete &NativeOf(*widget);
  EXPECT_EQ(ErrorOf([&] { widget->SetDisplayText(u"x"); }), 91);
  EXPECT_FALSE(form.surface.Find(u"a"));
  EXPECT_TRUE(form.surface.Add(GetParam().identifier, u"a", nullptr));
}

TEST_P(EveryKind, HoldsItsTextAndItsTagAsTheyWereSet) {
  Form form;
  const Ref<Widget> widget = form.surface.Add(GetParam().identifier, u"a", nullptr);
  widget->SetTag(u"12");
  EXPECT_EQ(widget->Tag(), u"12");
  if (widget->TypeName() == u"ListView") {
    EXPECT_EQ(widget->DisplayText(), u"");
    EXPECT_EQ(ErrorOf([&] { widget->SetDisplayText(u"x"); }), 438);
    return;
  }
  const bool isChooser =
      dynamic_cast<SelectorWidget*>(widget.get()) && widget->TypeName() != u"ResourceSelector";
  if (isChooser) return;  // their texts come from what is chosen
  if (auto* combo = dynamic_cast<ComboWidget*>(widget.get())) combo->SetEditable(true);
  const Text text = u"&Tom && J\u00E9r\u00F4me\u00A0\U0001F600";
  widget->SetDisplayText(text);
  EXPECT_EQ(widget->DisplayText(), text);
}

TEST(Surface, RefusesANameThatExistsInAnyCase) {
  Form form;
  form.Add(u"vb.label", u"Object_1");
  EXPECT_EQ(ErrorOf([&] { form.surface.Add(u"vb.textbox", u"OBJECT_1", nullptr); }), 727);
  EXPECT_EQ(form.surface.Find(u"object_1")->TypeName(), u"Label");
  form.surface.Remove(u"oBJECT_1");
  EXPECT_EQ(ErrorOf([&] { form.surface.Add(u"vb.textbox", u"OBJECT_1", nullptr); }), 0);
}

TEST(Surface, RefusesAnUnknownIdentifier) {
  Form form;
  for (const auto* identifier : {u"", u"vb.", u"vb.image", u"CardwrightCtrl.TableViewer"}) {
    EXPECT_EQ(ErrorOf([&] { form.surface.Add(identifier, u"a", nullptr); }), 429);
  }
  EXPECT_FALSE(form.surface.Find(u"a"));
  EXPECT_TRUE(form.canvas->children().isEmpty());
}

TEST(Surface, TakesOnlyFramesAsContainers) {
  Form form;
  const Ref<Widget> frame = form.Add(u"vb.frame", u"box");
  const Ref<Widget> inner = form.Add(u"vb.label", u"inner", frame.get());
  EXPECT_TRUE(inner->Container() == frame);
  EXPECT_EQ(NativeOf(*inner).parentWidget(), &NativeOf(*frame));
  EXPECT_EQ(ErrorOf([&] { form.surface.Add(u"vb.label", u"b", inner.get()); }), 5);
}

TEST(Surface, RemovesAFrameWithWhatItContains) {
  Form form;
  const Ref<Widget> frame = form.Add(u"vb.frame", u"box");
  const Ref<Widget> nested = form.Add(u"vb.frame", u"nested", frame.get());
  const Ref<Widget> inner = form.Add(u"vb.label", u"inner", nested.get());
  form.surface.Remove(u"box");
  EXPECT_FALSE(form.surface.Find(u"nested"));
  EXPECT_FALSE(form.surface.Find(u"inner"));
  EXPECT_EQ(ErrorOf([&] { inner->Name(); }), 91);
  EXPECT_EQ(ErrorOf([&] { form.surface.Add(u"vb.label", u"x", frame.get()); }), 91);
  form.surface.Remove(u"box");  // ignored
}

TEST(Surface, SetControlGivesWidgetsTheirParent) {
  Form form;
  const Ref<Object> control = MakeRef<Font>();
  form.surface.SetControl(control.get());
  EXPECT_TRUE(form.Add(u"vb.label", u"a")->Parent() == control);
}

}  // namespace cardwright::qt
