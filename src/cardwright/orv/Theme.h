// SPDX-License-Identifier: MIT
#pragma once

#include <ogrsf_frmts.h>

#include <string>
#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"
#include "cardwright/orv/FeatureSelection.h"
#include "cardwright/orv/FieldValues.h"
#include "cardwright/orv/NameLookup.h"
#include "cardwright/orv/Store.h"

namespace cardwright::orv {

/// The name under which every theme offers the id of its features.
inline constexpr std::u16string_view kIdName = u"OVTARVOUNIQUEID";

/// The error message for a word that is no feature type.
Text UnknownFeatureType(std::u16string_view word);

/// One attribute of a theme.
struct Attribute {
  Text name;
  std::string column;  ///< name in the store
  int field = 0;       ///< index in a feature
  Column kind;
  Text record;  ///< "Name,AttribType,Length,Decs"
};

/// A layer as forms see it: its name, its feature type and its attributes. Columns of binary data are left
/// out, and so are columns whose name holds a comma or a vertical bar, which the command language cannot
/// express.
class Theme {
 public:
  Theme(OGRLayer& layer, const Store& store);

  OGRLayer& Layer() noexcept { return m_Layer; }
  const Text& Name() const noexcept { return m_Name; }
  /// Whether the theme holds features of that type: "POINT", "ARC", "POLYGON", or "" for any. Fails for
  /// another word.
  bool HasFeatureType(std::u16string_view featureType) const;
  /// "POINT", "ARC" or "POLYGON"; "ANY" for features of mixed types, "" for a table without geometry.
  std::u16string_view FeatureType() const;

  const std::vector<Attribute>& Attributes() const noexcept { return m_Attributes; }
  /// The attribute of that name, or null.
  const Attribute* FindAttribute(std::u16string_view name) const;

  FeatureSelection selection;

 private:
  void ReadAttributes(bool isUtcOnly);

  OGRLayer& m_Layer;
  Text m_Name;
  std::vector<Attribute> m_Attributes;
  NameLookup m_AttributeNames;
};

}  // namespace cardwright::orv
