// SPDX-License-Identifier: MIT
// A control class of the program's own, from the tool box to the attribute.

#include <gmock/gmock.h>

#include <QProgressBar>

#include "cardwright/model/ControlClasses.h"
#include "cardwright/qt/surface/WidgetFactory.h"
#include "gauge/CGauge.h"
#include "gauge/QtGauge.h"
#include "runtime/FormTest.h"
#include "workbench/WorkbenchTest.h"

namespace cardwright {
namespace {

// Once for the program, before its first form.
const bool kAdded = [] {
  AddControlClass(CGauge::kTable);
  qt::AddWidgetKind<qt::QtGauge>(CGauge::kTable.widgetIdentifier);
  return true;
}();

using GaugeInDesigner = workbench::WorkbenchTest;

TEST_F(GaugeInDesigner, IsDrawnSavedAndReadAgain) {
  const Ref<IControl> gauge = Draw(CGauge::kTable.type, QRect(16, 24, 120, 32));
  ASSERT_EQ(gauge->TypeName(), u"CGauge");
  EXPECT_EQ(gauge->Width(), 120);
  Type(QStringLiteral("Level"), QStringLiteral("40"));
  EXPECT_EQ(ValueOf(QStringLiteral("Level")), QStringLiteral("40"));
  Trigger("mnuCopy");
  Trigger("mnuPaste");
  EXPECT_EQ(Designer().Controls().Count(), 3);
  ASSERT_EQ(bench->Project().Save(PathOf(QStringLiteral("gauge.cwf"))), QString());

  Start();
  ASSERT_EQ(bench->Project().Open(PathOf(QStringLiteral("gauge.cwf"))), QString());
  const IControl& read = Find(QStringLiteral("object_1"));
  EXPECT_EQ(read.TypeName(), u"CGauge");
  EXPECT_EQ(ToText(read.PropertyValue(u"Level")), u"40");
  EXPECT_EQ(read.Left(), 16);
  EXPECT_EQ(Designer().FilterControls(CGauge::kTable.type).size(), 2U);
}

class FilledGauge : public FormTest {
 protected:
  FilledGauge() { host->SetTheme({{"stock", 1, 3, 0, "70"}}); }
  QProgressBar& Bar() { return dynamic_cast<QProgressBar&>(Native(u"tank")); }
};

TEST_F(FilledGauge, ShowsTheAttributeAndWritesItBack) {
  ASSERT_TRUE(Read({{"Gauge", "tank", "Attribute=stock\r\nLevel=10\r\n"}}));
  EXPECT_EQ(Bar().value(), 10);
  form->SetFeatureID("7");
  EXPECT_EQ(Bar().value(), 70);
  SetRow(u"tank", u"Level", Variant(85));
  host->Take();
  ClickOk();
  EXPECT_THAT(host->Take(), testing::Contains("X THEME_SET_ATTRIBUTE |wells| |POINT| |stock| 85"));
}

TEST_F(FilledGauge, IsMissingWithoutALevel) {
  ASSERT_TRUE(Read({{"Gauge", "tank", "Attribute=stock\r\nIsNeeded=True\r\n"}}));
  ClickOk();
  EXPECT_EQ(boxes.Take().size(), 1U);
}

TEST_F(FilledGauge, RunsItsScriptProcedure) {
  ASSERT_TRUE(Read({{"Gauge", "tank"}}, {}, "VBScript\r\nSub tank_OnClick()\r\nEnd Sub\r\n"));
  QTest::mouseClick(&Bar(), Qt::LeftButton);
  EXPECT_TRUE(engine->HasRun("tank_OnClick"));
}

}  // namespace
}  // namespace cardwright
