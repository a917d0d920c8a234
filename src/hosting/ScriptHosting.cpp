#include "hosting/ScriptHosting.h"

#include "hosting/ErrorLine.h"
#include "hosting/FilePaths.h"
#include "hosting/ScriptRun.h"
#include "hosting/TextCoding.h"
#include "platform/Files.h"
#include "vbscript/Engine.h"

namespace cardwright {
namespace {

constexpr int kDone = 0, kErrorMet = 1, kWrongUse = 2;

int Compile(const ScriptJob& job, const Text& source, const StandardStreams& streams) {
  const ScriptError fault = vbscript::Check(source);
  if (fault.number == 0) return kDone;
  streams.Tell(ErrorLine(job.file, fault));
  return kErrorMet;
}

int List(const ScriptJob& job, const Text& source, const StandardStreams& streams) {
  if (const int status = Compile(job, source, streams); status != kDone) return status;
  streams.out->Write(vbscript::Disassemble(source));
  return kDone;
}

int Refuse(const ScriptJob& job, std::u16string_view reason, const StandardStreams& streams) {
  streams.Tell(job.file + u": " + reason);
  return kWrongUse;
}

// What cannot be written in the end is an error like any other.
int Finish(const ScriptJob& job, int status, const StandardStreams& streams) {
  try {
    streams.out->Flush();
  } catch (const Error& error) {
    streams.Tell(job.file + u": the output cannot be written: " + error.Description());
    return status == kDone ? kErrorMet : status;
  }
  return status;
}

}  // namespace

int RunScript(const ScriptJob& job, ScriptSurroundings& surroundings) {
  const StandardStreams streams = StandardStreams::OfProcess();
  const Text extension = ExtensionName(job.file);
  if (EqualsNoCase(extension, u"js")) return Refuse(job, u"JScript files cannot be run yet", streams);
  if (!EqualsNoCase(extension, u"vbs")) return Refuse(job, u"only VBScript files (.vbs) can be run", streams);
  const auto bytes = FileExists(job.file) ? ReadFile(ToPath(job.file)) : std::nullopt;
  if (!bytes) return Refuse(job, u"the file cannot be read", streams);
  const Text source = DecodeSource(*bytes);
  if (job.task == ScriptJob::Task::Compile) return Compile(job, source, streams);
  if (job.task == ScriptJob::Task::Disassemble) return Finish(job, List(job, source, streams), streams);
  return Finish(job, ScriptRun(job, surroundings, streams).Run(source), streams);
}

}  // namespace cardwright
