// SPDX-License-Identifier: MIT
#include "cardwright/hosting/ScriptHosting.h"

#include "cardwright/hosting/ErrorLine.h"
#include "cardwright/hosting/FilePaths.h"
#include "cardwright/hosting/FileScriptHost.h"
#include "cardwright/hosting/TextEncoding.h"
#include "cardwright/platform/Files.h"

namespace cardwright {
namespace {

int Compile(const ScriptJob& job, const ScriptLanguage& language, const Text& source,
            const StandardStreams& streams) {
  const ScriptError fault = language.check(source);
  if (fault.number == 0) return ExitStatus::kDone;
  streams.WriteErrorLine(ErrorLine(job.file, language.name, fault));
  return ExitStatus::kFailed;
}

int List(const ScriptJob& job, const ScriptLanguage& language, const Text& source,
         const StandardStreams& streams) {
  if (const int status = Compile(job, language, source, streams); status != ExitStatus::kDone) return status;
  streams.out->Write(language.disassemble(source));
  return ExitStatus::kDone;
}

Text KnownFiles(const ScriptLanguages& languages) {
  Text list;
  for (const ScriptLanguage& one : languages.All()) {
    if (!list.IsEmpty()) list += u" and ";
    list += Text(one.name) + u" (." + one.extension + u")";
  }
  return list;
}

int Refuse(const ScriptJob& job, std::u16string_view reason, const StandardStreams& streams) {
  streams.WriteErrorLine(job.file + u": " + reason);
  return ExitStatus::kUsage;
}

// Buffered output that cannot be written is an error like any other.
int Finish(const ScriptJob& job, int status, const StandardStreams& streams) {
  try {
    streams.out->Flush();
  } catch (const Error& error) {
    streams.WriteErrorLine(job.file + u": the output cannot be written: " + error.Description());
    return status == ExitStatus::kDone ? ExitStatus::kFailed : status;
  }
  return status;
}

}  // namespace

int RunScript(const ScriptJob& job, ScriptEnvironment& environment) {
  const StandardStreams streams = StandardStreams::OfProcess();
  const ScriptLanguages& languages = environment.languages;
  const ScriptLanguage* language = languages.OfExtension(ExtensionName(job.file));
  if (!language) return Refuse(job, u"only files in " + KnownFiles(languages) + u" can be run", streams);
  if (job.task == ScriptJob::Task::Disassemble && !language->disassemble)
    return Refuse(job, Text(language->name) + u" has no instructions to show", streams);
  const auto bytes = FileExists(job.file) ? ReadFile(ToPath(job.file)) : std::nullopt;
  if (!bytes) return Refuse(job, u"the file cannot be read", streams);
  const Text source = DecodeScript(*bytes);
  if (job.task == ScriptJob::Task::Compile) return Compile(job, *language, source, streams);
  if (job.task == ScriptJob::Task::Disassemble)
    return Finish(job, List(job, *language, source, streams), streams);
  return Finish(job, FileScriptHost(job, *language, environment, streams).Run(source), streams);
}

}  // namespace cardwright
