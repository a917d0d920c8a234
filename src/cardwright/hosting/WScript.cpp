// SPDX-License-Identifier: MIT
#include "cardwright/hosting/WScript.h"

#include "cardwright/hosting/FilePaths.h"
#include "cardwright/hosting/FileScriptHost.h"

namespace cardwright {
namespace {

Variant Echo(Object& self, Args args) {
  FileScriptHost& host = static_cast<WScript&>(self).Host();
  Text line;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (i > 0) line += u" ";
    line += host.TextOf(args[i]);
  }
  host.Streams().out->WriteLine(line);
  return {};
}

Ref<Object> Create(WScript& self, const Text& progid, std::optional<Text> prefix) {
  const Ref<Object> object = self.Host().Create(progid);
  if (prefix) self.Host().Events().Connect(*object, *prefix);
  return object;
}

void Connect(WScript& self, Ref<Object> object, const Text& prefix) {
  if (!object) Raise(ErrorNumber::ObjectNotSet);
  self.Host().Events().Connect(*object, prefix);
}

void Disconnect(WScript& self, Ref<Object> object) {
  if (!object) Raise(ErrorNumber::ObjectNotSet);
  self.Host().Events().Disconnect(*object);
}

void Sleep(WScript& self, std::int32_t milliseconds) {
  if (milliseconds < 0) Raise(ErrorNumber::InvalidCall);
  self.Host().Sleep(std::chrono::milliseconds(milliseconds));
}

void Quit(WScript& self, std::optional<std::int32_t> status) { self.Host().Quit(status.value_or(0)); }

Text ProgramName(WScript&) { return u"Cardwright"; }
Text FullName(WScript& self) { return self.Host().Program(); }
Text Path(WScript& self) { return ParentName(self.Host().Program()); }
Text ScriptFullName(WScript& self) { return AbsolutePath(self.Host().Job().file); }
Text ScriptName(WScript& self) { return FileName(self.Host().Job().file); }
Ref<TextStream> StdIn(WScript& self) { return self.Host().Streams().in; }
Ref<TextStream> StdOut(WScript& self) { return self.Host().Streams().out; }
Ref<TextStream> StdErr(WScript& self) { return self.Host().Streams().error; }

constexpr Member kWScriptMembers[] = {
    Property<&WScript::Arguments>(u"Arguments"),
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

WScript::WScript(FileScriptHost& host)
    : m_Host(host), m_Arguments(MakeRef<WScriptArguments>(host.Job().arguments)) {}

const MemberTable& WScript::Members() const {
  static const MemberTable table(kWScriptMembers);
  return table;
}

}  // namespace cardwright
