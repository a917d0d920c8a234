#pragma once

#include "cardwright/hosting/FileObjects.h"

namespace cardwright {

/// The file system for trusted scripts. Paths may have slashes or backslashes; a drive is a folder's name
/// like any other. Errors: 5, 52, 53, 58, 70, 76 as the platform's; `hosting/FileOperations.h` tells which
/// when.
class FileSystemObject final : public TableObject {
 public:
  Text TypeName() const override { return u"FileSystemObject"; }

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
