// SPDX-License-Identifier: MIT
// Find and find next: each step, each direction, the dialog.

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

#include "editor/EditorTest.h"

namespace cardwright {
namespace {

class EditorSearchTest : public EditorTest {
 protected:
  struct Wish {
    QString text;
    int direction = 0;
    bool wholeWord = false;
    bool matchCase = false;
    const char* button = "cmdOK";
  };

  void Fill(QDialog& dialog, const Wish& wish) const {
    auto* const text = dialog.findChild<QComboBox*>(QStringLiteral("cmbCerca"));
    if (!wish.text.isNull()) text->setEditText(wish.text);
    dialog.findChild<QComboBox*>(QStringLiteral("cmbDirezione"))->setCurrentIndex(wish.direction);
    dialog.findChild<QCheckBox*>(QStringLiteral("chkParziale"))->setChecked(wish.wholeWord);
    dialog.findChild<QCheckBox*>(QStringLiteral("chkMaiuMin"))->setChecked(wish.matchCase);
    QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(wish.button)), Qt::LeftButton);
  }
  /// "start+length" of the selection after the search.
  std::string Find(const Wish& wish) {
    EXPECT_TRUE(WithDialog(
        "frmTrova", [&](QDialog& dialog) { Fill(dialog, wish); }, [this] { object->DoFind(); }));
    return Selection();
  }
  std::string Next() {
    object->DoFindNext();
    return Selection();
  }
  std::string Selection() const {
    return std::to_string(pad->SelStart()) + "+" + std::to_string(pad->SelLength());
  }
  static std::vector<std::string> NoResults(const std::string& text) {
    return {"No results found for \"" + text + "\"|64"};
  }
};

TEST_F(EditorSearchTest, RepeatingWithNothingSearchedDoesNothing) {
  SetScript(u"ab ab");
  EXPECT_EQ(Next(), "0+0");
  EXPECT_TRUE(desktop.TakeBoxes().empty());
}

TEST_F(EditorSearchTest, AllDirectionsWrapRound) {
  SetScript(u"ab cd ab");
  pad->SetSelStart(1);
  EXPECT_EQ(Find({.text = QStringLiteral("ab")}), "6+2");
  EXPECT_EQ(Next(), "0+2") << "past the hit, then from the top";
  EXPECT_EQ(Next(), "6+2");
  pad->SetSelStart(8);
  EXPECT_EQ(Find({.text = QStringLiteral("cd")}), "3+2");
  EXPECT_TRUE(desktop.TakeBoxes().empty());
}

TEST_F(EditorSearchTest, WrapStopsShortOfTheStart) {
  SetScript(u"xab");
  pad->SetSelStart(3);
  EXPECT_EQ(Find({.text = QStringLiteral("ab")}), "3+0") << "the match would end beyond the start less 1";
  EXPECT_EQ(desktop.TakeBoxes(), NoResults("ab"));
}

TEST_F(EditorSearchTest, DownDoesNotWrap) {
  SetScript(u"ab cd");
  pad->SetSelStart(3);
  EXPECT_EQ(Find({.text = QStringLiteral("ab"), .direction = 1}), "3+0");
  EXPECT_EQ(desktop.TakeBoxes(), NoResults("ab"));
  pad->SetSelStart(0);
  EXPECT_EQ(Find({.text = QStringLiteral("cd"), .direction = 1}), "3+2");
}

TEST_F(EditorSearchTest, UpFindsTheFirstOfTheText) {
  SetScript(u"ab ab ab ");
  pad->SetSelStart(9);
  EXPECT_EQ(Find({.text = QStringLiteral("ab"), .direction = 2}), "0+2");
  pad->SetSelStart(9);
  EXPECT_EQ(Find({.text = QStringLiteral("zz"), .direction = 2}), "9+0");
  EXPECT_EQ(desktop.TakeBoxes(), NoResults("zz"));
}

TEST_F(EditorSearchTest, UpFromTheTopCountsAsAHit) {
  SetScript(u"ab");
  pad->SetSelStart(0);
  EXPECT_EQ(Find({.text = QStringLiteral("zz"), .direction = 2}), "0+0");
  EXPECT_TRUE(desktop.TakeBoxes().empty());
}

TEST_F(EditorSearchTest, WholeWordsAndCase) {
  SetScript(u"cab Ab ab");
  pad->SetSelStart(0);
  EXPECT_EQ(Find({.text = QStringLiteral("ab")}), "1+2");
  pad->SetSelStart(0);
  EXPECT_EQ(Find({.text = QStringLiteral("ab"), .wholeWord = true}), "4+2");
  pad->SetSelStart(0);
  EXPECT_EQ(Find({.text = QStringLiteral("ab"), .wholeWord = true, .matchCase = true}), "7+2");
  EXPECT_EQ(Next(), "7+2") << "the options stay, and the wrap finds nothing else";
  EXPECT_EQ(desktop.TakeBoxes(), NoResults("ab"));
}

TEST_F(EditorSearchTest, CancelAndEmptyTextSearchNothing) {
  SetScript(u"ab ab");
  EXPECT_EQ(Find({.text = QStringLiteral("ab"), .button = "cmdAnnulla"}), "0+0");
  EXPECT_EQ(Find({.text = QStringLiteral("")}), "0+0");
  EXPECT_EQ(Next(), "0+0");
  EXPECT_TRUE(desktop.TakeBoxes().empty());
}

TEST_F(EditorSearchTest, SelectionIsProposed) {
  SetScript(u"ab cd ab");
  pad->SetSelStart(6);
  pad->SetSelLength(2);
  EXPECT_EQ(Find({}), "6+2");
  pad->SetSelStart(2);
  pad->SetSelLength(1);
  QString proposed;
  WithDialog(
      "frmTrova",
      [&](QDialog& dialog) {
        proposed = dialog.findChild<QComboBox*>(QStringLiteral("cmbCerca"))->currentText();
      },
      [this] { object->DoFind(); });
  EXPECT_EQ(proposed, QStringLiteral("ab")) << "blanks alone are no proposal";
}

TEST_F(EditorSearchTest, HistoryKeepsFifty) {
  SetScript(u"x");
  for (int i = 1; i <= 51; ++i) Find({.text = QString::number(i), .direction = 2});
  Find({.text = QStringLiteral("51"), .direction = 2});
  Find({.text = QStringLiteral("  "), .direction = 2});
  QStringList listed;
  WithDialog(
      "frmTrova",
      [&](QDialog& dialog) {
        const auto* const text = dialog.findChild<QComboBox*>(QStringLiteral("cmbCerca"));
        for (int i = 0; i < text->count(); ++i) listed.append(text->itemText(i));
      },
      [this] { object->DoFind(); });
  EXPECT_EQ(listed.size(), 50);
  EXPECT_EQ(listed.value(0), QStringLiteral("51"));
  EXPECT_EQ(listed.value(49), QStringLiteral("2"));
  desktop.TakeBoxes();
}

TEST_F(EditorSearchTest, AHitHidesThePopup) {
  SetScript(u"Sub Foo(a)\r\nEnd Sub\r\n");
  pad->SetSelStart(pad->TextLength());
  Type("Foo(");
  ASSERT_TRUE(surface->Popup()->IsVisible());
  EXPECT_EQ(Find({.text = QStringLiteral("Sub")}), "4+3" == Selection() ? Selection() : "0+3");
  EXPECT_FALSE(surface->Popup()->IsVisible());
}

TEST_F(EditorSearchTest, DialogInItsWords) {
  QStringList words;
  WithDialog(
      "frmTrova",
      [&](QDialog& dialog) {
        words << dialog.windowTitle();
        const auto* const direction = dialog.findChild<QComboBox*>(QStringLiteral("cmbDirezione"));
        for (int i = 0; i < direction->count(); ++i) words << direction->itemText(i);
        words << QString::number(direction->currentIndex());
        words << dialog.findChild<QCheckBox*>(QStringLiteral("chkParziale"))->text();
        words << dialog.findChild<QCheckBox*>(QStringLiteral("chkMaiuMin"))->text();
        words << dialog.findChild<QPushButton*>(QStringLiteral("cmdAnnulla"))->text();
      },
      [this] { object->DoFind(); });
  EXPECT_EQ(words.join(u'|'),
            QStringLiteral("Trova|Tutte|Gi\u00F9|Su|0|Parola intera|Maiuscole/minuscole|&Annulla"));
}

}  // namespace
}  // namespace cardwright
