#pragma once

#include <string_view>

#include "cardwright/orv/Store.h"

namespace cardwright::orv {

/// Refuses a name that no layer of the store should get: one that commands could not name or lists not hold,
/// or that the store keeps for itself.
void RequireThemeName(std::u16string_view name, const Store& store);

/// Makes a layer without attributes for features of that type, "POINT", "ARC" or "POLYGON", or with "" a
/// table without geometry. It takes the reference system of the first layer that has one. When this returns,
/// the layer is in the store; where it is refused, nothing is.
OGRLayer& CreateLayer(Store& store, std::u16string_view name, std::u16string_view featureType);

}  // namespace cardwright::orv
