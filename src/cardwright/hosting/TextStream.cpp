// SPDX-License-Identifier: MIT
#include "cardwright/hosting/TextStream.h"

#include <algorithm>
#include <limits>

namespace cardwright {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 16;
constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();
// The engines' limit for one string.
constexpr std::size_t kMaxText = std::size_t{1} << 28;

constexpr Member kTextStreamMembers[] = {
    Property<&TextStream::AtEndOfLine>(u"AtEndOfLine"),
    Property<&TextStream::AtEndOfStream>(u"AtEndOfStream"),
    Property<&TextStream::Column>(u"Column"),
    Property<&TextStream::Line>(u"Line"),
    Method<&TextStream::Close>(u"Close"),
    Method<&TextStream::Read>(u"Read"),
    Method<&TextStream::ReadAll>(u"ReadAll"),
    Method<&TextStream::ReadLine>(u"ReadLine"),
    Method<&TextStream::Skip>(u"Skip"),
    Method<&TextStream::SkipLine>(u"SkipLine"),
    Method<&TextStream::Write>(u"Write"),
    Method<&TextStream::WriteBlankLines>(u"WriteBlankLines"),
    Method<&TextStream::WriteLine>(u"WriteLine"),
};

std::size_t RequireCount(std::int32_t count) {
  if (count < 0) Raise(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(count);
}

}  // namespace

TextStream::TextStream(FileHandle file, Access access, TextEncoding encoding, LineEnd lineEnd,
                       Buffering buffering)
    : m_File(std::move(file)),
      m_Access(access),
      m_Encoding(encoding),
      m_LineEnd(lineEnd),
      m_Buffering(buffering) {}

TextStream::~TextStream() {
  if (m_File.IsOpen()) BestEffort([&] { Flush(); });
}

const MemberTable& TextStream::Members() const {
  static const MemberTable table(kTextStreamMembers);
  return table;
}

void TextStream::Require(Access access) const {
  if (!m_File.IsOpen()) Raise(ErrorNumber::ObjectNotSet);
  if (m_Access != access) Raise(ErrorNumber::BadFileMode);
}

bool TextStream::Fill() {
  while (m_Next == m_Text.Size() && !m_AtEnd) {
    if (m_Prompt) m_Prompt->Flush();
    const std::size_t kept = m_Bytes.size();
    m_Bytes.resize(kept + kBlock);
    // Stays so where the read fails: then nothing more can be read.
    m_AtEnd = true;
    const std::size_t count = m_File.Read(m_Bytes.data() + kept, kBlock);
    m_Bytes.resize(kept + count);
    m_AtEnd = count == 0;
    m_Text = DecodeAvailable(m_Encoding, m_Bytes, m_AtEnd);
    m_Next = 0;
  }
  return m_Next < m_Text.Size();
}

void TextStream::RequireMore() {
  Require(Access::Read);
  if (!Fill()) Raise(ErrorNumber::InputPastEnd);
}

std::int32_t TextStream::ToPosition(std::int64_t count) noexcept {
  return static_cast<std::int32_t>(std::min<std::int64_t>(count, std::numeric_limits<std::int32_t>::max()));
}

void TextStream::Advance(std::u16string_view text) noexcept {
  const std::size_t lastEnd = text.rfind(u'\n');
  if (lastEnd == std::u16string_view::npos) {
    m_Column += static_cast<std::int64_t>(text.size());
    return;
  }
  for (const char16_t c : text) m_Line += c == u'\n';
  m_Column = static_cast<std::int64_t>(text.size() - lastEnd);
}

std::u16string TextStream::Take(std::size_t count, bool toLine) {
  std::u16string taken;
  while (count > 0 && Fill()) {
    std::u16string_view rest = m_Text.View().substr(m_Next, count);
    const std::size_t end = toLine ? rest.find(u'\n') : std::u16string_view::npos;
    if (end != std::u16string_view::npos) rest = rest.substr(0, end + 1);
    if (taken.size() + rest.size() > kMaxText) Raise(ErrorNumber::OutOfStringSpace);
    Advance(rest);
    taken += rest;
    m_Next += rest.size();
    count -= rest.size();
    if (end != std::u16string_view::npos) break;
  }
  return taken;
}

bool TextStream::AtEndOfStream() {
  Require(Access::Read);
  return !Fill();
}

bool TextStream::AtEndOfLine() {
  Require(Access::Read);
  if (!Fill()) return true;
  const char16_t next = m_Text[m_Next];
  return next == u'\r' || next == u'\n';
}

Text TextStream::Read(std::int32_t count) {
  Require(Access::Read);
  const std::size_t wanted = RequireCount(count);
  if (wanted == 0) return {};
  RequireMore();
  return Take(wanted, false);
}

Text TextStream::ReadLine() {
  RequireMore();
  std::u16string line = Take(kAll, true);
  if (line.ends_with(u'\n')) {
    line.pop_back();
    if (line.ends_with(u'\r')) line.pop_back();
  }
  return line;
}

Text TextStream::ReadAll() {
  RequireMore();
  return Take(kAll, false);
}

void TextStream::Skip(std::int32_t count) {
  Require(Access::Read);
  // In blocks, as the skipped text need not fit into one string.
  for (std::size_t wanted = RequireCount(count); wanted > 0;) {
    const std::size_t taken = Take(std::min(wanted, kBlock), false).size();
    if (taken == 0) Raise(ErrorNumber::InputPastEnd);
    wanted -= taken;
  }
}

void TextStream::SkipLine() {
  RequireMore();
  while (Fill() && !Take(kBlock, true).ends_with(u'\n')) {
  }
}

void TextStream::Put(std::u16string_view text) {
  const auto bytes = EncodeText(m_Encoding, text);
  if (!bytes) Raise(ErrorNumber::InvalidCall);
  m_Bytes += *bytes;
  Advance(text);
  if (m_Buffering == Buffering::None || m_Bytes.size() >= kBlock) Flush();
}

void TextStream::Write(const Text& text) {
  Require(Access::Write);
  Put(text);
}

void TextStream::WriteLine(std::optional<Text> text) {
  Require(Access::Write);
  Put(text.value_or(Text()) + (m_LineEnd == LineEnd::CrLf ? u"\r\n" : u"\n"));
}

void TextStream::WriteBlankLines(std::int32_t count) {
  Require(Access::Write);
  for (std::size_t left = RequireCount(count); left > 0; --left) WriteLine({});
}

void TextStream::Flush() {
  if (m_Access != Access::Write || !m_File.IsOpen()) return;
  const std::string bytes = std::exchange(m_Bytes, {});
  m_File.Write(bytes);
}

void TextStream::Close() {
  // Closes the file even where the last bytes cannot be written.
  const FileHandle closing = std::move(m_File);
  if (m_Access == Access::Write && closing.IsOpen()) closing.Write(std::exchange(m_Bytes, {}));
}

}  // namespace cardwright
