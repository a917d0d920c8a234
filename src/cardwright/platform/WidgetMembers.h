// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <span>
#include <vector>

#include "cardwright/platform/Widget.h"

namespace cardwright {

/// The members that every widget answers to, then those of the lists: the rows of one widget class's table,
/// which must outlive it. For the classes here and for widgets that a toolkit adds.
std::vector<Member> WithWidgetMembers(std::initializer_list<std::span<const Member>> lists);

}  // namespace cardwright
