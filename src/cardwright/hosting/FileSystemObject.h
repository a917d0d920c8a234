// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/hosting/FileObjects.h"

namespace cardwright {

/// `Scripting.FileSystemObject`, for trusted scripts. Paths may have slashes or backslashes; a drive letter
/// is a folder's name like any other. For errors see `hosting/FileOperations.h`.
class FileSystemObject final : public TableObject {
 public:
  Text TypeName() const override { return u"FileSystemObject"; }

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
