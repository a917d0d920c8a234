// SPDX-License-Identifier: MIT
// The script control as a host drives it: an input is a list of orders to a control, with the code that they
// add. Scripts reach the control through an object of the host, so that whatever runs can be reset, run again
// or given to another language under its own feet. Whatever fails fails by a number, and nothing is left
// behind.
//
// An order is a line that begins with #; the lines ahead of it are its code.
//   #code            adds it to the global module
//   #module NAME     adds it to a module
//   #run NAME        calls a procedure of the global module
//   #language NAME   changes the language
//   #object NAME     adds the host's object under another name
//   #reset

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "cardwright/automation/MemberTable.h"
#include "cardwright/automation/MemoryBudget.h"
#include "cardwright/jscript/JScriptEngine.h"
#include "cardwright/platform/EngineControl.h"
#include "cardwright/vbscript/VbScriptEngine.h"

namespace {

using namespace cardwright;

constexpr std::int32_t kTimeout = 40;  // milliseconds
constexpr int kMostOrders = 24;
constexpr int kMostCalls = 60;  // of the host's object, in one input
constexpr int kDeepest = 4;     // calls of the control within each other
constexpr int kWindow = 7;

void Require(bool holds) {
  if (!holds) std::abort();
}

std::unique_ptr<ScriptEngine> MakeVbscript(ScriptHost& host) {
  return vbscript::MakeEngine(host, {.callDepth = 200, .textUnits = 1 << 16, .memoryBytes = 4 << 20});
}
// From then on memory is also given back when the collector likes.
bool hasCollector = false;

std::unique_ptr<ScriptEngine> MakeJscript(ScriptHost& host) {
  hasCollector = true;
  return jscript::MakeEngine(host, {.stackBytes = 256 << 10, .textUnits = 1 << 16, .memoryBytes = 64 << 20});
}
ScriptLanguages Languages() {
  return {{u"VBScript", u"vbs", MakeVbscript, nullptr, nullptr},
          {u"JScript", u"js", MakeJscript, nullptr, nullptr}};
}

/// The host's object. It keeps what scripts give it, calls what it keeps, and does to the control what hosts
/// do.
class Stage final : public TableObject {
 public:
  explicit Stage(ScriptControl& control) : m_Control(&control) {}

  Text TypeName() const override { return u"Stage"; }

  void Reset() {
    Use([&](ScriptControl& control) { control.Reset(); });
  }
  void Language(const Text& name) {
    Use([&](ScriptControl& control) { control.SetLanguage(name); });
  }
  void AddCode(const Text& code) {
    Use([&](ScriptControl& control) { control.AddCode(code); });
  }
  void AddModule(const Text& name, const Text& code) {
    Use([&](ScriptControl& control) { control.AddModule(name)->AddCode(code); });
  }
  Variant Run(const Text& procedure, std::optional<Variant> argument) {
    Variant result;
    Use([&](ScriptControl& control) {
      Variant value = argument.value_or(Variant());
      result = control.Run(procedure, argument ? Args(&value, 1) : Args());
    });
    return result;
  }
  void AddObject(const Text& name, const Variant& object) {
    Use([&](ScriptControl& control) { control.AddObject(name, Ref<Object>(&RequireObject(object)), true); });
  }
  void Stop() {
    Use([&](ScriptControl& control) { control.Interrupt(); });
  }
  std::int32_t ErrorNumber() {
    std::int32_t number = 0;
    Use([&](ScriptControl& control) { number = control.LastError().number; });
    return number;
  }
  std::int32_t Procedures() {
    std::size_t count = 0;
    Use([&](ScriptControl& control) {
      for (const Ref<ScriptModule>& module : control.Modules()) count += module->Procedures().size();
    });
    return static_cast<std::int32_t>(count);
  }

  Variant Kept() const { return m_Kept; }
  void Keep(const Variant& value) { m_Kept = value; }
  /// Calls what it keeps as a function.
  Variant Call(Variant argument) {
    Variant result;
    Use([&](ScriptControl&) {
      const Ref<Object> kept(&RequireObject(m_Kept));
      result = kept->Invoke(kept->DefaultMember(), CallKind::MethodOrGet, Args(&argument, 1));
    });
    return result;
  }
  /// Reads and writes a member of what it keeps, and counts its items.
  Variant Touch(const Text& name) {
    Variant result;
    Use([&](ScriptControl&) {
      const Ref<Object> kept(&RequireObject(m_Kept));
      LetProperty(*kept, name, Variant(1));
      result = GetProperty(*kept, name);
      const std::unique_ptr<Enumerator> items = kept->Enumerate();
      Variant item;
      for (int k = 0; k < 9 && items->Next(item); ++k) continue;
    });
    return result;
  }

  /// From now on there is no control.
  void Leave() { m_Control = nullptr; }

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {
        Method<&Stage::Reset>(u"Reset"),
        Method<&Stage::Language>(u"Language"),
        Method<&Stage::AddCode>(u"AddCode"),
        Method<&Stage::AddModule>(u"AddModule"),
        Method<&Stage::Run>(u"Run"),
        Method<&Stage::AddObject>(u"AddObject"),
        Method<&Stage::Stop>(u"Stop"),
        Property<&Stage::ErrorNumber>(u"ErrorNumber"),
        Property<&Stage::Procedures>(u"Procedures"),
        Property<&Stage::Kept, &Stage::Keep, &Stage::Keep>(u"Kept"),
        Method<&Stage::Call>(u"Call"),
        Method<&Stage::Touch>(u"Touch"),
    };
    static const MemberTable table(kMembers, u"Kept");
    return table;
  }

 private:
  template <class Step>
  void Use(Step&& step) {
    if (!m_Control || ++m_Calls > kMostCalls || m_Depth >= kDeepest)
      Raise(cardwright::ErrorNumber::InvalidCall);
    struct Deeper {
      int& depth;
      explicit Deeper(int& at) : depth(++at) {}
      ~Deeper() { --depth; }
    } const deeper(m_Depth);
    const Ref<ScriptControl> control(m_Control);
    step(*control);
  }

  ScriptControl* m_Control;
  Variant m_Kept;
  int m_Calls = 0;
  int m_Depth = 0;
};

class Play {
 public:
  Play() {
    m_Control->SetLanguage(u"VBScript");
    Prepare();
  }
  ~Play() {
    m_Stage->Leave();
    if (m_KeptLast) m_Control = {};
    m_Stage->Keep({});
  }
  Play(const Play&) = delete;
  Play& operator=(const Play&) = delete;

  void Perform(std::string_view input) {
    m_KeptLast = input.size() % 2 != 0;
    std::size_t codeFrom = 0;
    int orders = 0;
    for (std::size_t from = 0, end; from < input.size() && orders < kMostOrders; from = end + 1) {
      end = std::min(input.find('\n', from), input.size());
      if (input[from] != '#') continue;
      Obey(input.substr(from + 1, end - from - 1), Text::FromUtf8(input.substr(codeFrom, from - codeFrom)));
      codeFrom = end + 1;
      ++orders;
    }
    RunAll();
  }

 private:
  void Prepare() {
    m_Control->SetTimeout(kTimeout);
    m_Control->SetAllowUI(false);
    m_Control->AddObject(u"Stage", m_Stage, true);
  }

  void Obey(std::string_view order, const Text& code) {
    const std::size_t blank = std::min(order.find(' '), order.size());
    const Text name = Text::FromUtf8(order.substr(std::min(blank + 1, order.size())));
    const std::string_view word = order.substr(0, blank);
    if (word == "code") return Try([&] { m_Control->AddCode(code); });
    if (word == "module") return Try([&] { m_Control->AddModule(name)->AddCode(code); });
    if (word == "run") return Try([&] { m_Control->Run(name, {}); });
    if (word == "object") return Try([&] { m_Control->AddObject(name, m_Stage, true); });
    if (word == "language") return Try([&] { Restart([&] { m_Control->SetLanguage(name); }); });
    if (word == "reset") return Try([&] { Restart([&] { m_Control->Reset(); }); });
  }

  template <class Step>
  void Restart(Step&& step) {
    step();
    Prepare();
  }

  void RunAll() {
    int count = 0;
    for (const Ref<ScriptModule>& module : m_Control->Modules())
      for (const ScriptProcedure& procedure : module->Procedures()) {
        if (++count > 6) return;
        std::vector<Variant> arguments(static_cast<std::size_t>(procedure.argumentCount),
                                       Variant(Ref<Object>(m_Stage)));
        Try([&] { module->Run(procedure.name, arguments); });
      }
  }

  // What fails outside scripts, as for a name that is taken, is the caller's mistake and noted nowhere.
  template <class Step>
  void Try(Step&& step) {
    const int before = m_Control->LastError().number;
    try {
      step();
    } catch (const Error& error) {
      const int noted = m_Control->LastError().number;
      Require(error.Number() != 0 && (noted == error.Number() || noted == 0 || noted == before));
    }
  }

  Ref<EngineControl> m_Control = MakeRef<EngineControl>(
      Languages(), [] { return std::make_unique<ScriptHost>(); },
      [](std::int32_t handle) { return handle == kWindow; });
  Ref<Stage> m_Stage = MakeRef<Stage>(*m_Control);
  bool m_KeptLast = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::size_t used = MemoryBudget::Used();
  Play().Perform({reinterpret_cast<const char*>(data), size});
  Require(hasCollector || MemoryBudget::Used() == used);
  return 0;
}
