#pragma once

#include <memory>

#include "cardwright/automation/MemberTable.h"
#include "cardwright/hosting/FileHandle.h"
#include "cardwright/hosting/TextCoding.h"

namespace cardwright {

/// A text being read from a file or written to one, a program's own streams included. Errors for scripts: 54
/// where a stream for reading is written to or the other way round, 62 for reading at the end, 14 for reading
/// more at once than a text may hold, 91 once it is closed, 5 for a character that the code page lacks, 61
/// for a full disk.
class TextStream final : public TableObject {
 public:
  enum class Access { Read, Write };
  /// What WriteLine and WriteBlankLines put at the end of a line.
  enum class LineEnd { CrLf, Lf };

  /// When what is written goes out: in blocks, or at once.
  enum class Buffering { Blocks, None };

  /// A stream over an open file, from where it stands.
  TextStream(FileHandle file, Access access, TextCoding coding, LineEnd lineEnd = LineEnd::CrLf,
             Buffering buffering = Buffering::Blocks);
  /// Writes what waits to be written; a failure then is passed over.
  ~TextStream() override;

  Text TypeName() const override { return u"TextStream"; }

  /// @name Reading
  /// @{
  bool AtEndOfStream();
  bool AtEndOfLine();
  /// At most so many characters.
  Text Read(std::int32_t count);
  /// Up to the end of the line, which is passed over: LF, or CR LF.
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
  /// Writes what waits in that stream whenever this one is about to wait for something to read.
  void SetPrompt(Ref<TextStream> prompt) { m_Prompt = std::move(prompt); }
  /// @}

  void Close();
  /// @name Place of the next character, from 1
  /// @{
  std::int32_t Line() const noexcept { return Shown(m_Line); }
  std::int32_t Column() const noexcept { return Shown(m_Column); }
  /// @}

 protected:
  const MemberTable& Members() const override;

 private:
  /// Scripts know no larger numbers.
  static std::int32_t Shown(std::int64_t place) noexcept;
  void Require(Access access) const;
  /// True where a character is there to be read.
  bool Fill();
  void RequireMore();
  void Advance(std::u16string_view text) noexcept;
  /// Takes up to `count` characters, or where `toLine` up to behind a line end.
  std::u16string Take(std::size_t count, bool toLine);
  void Put(std::u16string_view text);

  FileHandle m_File;
  const Access m_Access;
  const TextCoding m_Coding;
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
