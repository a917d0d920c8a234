// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>

#include "cardwright/model/Control.h"
#include "cardwright/shared/Messages.h"

namespace cardwright {

namespace detail {
template <class M>
struct FieldOwner;
template <class C, class T>
struct FieldOwner<T C::*> {
  using Type = C;
};
}  // namespace detail

/// The object as the class that a table's functions belong to.
template <class C>
C& As(TableControl& control) noexcept {
  return static_cast<C&>(control);
}
template <class C>
const C& As(const TableControl& control) noexcept {
  return static_cast<const C&>(control);
}

/// How the table of a class creates its objects.
template <class C>
Ref<Control> MakeControl() {
  return MakeRef<C>();
}

/// A text that is stored unchanged.
template <auto Member>
inline constexpr Field Stored{
    [](const TableControl& control) -> Variant {
      return As<typename detail::FieldOwner<decltype(Member)>::Type>(control).*Member;
    },
    [](TableControl& control, const Variant& value) {
      As<typename detail::FieldOwner<decltype(Member)>::Type>(control).*Member = ToText(value);
    }};

/// The same field without its setter: for keys that the class reads itself, or that are only written.
constexpr Field ReadOnly(Field field) { return {field.get, nullptr}; }

/// @name Rows that classes share, in the usual order.
/// @{
namespace rows {

Variant GetUserName(const TableControl& control);
void Rename(TableControl& control, const Variant& name);
Variant GetCaption(const TableControl& control);
void SetCaption(TableControl& control, const Variant& text);
Variant GetBackColor(const TableControl& control);
void SetBackColor(TableControl& control, const Variant& color);
Variant GetForeColor(const TableControl& control);
void SetForeColor(TableControl& control, const Variant& color);
Variant GetFont(const TableControl& control);
void SetFont(TableControl& control, const Variant& font);
Variant GetLeft(const TableControl& control);
void MoveLeft(TableControl& control, const Variant& value);
Variant GetTop(const TableControl& control);
void MoveTop(TableControl& control, const Variant& value);
Variant GetWidth(const TableControl& control);
void MoveWidth(TableControl& control, const Variant& value);
Variant GetHeight(const TableControl& control);
void MoveHeight(TableControl& control, const Variant& value);

using enum PropertyTypeEnum;
inline constexpr PropertyRow Name{u"Name", ptName, messages::NameHelp, {GetUserName, Rename}};
inline constexpr PropertyRow Text{u"Text", ptString, messages::TextHelp, {GetCaption, SetCaption}};
inline constexpr PropertyRow BackColor{
    u"BackColor", ptColor, messages::BackColorHelp, {GetBackColor, SetBackColor}};
inline constexpr PropertyRow Font{u"Font", ptFont, messages::FontHelp, {GetFont, SetFont}};
inline constexpr PropertyRow Left{u"Left", ptInteger, messages::LeftHelp, {GetLeft, MoveLeft}};
inline constexpr PropertyRow Top{u"Top", ptInteger, messages::TopHelp, {GetTop, MoveTop}};
inline constexpr PropertyRow Width{u"Width", ptInteger, messages::WidthHelp, {GetWidth, MoveWidth}};
inline constexpr PropertyRow Height{u"Height", ptInteger, messages::HeightHelp, {GetHeight, MoveHeight}};
inline constexpr PropertyRow ForeColor{
    u"ForeColor", ptColor, messages::ForeColorHelp, {GetForeColor, SetForeColor}};
inline constexpr PropertyRow Attribute{u"Attribute", ptAttribute, messages::AttributeHelp,
                                       Stored<&Control::m_Attribute>};
inline constexpr PropertyRow IsNeeded{u"IsNeeded", ptBoolean, messages::IsNeededHelp,
                                      Stored<&Control::m_IsNeeded>};

}  // namespace rows
/// @}

/// @name Keys that classes share. Their setters change the widget without the side effects of the grid's
/// rows.
/// @{
namespace keys {

void ReadCaption(TableControl& control, const Variant& text);
void ReadLeft(TableControl& control, const Variant& value);
void ReadTop(TableControl& control, const Variant& value);
void ReadWidth(TableControl& control, const Variant& value);
void ReadHeight(TableControl& control, const Variant& value);
void ReadForeColor(TableControl& control, const Variant& color);

inline constexpr KeyGroup Text{{{u"Text", KeyForm::Text, {rows::GetCaption, ReadCaption}}}};
inline constexpr KeyGroup BackColor{{{u"BackColor", KeyForm::Color, rows::BackColor.field}}};
inline constexpr KeyGroup Font{{{u"FontName", KeyForm::Font, {}}}};
inline constexpr FileKey kLeft{u"Left", KeyForm::Number, {rows::GetLeft, ReadLeft}};
inline constexpr FileKey kTop{u"Top", KeyForm::Number, {rows::GetTop, ReadTop}};
inline constexpr FileKey kWidth{u"Width", KeyForm::Number, {rows::GetWidth, ReadWidth}};
inline constexpr FileKey kHeight{u"Height", KeyForm::Number, {rows::GetHeight, ReadHeight}};
inline constexpr std::array<FileKey, 4> Geometry{kLeft, kTop, kWidth, kHeight};
/// Of classes whose height follows the font.
inline constexpr std::array<FileKey, 3> GeometryWithoutHeight{kLeft, kTop, kWidth};
inline constexpr KeyGroup ForeColor{{{u"ForeColor", KeyForm::Color, {rows::GetForeColor, ReadForeColor}}}};
inline constexpr KeyGroup Attribute{{{u"Attribute", KeyForm::Text, Stored<&Control::m_Attribute>}}};
inline constexpr KeyGroup IsNeeded{{{u"IsNeeded", KeyForm::Text, Stored<&Control::m_IsNeeded>}}};

/// A key of one class.
constexpr KeyGroup Key(std::u16string_view name, Field field, const char16_t* fallback = nullptr) {
  return {{{name, KeyForm::Text, field, fallback}}};
}

/// A key of one class that holds a colour.
constexpr KeyGroup ColorKey(std::u16string_view name, Field field) {
  return {{{name, KeyForm::Color, field}}};
}

}  // namespace keys
/// @}

/// A class without hidden rows.
inline constexpr std::array<PropertyRow, 0> kNoRows{};

}  // namespace cardwright
