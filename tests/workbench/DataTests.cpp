// The data pane, fill-in runs and debugging runs.

#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

class DataTest : public WorkbenchTest {
 protected:
  DataTest() {
    EXPECT_TRUE(QFile::copy(Example("wells.gpkg"), source));
    EXPECT_TRUE(bench->OpenProject(Example("well-inspection.cwf")));
    EXPECT_TRUE(bench->OpenData(source));
  }
  QString Cell(int row, const QString& column) {
    FeatureModel& model = bench->Features().Model();
    for (int at = 0; at < model.columnCount(); ++at)
      if (model.headerData(at, Qt::Horizontal, Qt::DisplayRole) == column)
        return model.index(row, at).data().toString();
    return QStringLiteral("no column");
  }

  const QString source = PathOf(QStringLiteral("wells.gpkg"));
};

TEST_F(DataTest, ShowsTheFeaturesOfTheFormsTheme) {
  EXPECT_EQ(bench->Features().Theme(), QStringLiteral("wells"));
  EXPECT_GT(bench->Features().Model().rowCount(), 3);
  EXPECT_FALSE(Cell(0, QStringLiteral("NAME")).isEmpty());
}

TEST_F(DataTest, ShowsAnotherTheme) {
  bench->Features().ShowTheme(QStringLiteral("pipelines"));
  EXPECT_EQ(bench->Features().Theme(), QStringLiteral("pipelines"));
}

TEST_F(DataTest, FillsInTheChosenFeatureAndShowsWhatIsStored) {
  bench->Features().ChooseFeature(QStringLiteral("3"));
  const int row = bench->Features().Model().RowOf(QStringLiteral("3"));
  Trigger("mnuFill");
  ASSERT_NE(bench->Run(), nullptr);
  qt::FormInput& form = bench->Run()->Form();
  EXPECT_EQ(form.FeatureID(), QStringLiteral("3"));
  FindControl(form.Object()->Controls(), u"txtName")->SetPropertyValue(u"Text", Variant(u"Renamed"));
  form.Object()->Ok();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !bench->Run(); }));
  EXPECT_EQ(Cell(row, QStringLiteral("NAME")), QStringLiteral("Renamed"));
  EXPECT_EQ(bench->Features().Feature(), QStringLiteral("3"));
}

TEST_F(DataTest, ShowsTheCommandsThatTheHostWasSent) {
  bench->Features().ChooseFeature(QStringLiteral("2"));
  Trigger("mnuFill");
  ASSERT_NE(bench->Run(), nullptr);
  bench->Run()->Form().Object()->Cancel();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !bench->Run(); }));
  EXPECT_TRUE(bench->Output().Commands().toPlainText().contains(
      QStringLiteral("THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 2 NEW")));
}

TEST_F(DataTest, OnlyShowsWhatADebuggingRunWouldStore) {
  bench->Features().ChooseFeature(QStringLiteral("3"));
  const QString before = Cell(bench->Features().Model().RowOf(QStringLiteral("3")), QStringLiteral("NAME"));
  Trigger("mnuDebug");
  ASSERT_NE(bench->Run(), nullptr);
  qt::FormInput& form = bench->Run()->Form();
  form.Object()->Ok();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !bench->Run(); }));
  EXPECT_TRUE(bench->Output().Debug()->Pane()->toPlainText().contains(QStringLiteral("THEME_SET_ATTRIBUTE")));
  EXPECT_EQ(Cell(bench->Features().Model().RowOf(QStringLiteral("3")), QStringLiteral("NAME")), before);
}

TEST_F(DataTest, TellsWhatCannotBeOpenedAndKeepsWhatIsOpen) {
  QString text;
  AnswerBox(QStringLiteral("OK"), &text);
  EXPECT_FALSE(bench->OpenData(PathOf(QStringLiteral("none.gpkg"))));
  EXPECT_TRUE(text.contains(QStringLiteral("none.gpkg")));
  EXPECT_TRUE(data.IsOpen());
  EXPECT_EQ(bench->Features().Theme(), QStringLiteral("wells"));
}

}  // namespace
}  // namespace cardwright::workbench
