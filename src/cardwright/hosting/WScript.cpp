#include "cardwright/hosting/WScript.h"

#include "cardwright/hosting/FilePaths.h"
#include "cardwright/hosting/ScriptRun.h"

namespace cardwright {
namespace {

Variant Echo(Object& self, Args args) {
  ScriptRun& run = static_cast<WScript&>(self).Run();
  Text line;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (i > 0) line += u" ";
    line += run.TextOf(args[i]);
  }
  run.Streams().out->WriteLine(line);
  return {};
}

Ref<Object> Create(WScript& self, const Text& progid, std::optional<Text> prefix) {
  const Ref<Object> object = self.Run().Create(progid);
  if (prefix) self.Run().Events().Connect(*object, *prefix);
  return object;
}

void Connect(WScript& self, Ref<Object> object, const Text& prefix) {
  if (!object) Raise(ErrorNumber::ObjectNotSet);
  self.Run().Events().Connect(*object, prefix);
}

void Disconnect(WScript& self, Ref<Object> object) {
  if (!object) Raise(ErrorNumber::ObjectNotSet);
  self.Run().Events().Disconnect(*object);
}

void Sleep(WScript& self, std::int32_t milliseconds) {
  if (milliseconds < 0) Raise(ErrorNumber::InvalidCall);
  self.Run().Sleep(std::chrono::milliseconds(milliseconds));
}

void Quit(WScript& self, std::optional<std::int32_t> status) { self.Run().Quit(status.value_or(0)); }

Text ProgramName(WScript&) { return u"Cardwright"; }
Text FullName(WScript& self) { return self.Run().Program(); }
Text Path(WScript& self) { return ParentName(self.Run().Program()); }
Text ScriptFullName(WScript& self) { return AbsolutePath(self.Run().Job().file); }
Text ScriptName(WScript& self) { return FileName(self.Run().Job().file); }
Ref<TextStream> StdIn(WScript& self) { return self.Run().Streams().in; }
Ref<TextStream> StdOut(WScript& self) { return self.Run().Streams().out; }
Ref<TextStream> StdErr(WScript& self) { return self.Run().Streams().error; }

constexpr Member kWScriptMembers[] = {
    Property<&WScript::Words>(u"Arguments"),
    Method<&Connect>(u"ConnectObject"),
    Method<&Create>(u"CreateObject"),
    Method<&Disconnect>(u"DisconnectObject"),
    {.name = u"Echo", .method = &Echo},
    Property<&FullName>(u"FullName"),
    Property<&ProgramName>(u"Name"),
    Property<&Path>(u"Path"),
    Method<&Quit>(u"Quit"),
    Property<&ScriptFullName>(u"ScriptFullName"),
    Property<&ScriptName>(u"ScriptName"),
    Method<&Sleep>(u"Sleep"),
    Property<&StdErr>(u"StdErr"),
    Property<&StdIn>(u"StdIn"),
    Property<&StdOut>(u"StdOut"),
};

}  // namespace

WScript::WScript(ScriptRun& run) : m_Run(run), m_Words(MakeRef<Arguments>(run.Job().arguments)) {}

const MemberTable& WScript::Members() const {
  static const MemberTable table(kWScriptMembers);
  return table;
}

}  // namespace cardwright
