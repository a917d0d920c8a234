// SPDX-License-Identifier: MIT
#include "launcher/ScriptCommand.h"

#include <cstdlib>

#include "cardwright/hosting/ScriptHosting.h"
#include "launcher/CommandLine.h"
#include "launcher/DesktopModule.h"
#include "launcher/Languages.h"
#include "launcher/Modules.h"

namespace cardwright::app {
namespace {

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value != '\0';
}

CommandLine ScriptLine() {
  return CommandLine(
      {.name = "script",
       .summary = "Runs a VBScript or JScript file. Status 1 after an error that the script did not "
                  "catch, 130 after Ctrl+C,\nelse what WScript.Quit said, or 0.",
       .operands = "FILE [ARG…]",
       .leastOperands = 1,
       .options = {{"--check", "only compile the script"},
                   {"--disassemble", "only compile the script, in VBScript, and write its instructions"},
                   {"--trace", "print each statement on standard error before it runs"},
                   {"--profile", "print on standard error how long each line took"},
                   {"--display", "insist on a display for windows"},
                   {"--codepage <NAME>", "code page of form projects and plain text files (windows-1252)"},
                   {"--locale <NAME>", "language and country, as in it-IT"},
                   {"--help", "this text (-h)"},
                   {"--version", "the program's version (-v)"}},
       .optionPlace = CommandText::OptionPlace::BeforeOperands});
}

ScriptJob JobOf(const CommandLine& line) {
  ScriptJob job;
  job.file = Text::FromUtf8(line.Operands().front());
  for (const std::string& word : std::span(line.Operands()).subspan(1))
    job.arguments.push_back(Text::FromUtf8(word));
  if (line.Has("check")) job.task = ScriptJob::Task::Compile;
  if (line.Has("disassemble")) job.task = ScriptJob::Task::Disassemble;
  job.traces = line.Has("trace");
  job.profiles = line.Has("profile");
  return job;
}

}  // namespace

int RunScriptCommand(std::span<const std::string> words) {
  CommandLine line = ScriptLine();
  if (const auto status = line.Parse(words)) return *status;
  const bool hasDisplay = IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY");
  if (line.Has("display") && !hasDisplay) return line.Refuse("there is no display");

  ScriptEnvironment environment{.languages = Languages(), .classes = {}};
  environment.program = Text::FromUtf8(ProgramPath());
  environment.hasDisplay = hasDisplay;
  AddCoreClasses(environment.classes);
  const ScriptDisplay display = line.Has("display") ? ScriptDisplay::Required : ScriptDisplay::IfThere;
  environment.classes.SetLoader(u"Cardwright.", [&environment, display](ClassRegistry&) {
    environment.desktop = LoadDesktopModule().startForScript(display, environment);
  });
  return RunScript(JobOf(line), environment);
}

}  // namespace cardwright::app
