// SPDX-License-Identifier: MIT
#include "cardwright/qt/AccessibleNames.h"

#include <QAccessible>
#include <QTemporaryDir>
#include <fstream>

#include "Form.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {
namespace {

/// A form that is filled in while a screen reader listens.
class AccessibleNames : public ::testing::Test {
 protected:
  AccessibleNames() { QAccessible::setActive(true); }
  ~AccessibleNames() override { QAccessible::setActive(false); }

  /// A control by its type, its name, its keys and its box in pixels.
  void Add(const char* type, const std::string& name, const std::string& text, QRect box,
           const std::string& more = {}) {
    const std::string number = std::to_string(++m_Count);
    m_Controls += "[CONTROLS_" + number + "]\r\nType=" + type + "\r\nName=object_" + number +
                  "\r\nUserName=" + name + "\r\nText=" + text + "\r\nLeft=" + std::to_string(box.left()) +
                  "\r\nTop=" + std::to_string(box.top()) + "\r\nWidth=" + std::to_string(box.width()) +
                  "\r\nHeight=" + std::to_string(box.height()) + "\r\n" + more;
  }
  void Read() {
    const QString path = m_Folder.filePath(QStringLiteral("form.cwf"));
    std::ofstream(path.toStdString(), std::ios::binary)
        << "[FORM]\r\nScaleMode=3\r\nWidth=600\r\nHeight=400\r\nFontName=DejaVu Sans\r\nFontSize=8.25\r\n"
        << "ControlsNumber=" << m_Count << "\r\n"
        << m_Controls;
    ASSERT_TRUE(form.ProjectRead(path));
  }
  QWidget& Native(std::u16string_view name) {
    const IControl* control = FindControl(form.Object()->Controls(), name);
    return NativeOf(dynamic_cast<Widget&>(*control->BoundObject()));
  }
  static std::string Spoken(QWidget& widget, QAccessible::Text what = QAccessible::Name) {
    return QAccessible::queryAccessibleInterface(&widget)->text(what).toStdString();
  }
  std::string NameOf(std::u16string_view control) { return Spoken(Native(control)); }

  QWidget window;
  FormInput form{&window};

 private:
  QTemporaryDir m_Folder;
  std::string m_Controls;
  int m_Count = 0;
};

TEST_F(AccessibleNames, AreCaptionsWhereAControlHasOne) {
  Add("Label", "lblTitle", "Wells", {10, 10, 200, 16});
  Add("CheckBox", "chk", "&Monitored", {10, 40, 100, 20});
  Add("OptionButton", "opt", "", {10, 70, 100, 20});
  Add("CommandButton", "cmd", "Zoom", {10, 100, 80, 24});
  Add("Frame", "fra", "Core && cover", {10, 130, 90, 60});
  Read();
  EXPECT_EQ(NameOf(u"lblTitle"), "Wells");
  EXPECT_EQ(NameOf(u"chk"), "Monitored");
  EXPECT_EQ(NameOf(u"opt"), "opt");
  EXPECT_EQ(NameOf(u"cmd"), "Zoom");
  EXPECT_EQ(NameOf(u"fra"), "Core & cover");
  Native(u"chk").setProperty("text", QStringLiteral("&Other"));
  EXPECT_EQ(NameOf(u"chk"), "Other");
}

TEST_F(AccessibleNames, AreTheLabelToTheLeftWhoseTextEndsBeforeTheField) {
  Add("Label", "lblDepth", "Depth (m):", {10, 10, 200, 16});
  Add("TextBox", "txtDepth", "12", {120, 10, 60, 20});
  Add("TextBox", "txtUnit", "", {190, 10, 60, 20});
  Add("Label", "lblNote", "Depth counts from the casing", {10, 60, 300, 16});
  Add("TextBox", "txtUnder", "", {40, 62, 60, 20});
  Read();
  EXPECT_EQ(NameOf(u"txtDepth"), "Depth (m)");
  EXPECT_EQ(NameOf(u"txtUnit"), "txtUnit") << "another field is in between";
  EXPECT_EQ(NameOf(u"txtUnder"), "txtUnder") << "the text runs into it";
}

TEST_F(AccessibleNames, AreOtherwiseTheLabelJustAbove) {
  Add("Label", "lblSite", "Site", {10, 10, 80, 16});
  Add("ComboBox", "cboSite", "", {10, 28, 120, 21});
  Add("Label", "lblOwner", "Owner", {150, 10, 80, 16});
  Add("textboxmultiline", "txtOwner", "", {150, 28, 120, 60});
  Add("ListBox", "lstFar", "", {10, 120, 120, 60});
  Read();
  EXPECT_EQ(NameOf(u"cboSite"), "Site");
  EXPECT_EQ(NameOf(u"txtOwner"), "Owner");
  EXPECT_EQ(NameOf(u"lstFar"), "lstFar") << "too far below";
}

TEST_F(AccessibleNames, ComeFromTheSameContainerAndFromWhatIsSeen) {
  Add("Frame", "fra", "Core", {10, 10, 300, 100});
  Add("Label", "lblIn", "Length", {10, 30, 60, 16}, "Container=object_1\r\n");
  Add("TextBox", "txtIn", "", {80, 30, 60, 20}, "Container=object_1\r\n");
  Add("Label", "lblOut", "Outside", {10, 150, 60, 16});
  Add("TextBox", "txtOut", "", {80, 150, 60, 20});
  Read();
  EXPECT_EQ(NameOf(u"txtIn"), "Length");
  EXPECT_EQ(NameOf(u"txtOut"), "Outside");
  ASSERT_TRUE(ShowActive(window));
  Native(u"lblIn").hide();
  Native(u"txtOut").setFocus();
  Native(u"txtIn").setFocus();
  EXPECT_EQ(NameOf(u"txtIn"), "txtIn");
}

TEST_F(AccessibleNames, FollowALabelThatAScriptChangesBeforeTheFieldIsEntered) {
  Add("TextBox", "txtFirst", "", {80, 10, 60, 20});
  Add("Label", "lblDepth", "Depth", {10, 40, 60, 16});
  Add("TextBox", "txtDepth", "", {80, 40, 60, 20});
  Read();
  ASSERT_TRUE(ShowActive(window));
  FindControl(form.Object()->Controls(), u"lblDepth")->SetPropertyValue(u"Text", Text(u"Length"));
  Native(u"txtDepth").setFocus();
  EXPECT_EQ(NameOf(u"txtDepth"), "Length");
}

TEST_F(AccessibleNames, ReachThePartsOfSelectors) {
  Add("Label", "lblPhoto", "Photo", {10, 10, 60, 16});
  Add("resourceselector", "resPhoto", "", {80, 10, 120, 20});
  Add("Label", "lblInk", "Ink", {10, 40, 60, 16});
  Add("colorselector", "colInk", "", {80, 40, 120, 20});
  Add("Label", "lblFont", "Letters", {10, 70, 60, 16});
  Add("fontselector", "fntText", "", {80, 70, 120, 20});
  Add("Label", "lblTheme", "Theme", {10, 100, 60, 16});
  Add("themeselector", "thmOne", "", {80, 100, 120, 20});
  Add("attributeselector", "attOne", "", {80, 130, 120, 20});
  Read();
  for (int again = 0; again < 2; ++again) {
    EXPECT_EQ(NameOf(u"resPhoto"), "Photo");
    EXPECT_EQ(Spoken(*Native(u"resPhoto").focusProxy()), "Photo");
    EXPECT_EQ(NameOf(u"colInk"), "Ink");
    EXPECT_TRUE(Spoken(*Native(u"colInk").focusProxy()).starts_with("Color #"));
    EXPECT_EQ(Spoken(*Native(u"colInk").focusProxy(), QAccessible::Description), "Ink");
    EXPECT_EQ(Spoken(*Native(u"fntText").focusProxy(), QAccessible::Description), "Letters");
    EXPECT_EQ(NameOf(u"thmOne"), "Theme");
    EXPECT_EQ(NameOf(u"attOne"), "attOne");
    form.show();
  }
}

TEST_F(AccessibleNames, WaitForAScreenReader) {
  QAccessible::setActive(false);
  Add("Label", "lblDepth", "Depth", {10, 10, 60, 16});
  Add("TextBox", "txtDepth", "", {80, 10, 60, 20});
  Read();
  EXPECT_TRUE(Native(u"txtDepth").accessibleName().isEmpty());
  QAccessible::setActive(true);
  EXPECT_EQ(Native(u"txtDepth").accessibleName(), QStringLiteral("Depth"));
}

TEST_F(AccessibleNames, AreThereForEveryControlOfTheExample) {
  ASSERT_TRUE(form.ProjectRead(QStringLiteral(CARDWRIGHT_SOURCE_DIR "/examples/wells/well-inspection.cwf")));
  QStringList names;
  for (const Ref<IControl>& control : ControlsOf(form.Object()->Controls())) {
    if (control->TypeName() == Text(u"CForm") || control->TypeName() == Text(u"CLabel")) continue;
    const std::string name = NameOf(control->UserName());
    EXPECT_FALSE(name.empty()) << control->UserName().ToUtf8();
    names += QString::fromStdString(name);
  }
  EXPECT_EQ(
      names.join(u'|'),
      QStringLiteral(u"Identification|Name|Monitored|Owner|Construction|Depth (m)|Diameter (mm)|Aquifer|Use "
                     u"and condition|Domestic|Agricultural|Industrial|Status|Inspected|Today|Notes \u2013 "
                     u"access, equipment, what to do next time"));
}

}  // namespace
}  // namespace cardwright::qt
