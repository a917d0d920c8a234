// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/ErrObject.h"

#include <utility>

#include "cardwright/vbscript/machine/ScriptFault.h"

namespace cardwright::vbscript {

ErrObject::State ErrObject::Exchange(State state) noexcept {
  return {.number = std::exchange(m_Number, state.number),
          .description = std::exchange(m_Description, std::move(state.description)),
          .source = std::exchange(m_Source, std::move(state.source)),
          .helpFile = std::exchange(m_HelpFile, std::move(state.helpFile)),
          .helpContext = std::exchange(m_HelpContext, state.helpContext)};
}

void ErrObject::Set(int number, Text description, Text source) {
  m_Number = number;
  m_Description = std::move(description);
  m_Source = std::move(source);
}

void ErrObject::Clear() { Exchange({}); }

void ErrObject::SetNumber(std::int32_t number) {
  Set(number, number ? StandardErrorText(number) : Text(), number ? Text(kRuntimeErrorSource) : Text());
}

void ErrObject::Raise(std::int32_t number, std::optional<Text> source, std::optional<Text> description,
                      std::optional<Text> helpFile, std::optional<std::int32_t> helpContext) {
  if (number == 0) cardwright::Raise(ErrorNumber::InvalidCall);
  m_HelpFile = helpFile.value_or(Text());
  m_HelpContext = helpContext.value_or(0);
  const bool isStandard = number > 0 && number <= 0xFFFF;
  const Text text = description.value_or(StandardErrorText(number));
  const Text origin = source.value_or(isStandard ? Text(kRuntimeErrorSource) : Text());
  cardwright::Raise(number, text, origin);
}

const MemberTable& ErrObject::Members() const {
  static constexpr Member kMembers[] = {
      Property<&ErrObject::Number, &ErrObject::SetNumber>(u"Number"),
      PlainField<&ErrObject::m_Description>(u"Description"),
      PlainField<&ErrObject::m_Source>(u"Source"),
      PlainField<&ErrObject::m_HelpFile>(u"HelpFile"),
      PlainField<&ErrObject::m_HelpContext>(u"HelpContext"),
      Method<&ErrObject::Raise>(u"Raise"),
      Method<&ErrObject::Clear>(u"Clear"),
  };
  static const MemberTable table(kMembers, u"Number");
  return table;
}

}  // namespace cardwright::vbscript
