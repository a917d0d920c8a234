// SPDX-License-Identifier: MIT
#pragma once

#include <ogrsf_frmts.h>

#include <string>

#include "cardwright/orv/FieldValues.h"

namespace cardwright::orv {

/// @name Parts of statements in SQLite's SQL
/// @{
/// A name in quotes.
std::string SqlName(const std::string& name);
/// The table of a layer.
std::string SqlTable(OGRLayer& layer);
/// The column that holds the ids of a layer's features.
std::string SqlKey(OGRLayer& layer);
/// A value as a literal.
std::string SqlLiteral(const FieldValue& value, const Column& column);
/// @}

}  // namespace cardwright::orv
