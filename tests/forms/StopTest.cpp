// SPDX-License-Identifier: MIT
// Endless scripts of forms, and the Break key.

#include <QElapsedTimer>

#include "cardwright/qt/desktop/TerminalBreak.h"
#include "forms/FormScriptsFixture.h"

namespace cardwright {
namespace {

const std::string kQuestion = "Run-time tests|The script of the form is still running. Stop it?|other";

struct EndlessScript {
  const char* name;
  const char* endless;  ///< endless at the first click, writes "alive" at later ones
  const char* calls;    ///< calls the host endlessly
  const char* search;   ///< searches endlessly at the first click
  const char* nested;   ///< a click changes a field, whose change event is endless
  const char* box;      ///< shows a box and ends
  const char* start;    ///< endless before its first event
};

constexpr EndlessScript kEndlessScripts[] = {
    {"VBScript",
     "Dim clicks\nSub cmdToday_OnClick()\nclicks = clicks + 1\nIf clicks = 1 Then\nDo\nLoop\nEnd If\n"
     "txtDepth.Text = \"alive\"\nEnd Sub\n",
     "Sub cmdToday_OnClick()\nDo\nORVExecute \"TICK\"\nLoop\nEnd Sub\n",
     "Dim clicks\nSub cmdToday_OnClick()\nclicks = clicks + 1\nOn Error Resume Next\n"
     "Set r = CreateObject(\"VBScript.RegExp\")\nr.Pattern = \"(a+)+b\"\nDo While clicks = 1\n"
     "r.Test String(60, \"a\")\nLoop\ntxtDepth.Text = \"alive\"\nEnd Sub\n",
     "Sub cmdToday_OnClick()\ntxtDepth.Text = \"new\"\nORVExecute \"LATER\"\nEnd Sub\n"
     "Sub txtDepth_OnChange()\nDo\nLoop\nEnd Sub\n",
     "Sub cmdToday_OnClick()\nMsgBox \"Well?\"\ntxtDepth.Text = \"alive\"\nEnd Sub\n",
     "Do\nLoop\nSub cmdToday_OnClick()\nOrvDebugger.Show 1\nEnd Sub\n"},
    {"JScript",
     "var clicks = 0;\nfunction cmdToday_OnClick(){\nif (++clicks == 1) for (;;) ;\ntxtDepth.Text = "
     "'alive';\n}\n",
     "function cmdToday_OnClick(){\nfor (;;) ORVExecute('TICK');\n}\n",
     "var clicks = 0;\nfunction cmdToday_OnClick(){\n"
     "clicks++;\nwhile (clicks == 1) try { /(a+)+b/.test(new Array(60).join('a')); } catch (e) {}\n"
     "txtDepth.Text = 'alive';\n}\n",
     "function cmdToday_OnClick(){\ntry { txtDepth.Text = 'new'; } catch (e) {}\nORVExecute('LATER');\n}\n"
     "function txtDepth_OnChange(){\nfor (;;) ;\n}\n",
     nullptr, "for (;;) ;\nfunction cmdToday_OnClick(){\n}\n"},
};

/// Takes effect when events are processed.
void PressBreak(QWidget& widget) {
  QCoreApplication::postEvent(&widget, new QKeyEvent(QEvent::KeyPress, Qt::Key_Cancel, Qt::ControlModifier));
}

class EndlessScripts : public FormScripts, public testing::WithParamInterface<EndlessScript> {
 protected:
  EndlessScripts() : FormScripts(GetParam().name) {}

  static void ChooseYes() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    box->setDefaultButton(QMessageBox::Yes);
  }
};

TEST_P(EndlessScripts, EndSilentlyWhenTheUserAgrees) {
  ASSERT_TRUE(ReadScript(GetParam().endless));
  PressBreak(window);
  boxes.beforeAnswer = ChooseYes;
  QElapsedTimer time;
  time.start();
  ClickToday();
  EXPECT_GE(time.elapsed(), 900);
  EXPECT_EQ(boxes.Take(), Lines{kQuestion});
  EXPECT_EQ(Depth(), u"");
  ClickToday();
  EXPECT_EQ(Depth(), u"alive");
  EXPECT_EQ(boxes.Take(), Lines{});
}

TEST_P(EndlessScripts, ContinueWhenTheUserDeclines) {
  ASSERT_TRUE(ReadScript(GetParam().calls));
  bool breaks = true;
  int callsAfterNo = -1;
  host->onLine = [&](const std::string&) {
    if (callsAfterNo >= 0) ++callsAfterNo;
    if (std::exchange(breaks, false)) PressBreak(window);
  };
  int asked = 0;
  boxes.beforeAnswer = [&] {
    if (++asked == 1) {
      breaks = true;
      callsAfterNo = 0;
    } else {
      ChooseYes();
    }
  };
  ClickToday();
  host->onLine = nullptr;
  EXPECT_EQ(boxes.Take(), (Lines{kQuestion, kQuestion}));
  EXPECT_GT(callsAfterNo, 0);
}

TEST_P(EndlessScripts, StopDuringARegularExpressionSearch) {
  ASSERT_TRUE(ReadScript(GetParam().search));
  PressBreak(window);
  boxes.beforeAnswer = ChooseYes;
  ClickToday();
  EXPECT_EQ(boxes.Take(), Lines{kQuestion});
  EXPECT_EQ(Depth(), u"");
  ClickToday();
  EXPECT_EQ(Depth(), u"alive");
}

TEST_P(EndlessScripts, StopTheirCallersToo) {
  ASSERT_TRUE(ReadScript(GetParam().nested));
  PressBreak(window);
  boxes.beforeAnswer = ChooseYes;
  host->Take();
  ClickToday();
  EXPECT_EQ(boxes.Take(), Lines{kQuestion});
  EXPECT_EQ(Depth(), u"new");
  EXPECT_EQ(host->Take(), Lines{});
}

TEST_P(EndlessScripts, StopBeforeTheFirstEvent) {
  PressBreak(window);
  boxes.beforeAnswer = ChooseYes;
  EXPECT_TRUE(ReadScript(GetParam().start));
  EXPECT_EQ(boxes.Take(), Lines{kQuestion});
  TakeEvents();
  ClickOk();
  EXPECT_EQ(TakeEvents(), Lines{"OkClick"});
}

TEST_P(EndlessScripts, OutliveTheirFormUntilStopped) {
  ASSERT_TRUE(ReadScript(GetParam().endless));
  PressBreak(window);
  boxes.beforeAnswer = [&] {
    delete form.data();
    ChooseYes();
  };
  ClickToday();
  EXPECT_EQ(boxes.Take(), Lines{kQuestion});
}

TEST_P(EndlessScripts, StopAtCtrlCInTheTerminal) {
  const qt::TerminalBreak terminal;
  ASSERT_TRUE(ReadScript(GetParam().calls));
  bool breaks = true;
  host->onLine = [&](const std::string&) {
    if (std::exchange(breaks, false)) raise(SIGINT);
  };
  boxes.beforeAnswer = ChooseYes;
  ClickToday();
  host->onLine = nullptr;
  EXPECT_EQ(boxes.Take(), Lines{kQuestion});
}

INSTANTIATE_TEST_SUITE_P(, EndlessScripts, testing::ValuesIn(kEndlessScripts),
                         [](const auto& one) { return one.param.name; });

TEST_F(FormScripts, AreNotInterruptedWhileABoxIsOpen) {
  ASSERT_TRUE(ReadScript(kEndlessScripts[0].box));
  boxes.beforeAnswer = [&] {
    QTest::qWait(1200);
    PressBreak(*QApplication::activeModalWidget());
    QTest::qWait(50);
  };
  ClickToday();
  EXPECT_EQ(boxes.Take(), Lines{"VBScript|Well?|other"});
  EXPECT_EQ(Depth(), u"alive");
}

}  // namespace
}  // namespace cardwright
