// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "cardwright/platform/HostConnection.h"
#include "cardwright/shared/FeatureTypes.h"

namespace cardwright {

struct ListedTheme {
  Text name;
  FeatureTypeEnum featureType = FeatureTypeEnum::ftNone;  ///< also where the host does not say
};

struct ListedAttribute {
  Text name;
  int number = 0;  ///< in the host's own list, from 1
};

/// The host's command language as calls: each makes the text of a command, sends it, and reads the reply.
/// Hosts parse these texts as they are, so a text that a release has sent never changes.
///
/// Nothing is escaped: a name that holds a bar cannot be sent. Numbers are read from the start of a reply, so
/// an empty one is 0. Errors of the connection reach the caller.
class OrvClient {
 public:
  explicit OrvClient(Ref<HostConnection> host) : m_Host(std::move(host)) {}
  /// The host that the thread's forms are connected to at the moment of each command.
  static OrvClient Shared();
  /// The host of a connection handle; one that is no connection gets nothing and answers "".
  static OrvClient At(std::int32_t handle);

  /// @name Selection, of which each feature class has one.
  /// @{
  /// Selects the feature of an identifier, instead of what was selected.
  void SelectByValue(const FeatureClass& features, const Text& id);
  double SelectedNumber(const FeatureClass& features);
  /// Makes the first selected feature the current one.
  void MoveFirst(const FeatureClass& features);
  bool CurrentIsValid(const FeatureClass& features);
  void SelectNone(const FeatureClass& features);
  /// @}

  /// @name Attributes.
  /// @{
  /// All attributes, by a request for each.
  std::vector<AttributeRecord> Attributes(const FeatureClass& features);
  /// One by its number from 1; none for an empty reply.
  std::optional<AttributeRecord> Attribute(const FeatureClass& features, int number);
  /// As the host answers, in its order.
  std::vector<Text> AttributeNames(const FeatureClass& features);
  /// Value of the current feature.
  Text GetAttribute(const FeatureClass& features, const Text& name);
  /// An empty text of a character attribute is sent as a blank, which clears it; a number has its decimal
  /// separator replaced by a point.
  void SetAttribute(const FeatureClass& features, const AttributeRecord& attribute, const Text& value);
  /// @}

  /// @name Themes.
  /// @{
  /// 0 where the host's project has no theme of that name.
  double ThemeNumber(const Text& theme);
  Text ActiveTheme();
  /// True where the theme is there afterwards. A name that no command or list can hold (blank, with a comma,
  /// a bar or a control character) is not sent; blanks around one are cut.
  bool CreateTheme(const FeatureClass& features);
  /// @}

  /// @name Drawing of the host's map.
  /// @{
  void SuspendRedraw();
  void ResumeRedraw();
  void Redraw();
  /// @}

  /// @name Lists to choose from. Names are trimmed; empty ones and all but the first of equal ones are left
  /// out, and a list ends after 65,535 names.
  /// @{
  /// Two requests, whatever the number of themes.
  std::vector<ListedTheme> ListThemes();
  /// One request; none for an empty theme.
  std::vector<ListedAttribute> ListAttributes(const FeatureClass& features);
  /// The record of a listed attribute; none where the host has none, or describes another attribute.
  std::optional<AttributeRecord> Describe(const FeatureClass& features, const ListedAttribute& attribute);
  /// @}

  /// Handle of the connection that the host itself uses.
  std::int32_t ConnectionHandle();

 private:
  double RequestNumber(const Text& command);
  /// All names with commas between them.
  Text RequestAttributeNames(const FeatureClass& features);

  Ref<HostConnection> m_Host;
};

}  // namespace cardwright
