// SPDX-License-Identifier: MIT
// Scripts in forms: the start of a script of 500 lines over a form of 100 controls, an event with nothing in
// it, and a script that works on a field beside the same loop in C++.

#include <QApplication>
#include <memory>

#include "FormFiles.h"
#include "Measure.h"
#include "cardwright/hosting/FormScripts.h"
#include "cardwright/jscript/JScriptEngine.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/Library.h"
#include "cardwright/runtime/ScriptRun.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/vbscript/VbScriptEngine.h"

namespace {

using cardwright::EqualsNoCase;
using cardwright::IControl;
using cardwright::Text;
using cardwright::Variant;

constexpr int kPasses = 1'000'000;

void Require(bool holds) {
  if (!holds) std::abort();
}

/// A host that forms are connected to and that knows nothing.
class SilentHost final : public cardwright::HostConnection {
 public:
  Text Execute(std::u16string_view) override { return {}; }
  Text Request(std::u16string_view) override { return {}; }
};

struct Language {
  Text name;
  double startTarget;  ///< milliseconds
  std::string (*procedure)(const std::string& name, const std::string& body);
  std::string loop;
  std::string emptyLoop;
};

std::string VbProcedure(const std::string& name, const std::string& body) {
  return "Sub " + name + "()\r\n" + body + "End Sub\r\n";
}
std::string JsProcedure(const std::string& name, const std::string& body) {
  return "function " + name + "() {\r\n" + body + "}\r\n";
}

std::string VbLoop(const std::string& work) {
  return "Dim i, text\r\nFor i = 1 To " + std::to_string(kPasses) + "\r\n" + work + "Next\r\n";
}
std::string JsLoop(const std::string& work) {
  return "var text;\r\nfor (var i = 1; i <= " + std::to_string(kPasses) + "; ++i) {\r\n" + work + "}\r\n";
}

const Language kLanguages[] = {
    {u"VBScript", 5, &VbProcedure, VbLoop("text = control3.Text\r\ncontrol3.Text = text\r\n"), VbLoop("")},
    {u"JScript", 15, &JsProcedure, JsLoop("text = control3.Text;\r\ncontrol3.Text = text;\r\n"), JsLoop("")},
};

/// Five lines for each control, as event procedures have them.
std::string FormScript(const Language& language, std::size_t controls) {
  const bool isVb = language.name == u"VBScript";
  const std::string end = isVb ? "\r\n" : ";\r\n";
  std::string script;
  for (std::size_t i = 1; i <= controls; ++i) {
    const std::string self = "control" + std::to_string(i);
    script += language.procedure(
        self + "_OnClick", (isVb ? "Form.Caption = \"Field \" & \"" : "Form.Caption = \"Field \" + \"") +
                               self + "\"" + end + "Response = true" + end + self + ".Visible = true" + end);
  }
  return script;
}

void MeasureStart(cardwright::FormInput& form, const Language& language) {
  const Text script = Text::FromUtf8(FormScript(language, 100));
  const auto start = [&] { Require(RunScript(form, script, language.name, false)); };
  const std::string what = "RunScript, 500 lines, 100 controls, " + language.name.ToUtf8();
  bench::Report(what + ", the first", bench::Time(start), "ms", 0);
  std::vector<double> times;
  for (int round = 0; round < 25; ++round) times.push_back(bench::Time(start));
  bench::Report(what, bench::Median(std::move(times)), "ms", language.startTarget);
}

/// Puts a script into the form as reading a project does.
void Give(cardwright::FormInput& form, const Language& language, const std::string& script) {
  cardwright::Module().scriptContent = Text::FromUtf8(script);
  cardwright::Module().scriptLanguage = language.name;
  Require(RunScript(form, cardwright::Module().scriptContent, language.name, false));
}

double MicrosecondsOfEvent() {
  constexpr int kEvents = 100'000;
  return bench::Time([] {
           for (int i = 0; i < kEvents; ++i) Require(cardwright::RunEvent(u"control3_OnChange"));
         }) /
         kEvents * 1000;
}

void MeasureEvent(cardwright::FormInput& form, const Language& language) {
  Give(form, language, "\r\n" + language.procedure("control3_OnChange", ""));
  MicrosecondsOfEvent();
  std::vector<double> times;
  for (int round = 0; round < 7; ++round) times.push_back(MicrosecondsOfEvent());
  bench::Report("an event procedure with nothing in it, " + language.name.ToUtf8(),
                bench::Median(std::move(times)), "us", language.name == u"VBScript" ? 5 : 0);
}

void WorkOnField(IControl& field) {
  for (int i = 0; i < kPasses; ++i) {
    const Variant text = field.PropertyValue(u"Text");
    field.SetPropertyValue(u"Text", text);
  }
}

void MeasureField(cardwright::FormInput& form, const Language& language) {
  Give(form, language,
       "\r\n" + language.procedure("Work", language.loop) + language.procedure("Idle", language.emptyLoop));
  IControl* const field = FindControl(form.Controls(), u"control3");
  Require(field != nullptr);
  const auto& engine = cardwright::Module().scriptControl;
  std::vector<double> script, plain, idle;
  for (int round = 0; round < 5; ++round) {
    script.push_back(bench::Time([&] { engine->Run(u"Work"); }));
    plain.push_back(bench::Time([&] { WorkOnField(*field); }));
    idle.push_back(bench::Time([&] { engine->Run(u"Idle"); }));
  }
  const double ours = bench::Median(script), direct = bench::Median(plain), empty = bench::Median(idle);
  const std::string name = language.name.ToUtf8();
  bench::Report("a million reads and writes of a field, " + name, ours, "ms", 0);
  bench::Report("  the same loop in C++", direct, "ms", 0);
  bench::Report("  the script's loop with nothing in it", empty, "ms", 0);
  const double ratio = ours / (direct + empty);
  std::printf("  %-48s %10.2f | target <= 1.5: %s\n", "the first over the other two", ratio,
              bench::Verdict(ratio, 1.5));
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  cardwright::ProvideFormScripts({cardwright::vbscript::Language(), cardwright::jscript::Language()});
  cardwright::qt::Library library;
  library.Connect(cardwright::MakeRef<SilentHost>());
  const std::string path = std::string(CARDWRIGHT_BENCH_DATA) + "/scripted.cwf";
  bench::WriteProject(path, bench::MixedForm(5));
  cardwright::qt::FormInput form;
  Require(form.ProjectRead(QString::fromStdString(path)));
  for (const Language& language : kLanguages) {
    MeasureStart(*form.Object(), language);
    MeasureEvent(*form.Object(), language);
    MeasureField(*form.Object(), language);
  }
  return 0;
}
