// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cardwright/designer/Placement.h"
#include "cardwright/designer/Selection.h"
#include "cardwright/model/Control.h"

namespace cardwright {

class FormDesigner;
struct ClassTable;

/// Puts new controls on the surface of a designer, drawn or pasted.
class Placer {
 public:
  /// Both outlive the placer.
  Placer(FormDesigner& designer, Selection& selection) : m_Designer(designer), m_Selection(selection) {}

  /// Creates the widget and the control object, gives them size and contents, adds the control to the form
  /// and selects it. False where no widget could be created. From then on failures are ignored: as much
  /// is done as can be.
  bool Place(const Placement& placement);

 private:
  struct NewControl {
    const ClassTable* table = nullptr;
    Ref<Widget> widget;
    Ref<Control> control;  ///< null for a widget that no class controls
  };

  DesignSurface& Canvas() const;
  Text NextName();
  NewControl Create(const Placement& placement);
  Ref<Widget> AddWidget(std::u16string_view identifier, Widget* container);
  void Bind(const NewControl& made) const;
  void Size(const NewControl& made, const Placement& placement) const;
  void ApplyCopy(const NewControl& made, const Placement& placement);
  void KeepInContainer(Control& pasted, const Widget* container) const;
  void AddToForm(const NewControl& made);

  FormDesigner& m_Designer;
  Selection& m_Selection;
  std::int16_t m_LastNumber = 0;
};

}  // namespace cardwright
