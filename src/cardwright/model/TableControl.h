// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/ClassTable.h"
#include "cardwright/model/FormOwner.h"
#include "cardwright/model/IControl.h"

namespace cardwright {

/// The part of IControl that the table of the class determines, for controls and the form alike.
/// To scripts, an object has the members of the contract and each row of its table as a property. A member
/// that is read-only in the contract (`Text`) is written through its row.
class TableControl : public IControl {
 public:
  /// The table of the class.
  const ClassTable& Table() const noexcept { return m_Table; }

  Text TypeName() const override { return m_Table.className; }
  MemberId FindMember(std::u16string_view name) const override;
  Variant Invoke(MemberId member, CallKind kind, Args args) override;
  std::vector<Text> MemberNames() const override;

  Text Name() const override { return m_UserName; }
  void SetName(const Text& name) override { m_UserName = name; }
  Text UserName() const override { return m_UserName; }

  Ref<Object> ParentForm() const override;
  void SetParentForm(Ref<Object> form) override;
  /// Called by an owner that ends while scripts or hosts still keep its controls.
  void ForgetOwner();

  std::uint8_t PropertyCount() const override { return static_cast<std::uint8_t>(m_Table.rows.size()); }
  Text PropertyName(const Variant& index) const override;
  PropertyTypeEnum PropertyType(const Variant& index) const override;
  Text PropertyDescription(const Variant& index) const override;
  Variant PropertyValue(const Variant& index) const override;
  void SetPropertyValue(const Variant& index, const Variant& value) override;
  std::vector<Text> PropertyList(const Variant& index) const override;
  Text FilenameFilter(const Variant& index) const override;
  /// SetPropertyValue for a name, without the checks for numeric indexes.
  void SetRow(std::u16string_view name, const Variant& value);

  std::int16_t ZOrder() const override { return m_ZOrder; }
  void SetZOrder(std::int16_t position) override { m_ZOrder = position; }

  Text Value(std::optional<Variant> params = {}) const override;
  Text DisplayText() const override;
  Text AttributeName() const override;
  std::vector<Text> Events() const override;

  /// The owner; one of the two at most, and both are null without an owner.
  DesignerOwner* Designer() const noexcept { return OwnerAt<DesignerOwner>(m_Designer); }
  InputOwner* Input() const noexcept { return OwnerAt<InputOwner>(m_FormInput); }

 protected:
  explicit TableControl(const ClassTable& table) : m_Table(table) {}

  /// Whichever owner there is, or null.
  FormOwner* Owner() const noexcept;
  Surface* OwnerSurface() const;
  /// Value of the row of that name as text, "" where it has none.
  Text RowText(std::u16string_view name) const;
  /// Raises the designer's PropertyChanged for a row. Does nothing outside the designer, and for a row that
  /// the class does not have.
  void RaisePropertyChanged(std::u16string_view row, const Variant& value) const;

  Text m_UserName;
  std::int16_t m_ZOrder = 0;

 private:
  /// Row of the grid, by number or name. Error 9 for a number outside; null for an unknown name.
  const PropertyRow* GridRow(const Variant& index) const;
  /// Row of the grid or hidden one; null for an unknown index.
  const PropertyRow* AnyRow(const Variant& index) const;
  const PropertyRow* RowAt(int position) const;
  const PropertyRow* RowNamed(std::u16string_view name) const;
  /// User names of the form's controls of a class, as choices in the grid; none outside the designer.
  std::vector<Text> NamesOfKind(ControlTypeEnum type) const;

  template <class Kind>
  static Kind* OwnerAt(const Ref<OwnerLink>& link) noexcept {
    return link ? static_cast<Kind*>(link->owner) : nullptr;
  }

  const ClassTable& m_Table;
  Ref<OwnerLink> m_Designer;
  Ref<OwnerLink> m_FormInput;
};

}  // namespace cardwright
