#pragma once

#include <filesystem>
#include <functional>
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

  explicit IniStore(std::filesystem::path path) : m_Path(std::move(path)) {}

  /// What the file holds now; an empty image for a file that is not there or cannot be read.
  const IniFile& Image();
  /// The whole file as it is now. Valid until the next call.
  const std::string& Bytes();
  /// Runs `change` on the image and, where it answers true, puts the result in the file's place in one step,
  /// without a wait for the disk, or leaves that to the batch that is open. False, with the file as it was,
  /// where the file is missing, is read-only or cannot be replaced.
  bool Change(const std::function<bool(IniFile&)>& change);
  /// True where the file is there and carries no read-only attribute.
  bool IsWritable() const;

  /// @name Batch: between the outermost begin and end the image stays in memory and the disk is left alone.
  /// @{
  void BeginBatch();
  /// Ends a batch; the outermost one writes the file where anything has changed, and waits until the disk has
  /// it. False where it could not.
  bool CommitBatch();
  /// Ends a batch; the outermost one forgets what was changed.
  void DropBatch();
  /// @}

  /// @name Snapshot: between begin and end questions are answered from the image of the begin. A change is
  /// made to the file as it is by then, and shows.
  /// @{
  void BeginSnapshot();
  void EndSnapshot() { --m_SnapshotDepth; }
  /// @}

 private:
  void Refresh();
  void RefreshFromDisk();
  void Load();
  bool Save(Durability durability);
  void Forget();

  std::filesystem::path m_Path;
  IniFile m_Image;
  bool m_IsLoaded = false;
  std::optional<FileStamp> m_Stamp;  // of the file that the image shows; none for a missing file
  bool m_IsSettled = false;          // a later change cannot leave the same stamp
  int m_BatchDepth = 0;
  int m_SnapshotDepth = 0;
  bool m_IsChanged = false;  // the image holds what the disk does not
  bool m_WasThere = false;   // at the begin of the batch
};

}  // namespace cardwright
