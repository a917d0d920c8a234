// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "cardwright/automation/MemberTable.h"
#include "cardwright/hosting/FileHandle.h"
#include "cardwright/hosting/TextEncoding.h"

namespace cardwright {

/// The script object for reading or writing a file or one of the program's own streams. Errors: 54 for
/// writing to a stream opened for reading and for reading the other way round, 62 for reading at the end, 14
/// for reading more at once than a string may hold, 91 once it is closed, 5 for a character that the code
/// page lacks, 61 for a full disk.
class TextStream final : public TableObject {
 public:
  enum class Access { Read, Write };
  /// What WriteLine and WriteBlankLines put at the end of a line.
  enum class LineEnd { CrLf, Lf };

  /// Whether output is written in blocks or at once.
  enum class Buffering { Blocks, None };

  /// A stream over an open file, from its current position.
  TextStream(FileHandle file, Access access, TextEncoding encoding, LineEnd lineEnd = LineEnd::CrLf,
             Buffering buffering = Buffering::Blocks);
  /// Flushes; a failure is ignored.
  ~TextStream() override;

  Text TypeName() const override { return u"TextStream"; }

  /// @name Reading
  /// @{
  bool AtEndOfStream();
  bool AtEndOfLine();
  /// At most `count` characters.
  Text Read(std::int32_t count);
  /// Without the end of the line, which is skipped: LF or CR LF.
  Text ReadLine();
  Text ReadAll();
  void Skip(std::int32_t count);
  void SkipLine();
  /// @}

  /// @name Writing
  /// @{
  void Write(const Text& text);
  void WriteLine(std::optional<Text> text);
  void WriteBlankLines(std::int32_t count);
  void Flush();
  /// Flushes that stream before this one waits for input.
  void SetPrompt(Ref<TextStream> prompt) { m_Prompt = std::move(prompt); }
  /// @}

  void Close();
  /// @name Position of the next character, from 1
  /// @{
  std::int32_t Line() const noexcept { return ToPosition(m_Line); }
  std::int32_t Column() const noexcept { return ToPosition(m_Column); }
  /// @}

 protected:
  const MemberTable& Members() const override;

 private:
  /// Limited to the numbers of a Long.
  static std::int32_t ToPosition(std::int64_t count) noexcept;
  void Require(Access access) const;
  /// Reads more if need be; false at the end.
  bool Fill();
  void RequireMore();
  void Advance(std::u16string_view text) noexcept;
  /// Reads up to `count` characters; with `toLine` only up to and including the end of the line.
  std::u16string Take(std::size_t count, bool toLine);
  void Put(std::u16string_view text);

  FileHandle m_File;
  const Access m_Access;
  const TextEncoding m_Encoding;
  const LineEnd m_LineEnd;
  const Buffering m_Buffering;
  Ref<TextStream> m_Prompt;
  std::string m_Bytes;  // read but not decoded yet, or encoded but not written yet
  Text m_Text;          // decoded
  std::size_t m_Next = 0;
  bool m_AtEnd = false;
  std::int64_t m_Line = 1;
  std::int64_t m_Column = 1;
};

}  // namespace cardwright
