#include "cardwright/hosting/StandardStreams.h"

#include <unistd.h>

namespace cardwright {
namespace {

using Access = TextStream::Access;
using Buffering = TextStream::Buffering;

Ref<TextStream> StreamOf(FileHandle file, Access access, Buffering buffering) {
  return MakeRef<TextStream>(std::move(file), access, TextCoding::Utf8, TextStream::LineEnd::Lf, buffering);
}

FileHandle Handle(int descriptor) { return {descriptor, FileHandle::Owner::Program}; }

}  // namespace

StandardStreams StandardStreams::OfProcess() {
  FileHandle file = Handle(STDOUT_FILENO);
  // A person wants to see what is written as it comes; a program is quicker served by blocks.
  const Buffering buffering = file.IsTerminal() ? Buffering::None : Buffering::Blocks;
  const Ref<TextStream> out = StreamOf(std::move(file), Access::Write, buffering);
  const Ref<TextStream> in = StreamOf(Handle(STDIN_FILENO), Access::Read, Buffering::Blocks);
  in->SetPrompt(out);
  return {in, out, StreamOf(Handle(STDERR_FILENO), Access::Write, Buffering::None)};
}

void StandardStreams::Tell(std::u16string_view line) const {
  // Streams that nobody reads any more are no reason to fail.
  Attempt([&] { out->Flush(); });
  Attempt([&] { error->WriteLine(Text(line)); });
}

}  // namespace cardwright
