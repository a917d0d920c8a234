// SPDX-License-Identifier: MIT
#include "cardwright/model/TableControl.h"

#include <algorithm>

#include "cardwright/shared/Lookups.h"
#include "cardwright/shared/Messages.h"

namespace cardwright {

// Member numbers of rows follow those of the contract; a row with the name of a member is reached through the
// member.
MemberId TableControl::FindMember(std::u16string_view name) const {
  const MemberId contract = Members().Find(name);
  if (contract != kNoMember) return contract;
  auto number = static_cast<MemberId>(Members().Members().size());
  for (auto rows : {m_Table.rows, m_Table.hidden})
    for (const PropertyRow& row : rows) {
      if (EqualsNoCase(row.name, name)) return number;
      ++number;
    }
  return kNoMember;
}

Variant TableControl::Invoke(MemberId member, CallKind kind, Args args) {
  const auto members = Members().Members();
  const auto contractCount = static_cast<MemberId>(members.size());
  const bool writes = kind == CallKind::Let || kind == CallKind::Set;
  const PropertyRow* row = nullptr;
  if (member >= contractCount) {
    row = RowAt(member - contractCount);
  } else if (member >= 0 && writes && !members[static_cast<std::size_t>(member)].let) {
    row = RowNamed(members[static_cast<std::size_t>(member)].name);
  }
  if (!row) return Members().Invoke(*this, member, kind, args);

  if (!writes) {
    if (!Allows(kind, CallKind::Get)) Raise(ErrorNumber::NotSupported);
    Variant value = row->field.get(*this);
    if (args.empty()) return value;
    Object& collection = RequireObject(value);  // Items(1)
    return collection.Invoke(collection.DefaultMember(), kind, args);
  }
  if (args.size() != 1) Raise(ErrorNumber::WrongArgumentCount);
  if (row->field.set) row->field.set(*this, args[0].Deref());
  return {};
}

std::vector<Text> TableControl::MemberNames() const {
  std::vector<Text> names = IControl::MemberNames();
  for (auto rows : {m_Table.rows, m_Table.hidden})
    for (const PropertyRow& row : rows)
      if (Members().Find(row.name) == kNoMember) names.emplace_back(row.name);
  return names;
}

Ref<Object> TableControl::ParentForm() const { return Ref<Object>(dynamic_cast<Object*>(Owner())); }

// Hosts may pass any object: its type name decides, and an object of another type is ignored.
void TableControl::SetParentForm(Ref<Object> form) {
  if (!form) return;
  const Text type = ToLower(form->TypeName());
  const auto* designer = dynamic_cast<DesignerOwner*>(form.get());
  const auto* input = dynamic_cast<InputOwner*>(form.get());
  if (type == u"formdesigner" && designer) m_Designer = designer->Link();
  if (type == u"forminput" && input) m_FormInput = input->Link();
}

void TableControl::ForgetOwner() {
  m_Designer = nullptr;
  m_FormInput = nullptr;
}

FormOwner* TableControl::Owner() const noexcept {
  if (Designer()) return Designer();
  return Input();
}

Surface* TableControl::OwnerSurface() const {
  FormOwner* owner = Owner();
  return owner ? owner->GetSurface() : nullptr;
}

const PropertyRow* TableControl::RowAt(int position) const {
  if (position < 0) return nullptr;
  auto at = static_cast<std::size_t>(position);
  if (at < m_Table.rows.size()) return &m_Table.rows[at];
  at -= m_Table.rows.size();
  return at < m_Table.hidden.size() ? &m_Table.hidden[at] : nullptr;
}

const PropertyRow* TableControl::RowNamed(std::u16string_view name) const {
  for (auto rows : {m_Table.rows, m_Table.hidden})
    for (const PropertyRow& row : rows)
      if (EqualsNoCase(row.name, name)) return &row;
  return nullptr;
}

const PropertyRow* TableControl::AnyRow(const Variant& index) const {
  return RowAt(PropertyIndexOf(m_Table.rowNames, index, m_Table.hiddenNames));
}

const PropertyRow* TableControl::GridRow(const Variant& index) const {
  const int position = PropertyIndexOf(m_Table.rowNames, index, {});
  const bool inTable = position >= 0 && position < static_cast<int>(m_Table.rows.size());
  if (!inTable && IsNumeric(index)) Raise(ErrorNumber::SubscriptOutOfRange);
  return inTable ? RowAt(position) : nullptr;
}

Text TableControl::PropertyName(const Variant& index) const {
  const PropertyRow* row = GridRow(index);
  return row ? Text(row->name) : Text();
}

PropertyTypeEnum TableControl::PropertyType(const Variant& index) const {
  const PropertyRow* row = GridRow(index);
  return row ? row->type : PropertyTypeEnum::ptNone;
}

Text TableControl::PropertyDescription(const Variant& index) const {
  const PropertyRow* row = GridRow(index);
  if (!row) return {};
  return row->argument ? GetMessage(row->description, {Variant(GetMessage(row->argument))})
                       : GetMessage(row->description);
}

Variant TableControl::PropertyValue(const Variant& index) const {
  const PropertyRow* row = AnyRow(index);
  return row ? row->field.get(*this) : Variant();
}

void TableControl::SetPropertyValue(const Variant& index, const Variant& value) {
  const PropertyRow* row = AnyRow(index);
  if (row && row->field.set) row->field.set(*this, value);
}

void TableControl::SetRow(std::u16string_view name, const Variant& value) {
  const PropertyRow* row = RowNamed(name);
  if (row && row->field.set) row->field.set(*this, value);
}

std::vector<Text> TableControl::PropertyList(const Variant& index) const {
  const PropertyRow* row = AnyRow(index);
  if (!row) return {};
  if (row->type == PropertyTypeEnum::ptControls) return NamesOfKind(row->links);
  return {row->choices.begin(), row->choices.end()};
}

std::vector<Text> TableControl::NamesOfKind(ControlTypeEnum type) const {
  std::vector<Text> names;
  if (!Designer()) return names;
  for (const Ref<IControl>& control : Designer()->FilterControls(type)) names.push_back(control->UserName());
  return names;
}

Text TableControl::FilenameFilter(const Variant& index) const {
  const PropertyRow* row = AnyRow(index);
  return row && row->filter ? GetMessage(row->filter) : Text();
}

Text TableControl::RowText(std::u16string_view name) const {
  const PropertyRow* row = RowNamed(name);
  return row ? ToText(row->field.get(*this)) : Text();
}

Text TableControl::Value(std::optional<Variant>) const { return RowText(u"Text"); }
Text TableControl::DisplayText() const { return RowText(u"Text"); }
Text TableControl::AttributeName() const { return RowText(u"Attribute"); }

std::vector<Text> TableControl::Events() const { return {m_Table.events.begin(), m_Table.events.end()}; }

void TableControl::RaisePropertyChanged(std::u16string_view row, const Variant& value) const {
  if (!Designer()) return;
  // Not every change has a row: the height of a combo box has none.
  const auto names = m_Table.rowNames;
  const auto changed = std::ranges::find(names, row);
  if (changed != names.end())
    Designer()->RaisePropertyChanged(static_cast<int>(changed - names.begin()), value);
}

}  // namespace cardwright
