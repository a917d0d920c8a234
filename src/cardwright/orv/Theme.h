#pragma once

#include <ogrsf_frmts.h>

#include <string>
#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"
#include "cardwright/orv/NameIndex.h"
#include "cardwright/orv/Selection.h"
#include "cardwright/orv/Store.h"
#include "cardwright/orv/Values.h"

namespace cardwright::orv {

/// The name under which every theme offers the id of its features.
inline constexpr std::u16string_view kIdName = u"OVTARVOUNIQUEID";

/// The refusal of a word that stands where a feature type should.
Text NoFeatureType(std::u16string_view word);

/// One attribute of a theme.
struct Attribute {
  Text name;
  std::string column;  ///< its name in the store
  int field = 0;       ///< its position in a feature
  Column kind;
  Text record;  ///< "Name,AttribType,Length,Decs"
};

/// A layer as forms see it: its name, its feature type and its attributes. A column whose name holds a comma
/// or a vertical bar cannot be told in the command language and is left out, as is one of binary data.
class Theme {
 public:
  Theme(OGRLayer& layer, const Store& store);

  OGRLayer& Layer() noexcept { return m_Layer; }
  const Text& Name() const noexcept { return m_Name; }
  /// Whether the theme holds features of that type: "POINT", "ARC", "POLYGON", or "" for any. Refused for
  /// another word.
  bool Answers(std::u16string_view featureType) const;
  /// "POINT", "ARC" or "POLYGON"; "ANY" for features of mixed types, "" for a table without geometry.
  std::u16string_view FeatureType() const;

  const std::vector<Attribute>& Attributes() const noexcept { return m_Attributes; }
  /// The attribute of that name, or null.
  const Attribute* Find(std::u16string_view name) const;

  Selection selection;

 private:
  void ReadAttributes(bool isUtcOnly);

  OGRLayer& m_Layer;
  Text m_Name;
  std::vector<Attribute> m_Attributes;
  NameIndex m_Index;
};

}  // namespace cardwright::orv
