// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"

namespace cardwright {

/// What a form's script calls "OrvDebugger": writes to the host's debug output, and nowhere without one.
class ScriptDebugger final : public TableObject {
 public:
  Text TypeName() const override { return u"ScriptDebugger"; }

  void SetOutput(Ref<Object> output) { m_Output = std::move(output); }
  /// The value and a line end.
  void Show(const Variant& value);
  /// The value alone.
  void WriteOut(const Variant& value);

 protected:
  const MemberTable& Members() const override;

 private:
  Ref<Object> m_Output;
};

}  // namespace cardwright
