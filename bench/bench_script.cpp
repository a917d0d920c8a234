// SPDX-License-Identifier: MIT
// The script engine as the program that embeds it meets it: compiling, memory of an instance, calls into a
// script, and a script's calls of host objects. bench/scripts/run times whole programs beside other
// interpreters.

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "Measure.h"
#include "cardwright/automation/MemberTable.h"
#include "cardwright/vbscript/VbScriptEngine.h"

namespace {

using cardwright::CallKind;
using cardwright::Ref;
using cardwright::ScriptEngine;
using cardwright::ScriptHost;
using cardwright::Text;
using cardwright::Variant;

constexpr int kRounds = 9;

void Require(bool holds) {
  if (!holds) std::abort();
}

/// A host object with one property of the simplest kind, so that what is timed is the way to it.
class Gauge final : public cardwright::TableObject {
 public:
  Text TypeName() const override { return u"Gauge"; }

 private:
  const cardwright::MemberTable& Members() const override {
    static constexpr cardwright::Member kMembers[] = {cardwright::PlainField<&Gauge::m_Value>(u"Value")};
    static const cardwright::MemberTable table(kMembers);
    return table;
  }

  std::int32_t m_Value = 7;
};

/// A procedure as scripts of forms have them, 20 lines long.
std::u16string ProcedureSource(int number) {
  const std::u16string suffix(Text::FromUtf8(std::to_string(number)).View());
  return u"' Called when the value of field " + suffix + u" has changed.\r\n" + u"Sub Field" + suffix +
         u"_OnChange(newValue)\r\n" + u"  Dim i, total, caption\r\n" + u"  total = 0\r\n" +
         u"  For i = 1 To 10 Step 2\r\n" + u"    total = total + i * " + suffix + u" Mod 7\r\n" +
         u"  Next\r\n" + u"  caption = \"Field \" & " + suffix + u" & \": \" & total\r\n" +
         u"  If newValue = \"\" Then\r\n" +
         u"    MsgBox caption & \" is needed\", vbExclamation, \"Check\"\r\n" +
         u"  ElseIf IsNumeric(newValue) And Len(newValue) < 8 Then\r\n" + u"    Form.Controls(\"Field" +
         suffix + u"\").Text = FormatNumber(CDbl(newValue) * 1.5, 2)\r\n" +
         u"    Form.Controls(\"Total\").Text = CStr(total)\r\n" + u"  Else\r\n" +
         u"    Select Case UCase(Left(newValue, 1))\r\n" +
         u"      Case \"A\", \"B\": caption = Replace(caption, \":\", \" -\")\r\n" +
         u"      Case Else: caption = Trim(caption)\r\n" + u"    End Select\r\n" + u"  End If\r\n" +
         u"End Sub\r\n";
}

/// A class as such scripts keep their records in, 20 lines long too.
std::u16string ClassSource(int number) {
  const std::u16string suffix(Text::FromUtf8(std::to_string(number)).View());
  return u"Class Record" + suffix + u"\r\n" + u"  Public Name\r\n" + u"  Private m_Amount, m_Rows()\r\n" +
         u"  Private Sub Class_Initialize()\r\n" + u"    m_Amount = 0\r\n" + u"    ReDim m_Rows(10)\r\n" +
         u"  End Sub\r\n" + u"  Public Property Get Amount()\r\n" + u"    Amount = m_Amount\r\n" +
         u"  End Property\r\n" + u"  Public Property Let Amount(newAmount)\r\n" +
         u"    If newAmount < 0 Then Err.Raise 5\r\n" + u"    m_Amount = newAmount\r\n" +
         u"  End Property\r\n" + u"  Public Function Describe(ByVal indent)\r\n" +
         u"    On Error Resume Next\r\n" + u"    Describe = Space(indent) & Name & \": \" & m_Amount\r\n" +
         u"    m_Rows(indent Mod 10) = Describe\r\n" + u"  End Function\r\n" + u"End Class\r\n";
}

std::u16string Source(int lines) {
  constexpr int kLinesOfOne = 20;
  constexpr int kClasses = 5;  // each fifth piece is a class
  std::u16string source;
  for (int i = 1; i <= lines / kLinesOfOne; ++i)
    source += i % kClasses == 0 ? ClassSource(i) : ProcedureSource(i);
  return source;
}

void MeasureCompiling() {
  const std::u16string source = Source(100000);
  Require(std::count(source.begin(), source.end(), u'\n') == 100000);
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round)
    times.push_back(bench::Time([&] { Require(cardwright::vbscript::Check(source).number == 0); }));
  bench::Report("Compile 100,000 lines", bench::Median(std::move(times)), "ms", 500);
}

double ResidentKiB() {
  long pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

double AllocatedKiB() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd) / 1024;
}

/// Memory of one engine, as the mean of a hundred that live side by side.
template <class Prepare>
void MeasureMemory(const std::string& what, ScriptHost& host, Prepare&& prepare) {
  constexpr int kEngines = 100;
  constexpr double kTargetKiB = 1024;
  const auto first = cardwright::vbscript::MakeEngine(host);  // what all engines share is made here
  prepare(*first);
  const double resident = ResidentKiB();
  const double allocated = AllocatedKiB();
  std::vector<std::unique_ptr<ScriptEngine>> engines(kEngines);
  for (auto& engine : engines) {
    engine = cardwright::vbscript::MakeEngine(host);
    prepare(*engine);
  }
  bench::Report(what + ", resident", (ResidentKiB() - resident) / kEngines, "KiB", kTargetKiB);
  bench::Report(what + ", allocated", (AllocatedKiB() - allocated) / kEngines, "KiB", kTargetKiB);
}

/// Nanoseconds of one of `count` equal steps that `work` does.
template <class Work>
double StepTime(int count, Work&& work) {
  std::vector<double> times;
  work();
  for (int round = 0; round < kRounds; ++round) times.push_back(bench::Time(work));
  return bench::Median(std::move(times)) * 1e6 / count;
}

constexpr int kSteps = 1000000;

// The loops differ by the access alone: each assigns once a turn.
constexpr std::u16string_view kAccessLoops =
    u"Sub Plain(o, steps)\n Dim i, x\n For i = 1 To steps\n x = i\n Next\nEnd Sub\n"
    u"Sub Reading(o, steps)\n Dim i, x\n For i = 1 To steps\n x = o.Value\n Next\nEnd Sub\n"
    u"Sub Writing(o, steps)\n Dim i, x\n For i = 1 To steps\n o.Value = i\n Next\nEnd Sub\n";

void MeasureAccess(ScriptHost& host) {
  const auto engine = cardwright::vbscript::MakeEngine(host);
  engine->AddCode(u"", kAccessLoops);
  const auto gauge = cardwright::MakeRef<Gauge>();
  const auto loop = [&](std::u16string_view procedure) {
    return StepTime(kSteps, [&] {
      Variant args[] = {Variant(gauge), Variant(std::int32_t{kSteps})};
      engine->Run(u"", procedure, args);
    });
  };
  const cardwright::MemberId value = gauge->FindMember(u"Value");
  const double direct = StepTime(kSteps, [&] {
    std::int64_t sum = 0;
    for (int i = 0; i < kSteps; ++i) sum += gauge->Invoke(value, CallKind::Get, {}).Long();
    Require(sum != 0);
  });
  const double directWrite = StepTime(kSteps, [&] {
    for (std::int32_t i = 1; i <= kSteps; ++i) {
      Variant args[] = {Variant(i)};
      gauge->Invoke(value, CallKind::Let, args);
    }
  });
  const double plain = loop(u"Plain");
  const double reading = loop(u"Reading") - plain;
  const double writing = loop(u"Writing") - plain;
  bench::Report("One turn of an empty For loop with an assignment", plain, "ns", 0);
  bench::Report("Host property read, in all", reading, "ns", 0);
  bench::Report("Host property read, beyond Object::Invoke", reading - direct, "ns", 60);
  bench::Report("Host property written, in all", writing, "ns", 0);
  bench::Report("Host property written, beyond Object::Invoke", writing - directWrite, "ns", 60);
}

void MeasureCalls(ScriptHost& host) {
  const auto engine = cardwright::vbscript::MakeEngine(host);
  engine->AddCode(u"", u"Sub Nothing1()\nEnd Sub\nFunction Second(a, b)\nSecond = b\nEnd Function\n");
  constexpr int kCalls = 200000;
  const double empty = StepTime(kCalls, [&] {
    for (int i = 0; i < kCalls; ++i) engine->Run(u"", u"Nothing1", {});
  });
  const double second = StepTime(kCalls, [&] {
    for (std::int32_t i = 0; i < kCalls; ++i) {
      Variant args[] = {Variant(std::int32_t{1}), Variant(i)};
      Require(engine->Run(u"", u"Second", args).Long() == i);
    }
  });
  bench::Report("Empty procedure called by Run", empty, "ns", 0);
  bench::Report("Function of two arguments called by Run", second, "ns", 0);
}

}  // namespace

int main() {
  ScriptHost host;
  MeasureMemory("An engine without code", host, [](ScriptEngine&) {});
  const std::u16string form = Source(500);
  MeasureMemory("An engine with a form's 500 lines", host, [&](ScriptEngine& engine) {
    engine.AddObject(u"Form", cardwright::MakeRef<Gauge>(), false);
    engine.AddCode(u"", form);
  });
  MeasureCompiling();
  MeasureAccess(host);
  MeasureCalls(host);
  return 0;
}
