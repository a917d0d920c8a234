// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/CommonFields.h"

namespace cardwright {

namespace detail {
template <class M>
struct GetterOf;
template <class R, class W>
struct GetterOf<R (W::*)() const> {
  using Kind = W;
};
}  // namespace detail

/// The bound widget as the kind that the class accepts. Error 91 where none is bound.
template <class Kind>
Kind& BoundAs(const TableControl& control) {
  Widget* widget = As<Control>(control).Bound();
  if (!widget) Raise(ErrorNumber::ObjectNotSet);
  return static_cast<Kind&>(*widget);
}

/// @name Fields that the widget keeps, given by its accessors.
/// @{
template <auto Get, auto Set, class Kind = typename detail::GetterOf<decltype(Get)>::Kind>
inline constexpr Field WidgetText{
    [](const TableControl& c) -> Variant { return (BoundAs<Kind>(c).*Get)(); },
    [](TableControl& c, const Variant& value) { (BoundAs<Kind>(c).*Set)(ToText(value)); }};

template <auto Get, auto Set, class Kind = typename detail::GetterOf<decltype(Get)>::Kind>
inline constexpr Field WidgetColor{
    [](const TableControl& c) -> Variant { return (BoundAs<Kind>(c).*Get)(); },
    [](TableControl& c, const Variant& value) { (BoundAs<Kind>(c).*Set)(ToLong(value)); }};

/// A Boolean, which grids and projects have as "True" or "False".
template <auto Get, auto Set, class Kind = typename detail::GetterOf<decltype(Get)>::Kind>
inline constexpr Field WidgetFlag{
    [](const TableControl& c) -> Variant { return (BoundAs<Kind>(c).*Get)() ? u"True" : u"False"; },
    [](TableControl& c, const Variant& value) { (BoundAs<Kind>(c).*Set)(ToBoolean(value)); }};

/// "True" only for border style 1.
template <class Kind>
inline constexpr Field WidgetBorder{
    [](const TableControl& c) -> Variant { return BoundAs<Kind>(c).BorderStyle() == 1 ? u"True" : u"False"; },
    [](TableControl& c, const Variant& value) { BoundAs<Kind>(c).SetBorderStyle(ToBoolean(value) ? 1 : 0); }};
/// @}

}  // namespace cardwright
