// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/runtime/CAttrib.h"

namespace cardwright {

class OrvClient;

/// The feature that a form is filled in for.
struct BoundFeature {
  FeatureClass features;     ///< that it is one of
  Text id;                   ///< the host's unique identifier; blank for none
  bool isNew = false;        ///< not stored yet: there are no values to load
  bool isDebugging = false;  ///< values are not stored, the commands are printed to the debug output
};

/// Carries the values of a feature's attributes into the controls of a form and back.
class AttributeBinding {
 public:
  /// Loads the values and limits what can be typed to what the attributes hold. Does nothing without a
  /// connection or, outside debugging, without a feature.
  void Load(const Collection& controls, const BoundFeature& feature);
  /// Stores the controls' values. False where nothing was tried: without a connection, without a feature, or
  /// with one that the host does not have.
  bool Store(const Collection& controls, const BoundFeature& feature);

 private:
  /// The attributes as the host has them now. The host's reply rarely changes, so the collection is cached
  /// for as long as the reply is the same.
  Ref<CAttribs> AttributesOf(OrvClient& host, const FeatureClass& features);
  void LoadControls(OrvClient& host, const Collection& controls, const BoundFeature& feature);

  std::vector<AttributeRecord> m_Records;
  Ref<CAttribs> m_Attribs;  // of the records; null before the first reading
};

}  // namespace cardwright
