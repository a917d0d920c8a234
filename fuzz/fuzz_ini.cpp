// SPDX-License-Identifier: MIT
// Any bytes are an INI file. What is not touched stays byte by byte, and what is written reads back.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "cardwright/storage/IniFile.h"

using cardwright::IniFile;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void ReadAll(const IniFile& file) {
  for (const std::string_view section : file.SectionNames()) {
    const cardwright::Text name = file.Page().Decode(section);
    for (const std::string_view key : file.KeyNames(name))
      Require(file.Get(name, file.Page().Decode(key)).has_value());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  IniFile file(bytes);
  Require(file.Bytes() == bytes);
  ReadAll(file);

  file.Set(u"FORM", u"Width", u" 4800");
  Require(file.Get(u"form", u"WIDTH") == "4800");
  Require(IniFile(file.Bytes()).Get(u"FORM", u"Width") == "4800");
  ReadAll(file);

  file.DeleteSection(u"FORM");
  ReadAll(IniFile(file.Bytes()));
  return 0;
}
