// SPDX-License-Identifier: MIT
#include "cardwright/platform/Font.h"

#include <algorithm>

namespace cardwright {

namespace {

constexpr double kLargestSize = 2048;

template <auto Field>
auto Get(const Font& font) {
  return font.Values().*Field;
}

template <auto Field>
void Let(Font& font, std::remove_cvref_t<decltype(FontValues().*Field)> value) {
  FontValues values = font.Values();
  values.*Field = std::move(value);
  font.Assign(std::move(values));
}

template <auto Field>
constexpr Member FontProperty(std::u16string_view name) {
  return Property<&Get<Field>, &Let<Field>>(name);
}

// A size is a Currency to scripts, which is what keeps it at four decimals.
Currency GetSize(const Font& font) { return ToCurrency(font.Values().size); }

void LetSize(Font& font, const Variant& value) { Let<&FontValues::size>(font, ToFontSize(ToDouble(value))); }

}  // namespace

double ToFontSize(double points) {
  const double size = ToDouble(ToCurrency(points));
  if (size <= 0 || size > kLargestSize) Raise(ErrorNumber::InvalidPropertyValue);
  return size;
}

void Font::Assign(FontValues values) {
  if (values == m_Values) return;
  m_Values = std::move(values);
  // A user that is notified may remove itself or another one.
  const Ref<Font> held(IsHeld() ? this : nullptr);
  const std::vector<User*> users = m_Users;
  for (User* user : users) {
    if (std::ranges::find(m_Users, user) != m_Users.end()) user->OnFontChanged(*this);
  }
}

void Font::RemoveUser(User& user) { std::erase(m_Users, &user); }

const MemberTable& Font::Members() const {
  static constexpr Member kMembers[] = {
      FontProperty<&FontValues::name>(u"Name"),
      Property<&GetSize, &LetSize>(u"Size"),
      FontProperty<&FontValues::bold>(u"Bold"),
      FontProperty<&FontValues::italic>(u"Italic"),
      FontProperty<&FontValues::underline>(u"Underline"),
      FontProperty<&FontValues::strikethrough>(u"Strikethrough"),
      FontProperty<&FontValues::strikethrough>(u"Strikethru"),
  };
  static const MemberTable table(kMembers, u"Name");
  return table;
}

}  // namespace cardwright
