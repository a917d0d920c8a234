// SPDX-License-Identifier: MIT
#include "cardwright/hosting/StandardStreams.h"

#include <unistd.h>

namespace cardwright {
namespace {

using Access = TextStream::Access;
using Buffering = TextStream::Buffering;

Ref<TextStream> StreamOf(FileHandle file, Access access, Buffering buffering) {
  return MakeRef<TextStream>(std::move(file), access, TextEncoding::Utf8, TextStream::LineEnd::Lf, buffering);
}

FileHandle Handle(int descriptor) { return {descriptor, FileHandle::Owner::Program}; }

}  // namespace

StandardStreams StandardStreams::OfProcess() {
  FileHandle file = Handle(STDOUT_FILENO);
  // A user wants to see output at once; for a program, blocks are faster.
  const Buffering buffering = file.IsTerminal() ? Buffering::None : Buffering::Blocks;
  const Ref<TextStream> out = StreamOf(std::move(file), Access::Write, buffering);
  const Ref<TextStream> in = StreamOf(Handle(STDIN_FILENO), Access::Read, Buffering::Blocks);
  in->SetPrompt(out);
  return {in, out, StreamOf(Handle(STDERR_FILENO), Access::Write, Buffering::None)};
}

void StandardStreams::WriteErrorLine(std::u16string_view line) const {
  // A closed pipe at the other end must not fail the script.
  BestEffort([&] { out->Flush(); });
  BestEffort([&] { error->WriteLine(Text(line)); });
}

}  // namespace cardwright
