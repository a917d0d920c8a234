// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/IControl.h"
#include "cardwright/shared/FeatureTypes.h"

namespace cardwright {

class Surface;

/// The objects of one form and the project that they are read from and saved to: what a form that is filled
/// in and one that is being designed have in common.
class FormDocument {
 public:
  /// Makes the CForm, which refers to its owner.
  void AddForm(const Ref<Object>& owner);

  /// All objects, the CForm first, keyed by lower-case user name.
  const Ref<Collection>& Controls() const noexcept { return m_Controls; }
  /// First object; null where a script took it away.
  Ref<IControl> Form() const;

  /// Reads a form project; false where there is no such file.
  bool Read(const Text& fileName) const;
  /// Saves the form project. A temporary save is one that the host discards again.
  bool Save(const Text& fileName, bool isTemporary) const;

  /// @name What the form is bound to
  /// @{
  Text ThemeName() const;
  FeatureTypeEnum FeatureType() const;
  /// @}

  /// Takes the widgets off their surface, where it has not ended, and the owner from the objects, which stay
  /// with whoever holds them.
  void Detach(Surface* surface) const;
  /// Leaves the objects to whoever else holds them.
  void Clear() { m_Controls = MakeRef<Collection>(); }

 private:
  Ref<Collection> m_Controls = MakeRef<Collection>();
};

}  // namespace cardwright
