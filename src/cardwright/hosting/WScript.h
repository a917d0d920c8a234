#pragma once

#include "cardwright/hosting/Arguments.h"

namespace cardwright {

class ScriptRun;

/// The object through which a script meets its host.
class WScript final : public TableObject {
 public:
  /// `run` outlives every call.
  explicit WScript(ScriptRun& run);
  Text TypeName() const override { return u"Object"; }
  ScriptRun& Run() const noexcept { return m_Run; }
  Ref<Arguments> Words() const { return m_Words; }

 protected:
  const MemberTable& Members() const override;

 private:
  ScriptRun& m_Run;
  const Ref<Arguments> m_Words;
};

}  // namespace cardwright
