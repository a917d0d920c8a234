// SPDX-License-Identifier: MIT
// The grid with any form element, including one with rows that no class of the library has: its look and what
// it reports to screen readers.

#include <QHeaderView>
#include <QToolButton>

#include "workbench/PropertyGridTest.h"
#include "workbench/grid/DialogCell.h"

namespace cardwright::workbench {
namespace {

using enum PropertyTypeEnum;

constexpr std::int32_t kRows = 17;

/// One row for each type, in the order of their numbers, which begin at -1.
constexpr std::int32_t RowOf(PropertyTypeEnum type) { return static_cast<std::int32_t>(type) + 1; }
constexpr PropertyTypeEnum TypeAt(std::int32_t row) { return static_cast<PropertyTypeEnum>(row - 1); }

/// A form element with a row of each type.
class AnyControl final : public IControl {
 public:
  Text TypeName() const override { return u"AnyControl"; }
  std::uint8_t PropertyCount() const override { return kRows; }
  Text PropertyName(const Variant& index) const override { return beginning + ToText(index); }
  PropertyTypeEnum PropertyType(const Variant& index) const override { return TypeAt(ToLong(index)); }
  Variant PropertyValue(const Variant& index) const override { return values[ToLong(index)]; }
  void SetPropertyValue(const Variant& index, const Variant& value) override {
    values[ToLong(index)] = value;
  }
  std::vector<Text> PropertyList(const Variant&) const override { return {u"one", u"two"}; }

  mutable std::map<std::int32_t, Variant> values;
  Text beginning = u"Row";
};

class NoChoices final : public Choices {
 public:
  QStringList Themes() const override { return {QStringLiteral("wells")}; }
  QStringList Attributes() const override { return {QStringLiteral("NAME")}; }
  QString Folder() const override { return {}; }
};

class GridPartsTest : public testing::Test {
 protected:
  GridPartsTest() {
    grid.resize(400, 600);
    grid.show();
    grid.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
    grid.Show(control);
    grid.View().setFocus();
  }
  QWidget* Edit(PropertyTypeEnum type) {
    grid.EditRow(NameOf(type));
    QTest::keyClick(grid.windowHandle(), Qt::Key_F2);
    return grid.View().indexWidget(grid.View().currentIndex());
  }
  static QString NameOf(PropertyTypeEnum type) { return QStringLiteral("Row%1").arg(RowOf(type)); }

  Ref<AnyControl> control = MakeRef<AnyControl>();
  NoChoices choices;
  PropertyGrid grid{choices, nullptr};
};

TEST_F(GridPartsTest, HasALabelledEditorForEachType) {
  static_assert(RowOf(ptNone) == 0 && RowOf(ptConnectionString) == kRows - 1);
  for (int type = 0; type < kRows; ++type) {
    const PropertyTypeEnum row = TypeAt(type);
    const QWidget* editor = Edit(row);
    ASSERT_EQ(editor == nullptr, row == ptBoolean) << type;
    if (!editor) continue;
    EXPECT_EQ(editor->accessibleName(), NameOf(row));
    EXPECT_TRUE(editor->isAncestorOf(QApplication::focusWidget()) || editor->hasFocus()) << type;
    for (const QToolButton* button : editor->findChildren<QToolButton*>())
      EXPECT_TRUE(button->accessibleName() == QStringLiteral("Choose %1…").arg(NameOf(row)) ||
                  button->accessibleName() == QStringLiteral("Clear %1").arg(NameOf(row)));
    const bool hasButton = row == ptFont || row == ptCollection || row == ptFileName || row == ptImage;
    EXPECT_EQ(!editor->findChildren<QToolButton*>().isEmpty(), hasButton) << type;
  }
}

TEST_F(GridPartsTest, AcceptsATypedFileAndAnyRealNumber) {
  Edit(ptFileName);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("/data/a b.txt"));
  QTest::keyClick(grid.windowHandle(), Qt::Key_Return);
  QTest::qWait(5);
  EXPECT_EQ(ToText(control->PropertyValue(Variant(RowOf(ptFileName)))), u"/data/a b.txt");
  Edit(ptFloat);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-1,5e30"));
  QTest::keyClick(grid.windowHandle(), Qt::Key_Return);
  QTest::qWait(5);
  EXPECT_EQ(ToDouble(control->PropertyValue(Variant(RowOf(ptFloat)))), -1.5e30);
}

TEST_F(GridPartsTest, GrowsWithTheFont) {
  const int before = grid.View().rowHeight(3);
  const int sign = grid.View().iconSize().height();
  const int below = grid.findChildren<QLabel*>().last()->height();
  QFont font = grid.font();
  font.setPointSizeF(font.pointSizeF() * 2);
  grid.setFont(font);
  EXPECT_GE(grid.View().rowHeight(3), QFontMetrics(font).height() + 4);
  EXPECT_GT(grid.View().rowHeight(3), before);
  EXPECT_GT(grid.View().iconSize().height(), sign);
  EXPECT_GT(grid.findChildren<QLabel*>().last()->height(), below);
  for (const QLabel* label : grid.findChildren<QLabel*>())
    EXPECT_EQ(label->font().pointSizeF(), font.pointSizeF());
}

TEST_F(GridPartsTest, ShowsTheNamesInANarrowPane) {
  grid.resize(200, 200);
  grid.EditRow(NameOf(ptConnectionString));
  QTest::qWait(5);
  EXPECT_EQ(grid.View().horizontalHeader()->offset(), 0);
  EXPECT_LE(grid.View().horizontalHeader()->length(), grid.View().viewport()->width());
}

TEST_F(GridPartsTest, GivesNamesTheirWidthUpToHalfOfTheGrid) {
  const Ref<AnyControl> other = MakeRef<AnyControl>();
  other->beginning = u"AThemeSelectorOfThisName";
  const QTableView& view = grid.View();
  const auto names = [&] { return view.columnWidth(PropertyModel::kName); };
  const auto resizeTo = [&](int width) {
    grid.resize(width, 600);
    QTest::qWait(5);
  };
  resizeTo(1000);
  const int narrow = names();
  grid.Show(other);
  const QString name = grid.Model().NameOf(kRows - 1);
  const int wide = names();
  EXPECT_GT(wide, narrow);
  EXPECT_GT(wide, view.fontMetrics().horizontalAdvance(name));
  EXPECT_LT(wide, view.viewport()->width() / 2);
  resizeTo(200);
  EXPECT_EQ(names(), view.viewport()->width() / 2);
  resizeTo(1000);
  EXPECT_EQ(names(), wide);
  const QModelIndex cell = grid.Model().index(kRows - 1, PropertyModel::kName);
  EXPECT_TRUE(cell.data(Qt::ToolTipRole).toString().startsWith(name + u'\n'));
}

TEST_F(GridPartsTest, KeepsTheColumnRatioChosenByTheUser) {
  QTableView& view = grid.View();
  view.horizontalHeader()->resizeSection(PropertyModel::kName, view.viewport()->width() / 4);
  grid.resize(1000, 600);
  QTest::qWait(5);
  grid.Show(MakeRef<AnyControl>());
  EXPECT_NEAR(view.columnWidth(PropertyModel::kName), view.viewport()->width() / 4, 2);
}

TEST_F(GridPartsTest, ShowsTheCurrentSystemColors) {
  control->values[RowOf(ptColor)] = Variant(ToOleColor(SystemColor::Window));
  grid.Model().RefreshAll();
  const QPalette before = QApplication::palette();
  const QModelIndex cell = grid.Model().index(RowOf(ptColor), PropertyModel::kValue);
  const auto shown = [&] {
    const auto sample = cell.data(Qt::DecorationRole).value<QIcon>();
    return sample.pixmap(QSize(32, 32)).toImage().pixelColor(16, 16);
  };
  EXPECT_EQ(shown(), before.color(QPalette::Base));
  QPalette dark = before;
  dark.setColor(QPalette::Base, QColor(1, 2, 3));
  QApplication::setPalette(dark);
  EXPECT_EQ(shown(), QColor(1, 2, 3));
  QApplication::setPalette(before);
}

TEST_F(GridPartsTest, TheCurrentRowLooksDifferentWithoutFocus) {
  grid.EditRow(NameOf(ptString));
  const QImage with = grid.View().viewport()->grab().toImage();
  grid.View().clearFocus();
  EXPECT_NE(grid.View().viewport()->grab().toImage(), with);
}

}  // namespace
}  // namespace cardwright::workbench
