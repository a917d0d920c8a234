#pragma once

#include "cardwright/hosting/WScriptArguments.h"

namespace cardwright {

class FileScriptHost;

/// The object through which a script meets its host.
class WScript final : public TableObject {
 public:
  /// `run` outlives every call.
  explicit WScript(FileScriptHost& host);
  Text TypeName() const override { return u"Object"; }
  FileScriptHost& Host() const noexcept { return m_Host; }
  Ref<WScriptArguments> Words() const { return m_Words; }

 protected:
  const MemberTable& Members() const override;

 private:
  FileScriptHost& m_Host;
  const Ref<WScriptArguments> m_Words;
};

}  // namespace cardwright
