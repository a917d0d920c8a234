// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/hosting/WScriptArguments.h"

namespace cardwright {

class FileScriptHost;

/// The host's object for scripts.
class WScript final : public TableObject {
 public:
  /// `host` outlives every call.
  explicit WScript(FileScriptHost& host);
  Text TypeName() const override { return u"Object"; }
  FileScriptHost& Host() const noexcept { return m_Host; }
  Ref<WScriptArguments> Arguments() const { return m_Arguments; }

 protected:
  const MemberTable& Members() const override;

 private:
  FileScriptHost& m_Host;
  const Ref<WScriptArguments> m_Arguments;
};

}  // namespace cardwright
