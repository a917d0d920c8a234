#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

using HistoryTest = WorkbenchTest;

ProjectState StateOf(const char* file) {
  ProjectState state;
  state.file = file;
  return state;
}

TEST(HistoryOfStates, ForgetsTheOldestBeyondItsLimit) {
  History history;
  history.Begin(StateOf("first"), true);
  for (std::size_t i = 0; i < History::kMostSteps + 10; ++i) history.Add(StateOf(std::to_string(i).c_str()));
  std::size_t steps = 0;
  for (; history.CanUndo(); ++steps) history.Undo();
  EXPECT_EQ(steps, History::kMostSteps);
  EXPECT_FALSE(history.IsSaved());
}

TEST(HistoryOfStates, LosesTheSavedStateWhenItIsOverwritten) {
  History history;
  history.Begin(StateOf("a"), false);
  history.Add(StateOf("b"));
  history.MarkSaved();
  history.Undo();
  history.Add(StateOf("c"));
  EXPECT_FALSE(history.IsSaved());
  history.Undo();
  EXPECT_FALSE(history.IsSaved());
}

TEST_F(HistoryTest, TakesAHundredStepsBackAndForthWithTheSelection) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Name"), QStringLiteral("lblA"));
  bench->Project().Insert(ControlTypeEnum::ctTextBox);
  Type(QStringLiteral("Name"), QStringLiteral("txtB"));
  Settle();
  constexpr int kSteps = 120;
  for (int i = 1; i <= kSteps; ++i) {
    Select(i % 2 ? QStringLiteral("lblA") : QStringLiteral("txtB"));
    Designer().CurrentControl()->SetLeft(static_cast<float>(10 + i));
    Settle();
  }
  for (int i = kSteps; i > 1; --i) {
    EXPECT_EQ(Designer().CurrentControl()->Left(), 10 + i);
    bench->Project().Undo();
    ASSERT_EQ(Selected(), i % 2 ? QStringLiteral("lblA") : QStringLiteral("txtB")) << i;
    bench->Project().Redo();
    bench->Project().Undo();
    Select(i % 2 ? QStringLiteral("txtB") : QStringLiteral("lblA"));
  }
  for (int i = 2; i <= kSteps; ++i) bench->Project().Redo();
  EXPECT_EQ(Find(QStringLiteral("txtB")).Left(), 10 + kSteps);
  EXPECT_FALSE(bench->Project().CanRedo());
}

TEST_F(HistoryTest, GoesBackToAFormWithoutControlsAndItsSettings) {
  Type(QStringLiteral("Text"), QStringLiteral("Inspection"));
  Settle();
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  Settle();
  bench->Project().Undo();
  EXPECT_TRUE(bench->Project().IsEmpty());
  EXPECT_EQ(bench->Stage().Caption(), QStringLiteral("Inspection"));
  bench->Project().Undo();
  EXPECT_EQ(bench->Stage().Caption(), QStringLiteral("Form"));
  bench->Project().Redo();
  bench->Project().Redo();
  EXPECT_EQ(Designer().Controls().Count(), 2);
}

TEST_F(HistoryTest, BringsADeletedControlBackSelected) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  const QString name = Selected();
  Settle();
  Trigger("mnuDelete");
  EXPECT_FALSE(Has(name));
  Trigger("mnuUndo");
  EXPECT_TRUE(Has(name));
  EXPECT_EQ(Selected(), name);
}

TEST_F(HistoryTest, KeepsWhatWasCopied) {
  bench->Project().Insert(ControlTypeEnum::ctCommandButton);
  Trigger("mnuCopy");
  Settle();
  Trigger("mnuUndo");
  EXPECT_TRUE(bench->Project().IsEmpty());
  ASSERT_TRUE(bench->Action(QStringLiteral("mnuPaste"))->isEnabled());
  Trigger("mnuPaste");
  EXPECT_EQ(Designer().Controls().Count(), 2);
}

TEST_F(HistoryTest, CoversTheScript) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  Settle();
  bench->Script().Editor().setPlainText(QStringLiteral("Sub Form_Initialize()\nEnd Sub\n"));
  Settle();
  EXPECT_EQ(bench->Project().GetScript().content, u"Sub Form_Initialize()\r\nEnd Sub\r\n");
  Trigger("mnuUndo");
  EXPECT_EQ(bench->Script().Editor().toPlainText(), QString());
  Trigger("mnuRedo");
  EXPECT_EQ(bench->Script().Editor().toPlainText(), QStringLiteral("Sub Form_Initialize()\nEnd Sub\n"));
}

TEST_F(HistoryTest, KnowsTheSavedStateAgain) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  ASSERT_EQ(bench->Project().Save(PathOf(QStringLiteral("a.cwf"))), QString());
  EXPECT_FALSE(bench->isWindowModified());
  Type(QStringLiteral("Text"), QStringLiteral("other"));
  Settle();
  EXPECT_TRUE(bench->isWindowModified());
  Trigger("mnuUndo");
  EXPECT_FALSE(bench->isWindowModified());
}

}  // namespace
}  // namespace cardwright::workbench
