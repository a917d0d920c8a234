#pragma once

#include "cardwright/automation/Text.h"
#include "cardwright/storage/IniStore.h"

namespace cardwright {

/// While it lives, this thread's CIni calls on the file of that name work on an image in memory, and Commit
/// puts the result on disk in one step, where it outlives a power cut. Without a Commit the old file stands.
/// Batches on one file nest: the outermost decides. What others write to the file meanwhile is overwritten.
class IniBatch {
 public:
  explicit IniBatch(const Text& fileName);
  ~IniBatch();
  IniBatch(const IniBatch&) = delete;
  IniBatch& operator=(const IniBatch&) = delete;

  /// Ends the batch. False where the file could not be written, or is no longer there; it then stands as it
  /// was.
  bool Commit();

 private:
  Ref<IniStore> m_Store;  // none for a name that is no path, and after the end
};

}  // namespace cardwright
