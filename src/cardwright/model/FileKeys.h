// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/ClassTable.h"
#include "cardwright/model/TableControl.h"

namespace cardwright {

class SectionReader;
class SectionWriter;

/// Reads one key of a class into the control. A value that does not convert leaves the present one.
void ReadKey(TableControl& control, const FileKey& key, const SectionReader& section);
/// Writes one entry of a class's section from the control.
void WriteKey(const TableControl& control, const FileKey& key, SectionWriter& section);

/// @name The six keys of a font.
/// @{
FontValues ReadFontKeys(const FontValues& current, const SectionReader& section);
void WriteFontKeys(const FontValues& font, SectionWriter& section);
/// @}

}  // namespace cardwright
