// SPDX-License-Identifier: MIT
#include <array>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/operators/Operand.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

namespace {

/// The characters of a value. For strings and whole numbers no new string is made.
class Spelling {
 public:
  explicit Spelling(const Operand& operand) {
    switch (operand.Kind()) {
      case OperandType::Empty:
      case OperandType::Null: break;
      case OperandType::Text: m_View = operand.Value().StringView(); break;
      case OperandType::Byte:
      case OperandType::Integer:
      case OperandType::Long: Spell(WholeValue(operand)); break;
      default: m_Text = ToText(operand); m_View = m_Text;
    }
  }
  Spelling(const Spelling&) = delete;
  Spelling& operator=(const Spelling&) = delete;

  std::u16string_view View() const noexcept { return m_View; }

 private:
  void Spell(std::int32_t value) noexcept {
    std::size_t first = m_Digits.size();
    auto rest = static_cast<std::uint32_t>(value);
    if (value < 0) rest = 0 - rest;
    do {
      m_Digits[--first] = static_cast<char16_t>(u'0' + rest % 10);
      rest /= 10;
    } while (rest != 0);
    if (value < 0) m_Digits[--first] = u'-';
    m_View = {&m_Digits[first], m_Digits.size() - first};
  }

  std::array<char16_t, 11> m_Digits;  // of a Long with its sign
  Text m_Text;
  std::u16string_view m_View;
};

}  // namespace

Variant Concatenate(const Variant& left, const Variant& right) {
  const Operand a(left);
  const Operand b(right);
  if (HasNull(a.Kind(), b.Kind()) && a.Kind() == b.Kind()) return Variant::Null();
  const Spelling head(a);
  const Spelling tail(b);
  return Text::OfSize(head.View().size() + tail.View().size(), [&](char16_t* to) {
    head.View().copy(to, head.View().size());
    tail.View().copy(to + head.View().size(), tail.View().size());
  });
}

}  // namespace cardwright::vbscript
