// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/Picture.h"
#include "cardwright/storage/SectionReader.h"

namespace cardwright {

/// The script of a form project.
struct ProjectScript {
  Text language;  ///< "VBScript" or "JScript" as the project has it
  Text content;   ///< without its language line
};

/// A form project, read once: later changes of the file do not show.
class ProjectReader {
 public:
  /// None where there is no such file.
  static std::optional<ProjectReader> Open(std::u16string_view fileName);

  /// A section that is not there is one without keys.
  SectionReader Section(std::u16string_view name) const { return {m_File, name}; }
  /// What follows the first line "[SCRIPT]"; empty where there is none.
  ProjectScript Script() const;
  /// The same with its language line.
  Text ScriptText() const;
  /// The icon of 16 by 16 pixels; null where there is none.
  Ref<Picture> Image() const;

 private:
  explicit ProjectReader(std::shared_ptr<IniFile> file) : m_File(std::move(file)) {}

  std::shared_ptr<IniFile> m_File;
};

/// Splits a text at its first line break: `first` gets the line, the result is the rest. A text without a
/// line break is all rest.
Text SplitFirstLine(std::u16string_view text, Text& first);

/// Picture of colours in rows from the bottom up; null where they are too few for the size.
Ref<Picture> MakeBitmap(int width, int height, std::span<const OleColor> colors);

}  // namespace cardwright
