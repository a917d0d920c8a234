// SPDX-License-Identifier: MIT
// The data pane, fill-in runs and debugging runs.

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QHeaderView>
#include <QInputDialog>
#include <algorithm>

#include "cardwright/qt/values/FeatureTypeIcon.h"
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
  int ColumnOf(const QString& attribute) {
    FeatureModel& model = bench->Features().Model();
    for (int at = 0; at < model.columnCount(); ++at)
      if (model.headerData(at, Qt::Horizontal, Qt::DisplayRole) == attribute) return at;
    ADD_FAILURE() << "no column " << attribute.toStdString();
    return 0;
  }
  QString Cell(int row, const QString& attribute) {
    return bench->Features().Model().index(row, ColumnOf(attribute)).data().toString();
  }

  const QString source = PathOf(QStringLiteral("wells.gpkg"));
};

TEST_F(DataTest, ShowsTheFeaturesOfTheFormsTheme) {
  EXPECT_EQ(bench->Features().Theme(), QStringLiteral("wells"));
  EXPECT_GT(bench->Features().Model().rowCount(), 3);
  EXPECT_FALSE(Cell(0, QStringLiteral("NAME")).isEmpty());
}

TEST_F(DataTest, ShowsTheAttributeOfASelectorInTheProject) {
  Trigger("mnuNew");
  bench->Project().Insert(ControlTypeEnum::ctThemeSelector);
  Designer().CurrentControl()->SetPropertyValue(Variant(u"Text"), Variant(u"wells"));
  const Text theme = Designer().CurrentControl()->UserName();
  bench->Project().Insert(ControlTypeEnum::ctAttributeSelector);
  const Text name = Designer().CurrentControl()->UserName();
  Designer().CurrentControl()->SetPropertyValue(Variant(u"ThemeSelectorName"), Variant(theme));
  Designer().CurrentControl()->SetPropertyValue(Variant(u"Text"), Variant(u"OWNER"));
  RecordStep();
  const QString path = PathOf(QStringLiteral("selectors.cwf"));
  ASSERT_EQ(bench->Project().Save(path), QString());
  ASSERT_TRUE(bench->OpenProject(path));
  Select(qt::ToQString(name));
  EXPECT_EQ(ValueOf(QStringLiteral("Text")), QStringLiteral("OWNER"));
  Type(QStringLiteral("Left"), QStringLiteral("40"));
  RecordStep();
  Trigger("mnuUndo");
  EXPECT_EQ(ValueOf(QStringLiteral("Text")), QStringLiteral("OWNER"));
}

TEST_F(DataTest, ShowsAnotherTheme) {
  bench->Features().ShowTheme(QStringLiteral("pipelines"));
  EXPECT_EQ(bench->Features().Theme(), QStringLiteral("pipelines"));
}

TEST_F(DataTest, FillsInTheChosenFeatureAndShowsTheStoredValues) {
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

TEST_F(DataTest, ShowsTheCommandsSentToTheHost) {
  bench->Features().ChooseFeature(QStringLiteral("2"));
  Trigger("mnuFill");
  ASSERT_NE(bench->Run(), nullptr);
  bench->Run()->Form().Object()->Cancel();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !bench->Run(); }));
  EXPECT_TRUE(bench->Output().Commands().toPlainText().contains(
      QStringLiteral("THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 2 NEW")));
}

TEST_F(DataTest, ShowsButDoesNotStoreTheValuesOfADebuggingRun) {
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

TEST_F(DataTest, SortsNumbersAndTextsAndRestoresTheStoreOrder) {
  FeatureModel& model = bench->Features().Model();
  const auto column = [&](const QString& name) {
    QStringList cells;
    for (int row = 0; row < model.rowCount(); ++row) cells += Cell(row, name);
    return cells;
  };
  QHeaderView& header = *bench->Features().View().horizontalHeader();
  const QStringList stored = column(QStringLiteral("NAME"));
  bench->Features().ChooseFeature(QStringLiteral("3"));
  struct {
    const char* attribute;
    bool isNumber;
  } const columns[] = {{"NAME", false}, {"DEPTH", true}};
  for (const auto& [attribute, isNumber] : columns) {
    const QString name = QLatin1String(attribute);
    QStringList expected = column(name);
    std::ranges::stable_sort(expected, [isNumber = isNumber](const QString& a, const QString& b) {
      return isNumber ? a.toDouble() < b.toDouble() : QString::localeAwareCompare(a, b) < 0;
    });
    header.setSortIndicator(ColumnOf(name), Qt::AscendingOrder);
    EXPECT_EQ(column(name), expected);
    EXPECT_EQ(bench->Features().Feature(), QStringLiteral("3"));
  }
  header.setSortIndicator(-1, Qt::AscendingOrder);
  EXPECT_EQ(column(QStringLiteral("NAME")), stored);
}

TEST_F(DataTest, ShowsOnlyTheFoundFeatures) {
  FeaturePane& pane = bench->Features();
  const int all = pane.Model().rowCount();
  const QString name = Cell(2, QStringLiteral("NAME"));
  const QString id = pane.Model().IdOf(2);
  pane.View().setFocus();
  QTest::keyClick(&pane.View(), Qt::Key_F, Qt::ControlModifier);
  ASSERT_EQ(QApplication::focusWidget(), &pane.SearchField());
  QTest::keyClicks(&pane.SearchField(), name.toUpper());
  ASSERT_TRUE(QTest::qWaitFor([&] { return pane.Model().rowCount() < all; }));
  EXPECT_EQ(pane.Model().rowCount(), 1);
  EXPECT_EQ(pane.Feature(), id);
  QTest::keyClick(&pane.SearchField(), Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), &pane.View());
  pane.SearchField().setFocus();
  QTest::keyClicks(&pane.SearchField(), QStringLiteral("no such thing"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return pane.Model().rowCount() == 0; }));
  EXPECT_EQ(pane.Feature(), QString());
  pane.ShowTheme(QStringLiteral("pipelines"));
  EXPECT_EQ(pane.SearchField().text(), QString());
  EXPECT_GT(pane.Model().rowCount(), 0);
}

TEST_F(DataTest, CopiesTheSelectedRowsForASpreadsheet) {
  QTableView& view = bench->Features().View();
  view.setFocus();
  view.setCurrentIndex(view.model()->index(0, 0));
  QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split(u'\n');
  ASSERT_EQ(lines.size(), 3);
  EXPECT_TRUE(lines[2].isEmpty());
  for (int row = 0; row < 2; ++row) {
    const QStringList cells = lines[row].split(u'\t');
    EXPECT_EQ(cells.size(), view.model()->columnCount());
    EXPECT_EQ(cells.first(), bench->Features().Model().IdOf(row));
    EXPECT_TRUE(cells.contains(Cell(row, QStringLiteral("NAME"))));
  }
}

TEST_F(DataTest, OpensAFolderAndListsItAsRecent) {
  const QString shapes = PathOf(QStringLiteral("shapes"));
  ASSERT_TRUE(QDir().mkpath(shapes));
  for (const char* name : {"wells", "pumps"})
    Write(shapes + u'/' + QLatin1String(name) + QLatin1String(".csv"), "NAME,DEPTH\nOne,12\nTwo,7\n");
  ASSERT_TRUE(bench->OpenData(shapes));
  EXPECT_EQ(bench->Features().Model().Themes().size(), 2U);
  ASSERT_TRUE(bench->OpenData(source));
  auto* menu = bench->findChild<QMenu*>(QStringLiteral("mnuRecentData"));
  Q_EMIT menu->aboutToShow();
  ASSERT_GE(menu->actions().size(), 2);
  EXPECT_TRUE(menu->actions().at(0)->text().endsWith(QLatin1String("wells.gpkg")));
  EXPECT_TRUE(menu->actions().at(1)->text().endsWith(QLatin1String("shapes")));
  menu->actions().at(1)->trigger();
  EXPECT_EQ(bench->Features().Model().Themes().size(), 2U);
}

TEST_F(DataTest, ConnectsByAConnectionStringAndStoresNoPassword) {
  const auto connect = [&](const QString& text) {
    qt::Meet<QInputDialog>([&](QInputDialog& dialog) {
      dialog.setTextValue(text);
      dialog.accept();
    });
    Trigger("mnuConnect");
  };
  const auto recent = [&] {
    auto* menu = bench->findChild<QMenu*>(QStringLiteral("mnuRecentData"));
    Q_EMIT menu->aboutToShow();
    return menu->actions().at(0)->text();
  };
  ASSERT_EQ(data.Name(), source);
  connect(QLatin1String("GPKG:") + source);
  EXPECT_EQ(data.Name(), QLatin1String("GPKG:") + source);
  EXPECT_EQ(bench->Features().Theme(), QStringLiteral("wells"));
  EXPECT_TRUE(recent().contains(QLatin1String("GPKG:")));

  const QString secret = PathOf(QStringLiteral("PWD=x.gpkg"));
  ASSERT_TRUE(QFile::copy(source, secret));
  connect(QLatin1String("GPKG:") + secret);
  EXPECT_EQ(data.Name(), QLatin1String("GPKG:") + secret);
  EXPECT_FALSE(recent().contains(QLatin1String("PWD")));
}

TEST_F(DataTest, PaintsThemeIconsInTheTextColor) {
  const QColor ink(0x10, 0x90, 0x20);
  const auto hasInk = [&] {
    const auto* themes = bench->Features().findChild<QComboBox*>();
    const QImage sign = themes->itemIcon(0).pixmap(qt::kFeatureTypeIconSize).toImage();
    for (int at = 0; at < sign.width(); ++at)
      if (sign.pixelColor(at, sign.height() / 2) == ink) return true;
    return false;
  };
  EXPECT_FALSE(hasInk());
  QPalette other = bench->palette();
  other.setColor(QPalette::WindowText, ink);
  bench->setPalette(other);
  EXPECT_TRUE(hasInk());
}

TEST_F(DataTest, KeepsSearchAndSortOrderAfterARun) {
  FeaturePane& pane = bench->Features();
  pane.View().horizontalHeader()->setSortIndicator(0, Qt::DescendingOrder);
  pane.ChooseFeature(QStringLiteral("3"));
  const int row = pane.Model().RowOf(QStringLiteral("3"));
  Trigger("mnuFill");
  ASSERT_NE(bench->Run(), nullptr);
  bench->Run()->Form().Object()->Cancel();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !bench->Run(); }));
  EXPECT_EQ(pane.Model().RowOf(QStringLiteral("3")), row);
  EXPECT_EQ(pane.Feature(), QStringLiteral("3"));
}

TEST_F(DataTest, SortsByKeyboardFromTheMenuOfTheTable) {
  FeaturePane& pane = bench->Features();
  const QHeaderView& header = *pane.View().horizontalHeader();
  const auto choose = [&](const QList<Qt::Key>& keys) {
    pane.View().setFocus();
    QTimer::singleShot(20, bench.get(), [&] {
      for (const Qt::Key key : QList<Qt::Key>{Qt::Key_Up, Qt::Key_Right} + keys) {
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), key);
      }
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&pane.View(), &event);
    QTest::qWait(5);
  };
  const QString first = pane.Model().IdOf(0);
  choose({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(header.sortIndicatorSection(), 1);
  EXPECT_EQ(header.sortIndicatorOrder(), Qt::AscendingOrder);
  const QString attribute = pane.Model().headerData(1, Qt::Horizontal).toString();
  const int last = pane.Model().rowCount() - 1;
  EXPECT_LT(QString::localeAwareCompare(Cell(0, attribute), Cell(last, attribute)), 0);
  choose({Qt::Key_Up, Qt::Key_Return});
  EXPECT_EQ(header.sortIndicatorSection(), 1);
  EXPECT_GT(QString::localeAwareCompare(Cell(0, attribute), Cell(last, attribute)), 0);
  choose({Qt::Key_Return});
  EXPECT_EQ(header.sortIndicatorSection(), -1);
  EXPECT_EQ(pane.Model().IdOf(0), first);
}

TEST_F(DataTest, KeepsColumnWidthsAfterARun) {
  QHeaderView& header = *bench->Features().View().horizontalHeader();
  header.resizeSection(ColumnOf(QStringLiteral("NAME")), 231);
  const auto widths = [&] {
    QList<int> all;
    for (int column = 0; column < header.count(); ++column) all += header.sectionSize(column);
    return all;
  };
  const QList<int> before = widths();
  Trigger("mnuFill");
  ASSERT_NE(bench->Run(), nullptr);
  bench->Run()->Form().Object()->Ok();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !bench->Run(); }));
  EXPECT_EQ(widths(), before);
}

TEST_F(DataTest, ResizesOnlyNewColumnsToTheirContents) {
  const QString file = PathOf(QStringLiteral("pumps.csv"));
  Write(file, "NAME,DEPTH\nOne,12\n");
  ASSERT_TRUE(bench->OpenData(file));
  FeaturePane& pane = bench->Features();
  pane.View().setColumnWidth(ColumnOf(QStringLiteral("DEPTH")), 77);
  const QString remark = QStringLiteral("a remark that is wider than any column is without it");
  Write(file, "REMARK,NAME,DEPTH\n" + remark.toLatin1() + ",One,12\n");
  pane.Reload();
  EXPECT_EQ(pane.View().columnWidth(ColumnOf(QStringLiteral("DEPTH"))), 77);
  EXPECT_GT(pane.View().columnWidth(ColumnOf(QStringLiteral("REMARK"))),
            pane.fontMetrics().averageCharWidth() * 30);
}

TEST_F(DataTest, ReportsAFailedOpenAndKeepsTheOpenSource) {
  QString text;
  AnswerBox(QStringLiteral("OK"), &text);
  EXPECT_FALSE(bench->OpenData(PathOf(QStringLiteral("none.gpkg"))));
  EXPECT_TRUE(text.contains(QStringLiteral("none.gpkg")));
  EXPECT_TRUE(data.IsOpen());
  EXPECT_EQ(bench->Features().Theme(), QStringLiteral("wells"));
}

}  // namespace
}  // namespace cardwright::workbench
