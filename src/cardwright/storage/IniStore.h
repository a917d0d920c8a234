// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "cardwright/automation/Ref.h"
#include "cardwright/platform/Files.h"
#include "cardwright/storage/FileStamp.h"
#include "cardwright/storage/IniFile.h"

namespace cardwright {

/// One INI file on disk and its parsed image. Every question is answered from the file as it is at that
/// moment: the image is kept only as long as it provably shows what the file holds (see FileStamp).
class IniStore final : public RefCounted {
 public:
  /// The calling thread's store of a file; none where the text names no path.
  static Ref<IniStore> Open(std::u16string_view fileName);

  /// The same; the file is created empty where it is missing. None for a blank name, or where no file can be
  /// created.
  static Ref<IniStore> OpenOrCreate(const Text& fileName);

  explicit IniStore(std::filesystem::path path) : m_Path(std::move(path)) {}

  /// What the file holds now; an empty image for a file that is not there or cannot be read. Valid until the
  /// next call.
  const IniFile& Image();
  /// The same for longer: it does not follow later changes, and the store leaves it alone. Not to be changed.
  std::shared_ptr<IniFile> Snapshot();
  /// Runs `change` on the image and, where it answers true, puts the result in the file's place in one step.
  /// False, with the file as it was, where the file is missing, is read-only or cannot be replaced.
  bool Change(const std::function<bool(IniFile&)>& change);
  /// Puts the bytes in the file's place in one step; false as for Change.
  bool Replace(std::string_view bytes, Durability durability);
  /// True where the file is there and carries no read-only attribute.
  bool IsWritable() const;
  /// Removes the file where it is there and holds nothing.
  void RemoveIfEmpty();

 private:
  void Refresh();
  void Load();
  bool Write(std::string_view bytes, Durability durability);
  void Forget();

  std::filesystem::path m_Path;
  std::shared_ptr<IniFile> m_Image = std::make_shared<IniFile>();
  bool m_IsLoaded = false;
  std::optional<FileStamp> m_Stamp;  // of the file that the image shows; none for a missing file
  bool m_IsSettled = false;          // a later change cannot leave the same stamp
};

}  // namespace cardwright
