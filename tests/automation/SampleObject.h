// SPDX-License-Identifier: MIT
#pragma once

#include <map>

#include "cardwright/automation/Collection.h"
#include "cardwright/automation/MemberTable.h"

namespace cardwright {

/// A class with every kind of member, for the tests of calls by name.
class SampleObject final : public TableObject {
 public:
  enum class Shade : std::int32_t { Light = 1, Dark = 2 };

  Text TypeName() const override { return u"Sample"; }

  std::int32_t Number() const { return m_Number; }
  void SetNumber(std::int32_t number) { m_Number = number; }
  Text Caption() const { return m_Caption; }
  void SetCaption(const Text& caption) { m_Caption = caption; }
  Text Cell(const Text& row, std::int32_t column) const {
    const auto found = m_Cells.find({row.ToUtf8(), column});
    return found == m_Cells.end() ? Text() : found->second;
  }
  void SetCell(const Text& row, std::int32_t column, const Text& value) {
    m_Cells[{row.ToUtf8(), column}] = value;
  }
  Ref<Object> Link() const { return m_Link; }
  void SetLink(Ref<Object> link) { m_Link = std::move(link); }
  Ref<Collection> Parts() const { return m_Parts; }
  Shade GetShade() const { return m_Shade; }
  void SetShade(Shade shade) { m_Shade = shade; }
  std::int32_t Add(std::int32_t a, std::optional<std::int32_t> b, std::optional<Text> c) {
    return a + b.value_or(10) + static_cast<std::int32_t>(c ? c->Size() : 100);
  }
  bool IsGiven(Variant value) const { return !value.IsMissing(); }
  void Raise() { RaiseEvent(u"Raised"); }
  void RaiseWith(Variant& value) {
    Variant reference = Variant::ByRef(value);
    RaiseEvent(u"Changing", {&reference, 1});
  }
  std::vector<Text> Names() const { return {u"one", u"two"}; }

 protected:
  const MemberTable& Members() const override;

 private:
  std::int32_t m_Number = 0;
  Text m_Caption;
  std::map<std::pair<std::string, std::int32_t>, Text> m_Cells;
  Ref<Object> m_Link;
  Ref<Collection> m_Parts = MakeRef<Collection>();
  Shade m_Shade = Shade::Light;
};

}  // namespace cardwright
