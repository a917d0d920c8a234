// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace cardwright::vbscript {

/// Writes a valid program from bytes: each choice takes one byte, and after the last one zeros. A few names
/// are used for variables, arrays, objects and procedures alike, so that running code changes what is in use.
class ProgramWriter {
 public:
  explicit ProgramWriter(std::span<const std::uint8_t> bytes) : m_Bytes(bytes) {}
  std::u16string Write();

 private:
  unsigned Choice(unsigned count);
  template <std::size_t N>
  std::u16string Pick(const char16_t* const (&words)[N]) {
    return words[Choice(N)];
  }
  std::u16string Name();
  std::u16string Literal();
  std::u16string Expression();
  std::u16string Operand();
  std::u16string Place();
  std::u16string Arguments(unsigned least, unsigned most);
  std::u16string LibraryCall();
  std::u16string Source();

  void Line(const std::u16string& text);
  void Block();
  void Statement();
  void Simple();
  void Compound();
  void Loop();
  void Choose();
  void Procedure(const std::u16string& name, bool isMember);
  void Property(const std::u16string& name);
  void Class(const std::u16string& name);

  std::span<const std::uint8_t> m_Bytes;
  std::u16string m_Text;
  int m_Depth = 0;       // of expressions
  int m_Nesting = 0;     // of blocks
  int m_Statements = 0;  // written so far
  int m_Sources = 0;     // nested texts to execute
};

}  // namespace cardwright::vbscript
