// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"

namespace cardwright::robot {

/// A message box that was shown. By name: Text, Title, Style. Default member: Text.
class ShownMessage final : public TableObject {
 public:
  ShownMessage(cardwright::Text text, cardwright::Text title, int style)
      : m_Text(std::move(text)), m_Title(std::move(title)), m_Style(style) {}

  cardwright::Text TypeName() const override { return u"Message"; }
  cardwright::Text Text() const { return m_Text; }
  /// The title as shown: the program's name where none was given.
  cardwright::Text Title() const { return m_Title; }
  std::int32_t Style() const noexcept { return m_Style; }

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {
        Property<&ShownMessage::Text>(u"Text"),
        Property<&ShownMessage::Title>(u"Title"),
        Property<&ShownMessage::Style>(u"Style"),
    };
    static const MemberTable table(kMembers, u"Text");
    return table;
  }

 private:
  const cardwright::Text m_Text;
  const cardwright::Text m_Title;
  const std::int32_t m_Style;
};

}  // namespace cardwright::robot
