#pragma once

#include "cardwright/model/ClassTable.h"
#include "cardwright/model/TableControl.h"
#include "cardwright/storage/CIni.h"

namespace cardwright {

/// Reads one key of a class into the control. A value that does not convert leaves the present one.
void ReadKey(TableControl& control, const FileKey& key, const CIni& ini, const Text& section);
/// Writes one entry of a class's section from the control.
void WriteKey(const TableControl& control, const FileKey& key, CIni& ini, const Text& section);

/// @name The six keys of a font.
/// @{
FontValues ReadFontKeys(const FontValues& current, const CIni& ini, const Text& section);
void WriteFontKeys(const FontValues& font, CIni& ini, const Text& section);
/// @}

}  // namespace cardwright
