// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/orv/Store.h"

namespace cardwright::orv {

/// Fails for a name that a layer of the store must not have: one that commands or lists could not express, or
/// that the store reserves.
void CheckThemeName(std::u16string_view name, const Store& store);

/// Creates a layer without attributes for features of that type, "POINT", "ARC" or "POLYGON", or with "" a
/// table without geometry. It takes the reference system of the first layer that has one. Fails without
/// leaving anything in the store.
OGRLayer& CreateLayer(Store& store, std::u16string_view name, std::u16string_view featureType);

}  // namespace cardwright::orv
