// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// @name Files and paths by the platform's names. A path that holds a NUL or a lone surrogate names nothing.
/// @{
std::filesystem::path ToPath(std::u16string_view path);
Text FromPath(const std::filesystem::path& path);
bool FileExists(std::u16string_view path);
bool FolderExists(std::u16string_view path);
/// One separator between the parts; an empty part adds none.
Text BuildPath(std::u16string_view folder, std::u16string_view name);
/// Folder of a path by its text alone; "" where it names none.
Text GetParentFolderName(std::u16string_view path);
bool IsReadOnly(std::u16string_view path);
/// @}

/// All bytes of a file; none where it cannot be read.
std::optional<std::string> ReadFile(const std::filesystem::path& path);

/// What a replaced file outlives.
enum class Durability {
  Crash,      ///< the end of the program at any moment; a power cut soon after may cost the content
  PowerLoss,  ///< the loss of power too, which waits for the disk
};

/// Puts the bytes in the file's place in one step: a reader or a crash meets the old file or the new one,
/// never a part. Links are followed, the mode is kept. False where it cannot be done; the old file is
/// kept.
bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes,
                 Durability durability = Durability::PowerLoss);

}  // namespace cardwright
