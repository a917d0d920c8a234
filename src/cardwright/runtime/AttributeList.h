#pragma once

#include <vector>

#include "cardwright/runtime/CAttrib.h"
#include "cardwright/runtime/HostCommands.h"

namespace cardwright {

/// What a host's record "Name,AttribType,Length,Decs" says. One that has not exactly four fields makes an
/// attribute without a name, which no control can be bound to.
Ref<CAttrib> ParseAttributeRecord(const Text& record);

/// The attributes that the host has for a form's theme. The host is asked anew each time; as it nearly always
/// answers what it answered before, only a record that differs is taken apart again.
class AttributeList {
 public:
  /// Asks for all attributes of the theme. The result is not to be changed.
  Ref<CAttribs> Read(const FeaturePlace& place);

 private:
  std::vector<Text> m_Records;
  Ref<CAttribs> m_Attribs;  // what the records say; null before the first reading
};

}  // namespace cardwright
