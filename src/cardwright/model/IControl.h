// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "cardwright/automation/Collection.h"
#include "cardwright/automation/MemberTable.h"
#include "cardwright/model/Enums.h"
#include "cardwright/platform/Color.h"
#include "cardwright/platform/Font.h"

namespace cardwright {

class SectionReader;
class SectionWriter;

/// The one contract through which designer, run time, property grids and scripts see every element of a form.
/// The class itself has no behaviour: each member does nothing and returns an empty value.
class IControl : public TableObject {
 public:
  /// The bound widget's own name, or the user name if there is no widget. SetName does not change it.
  virtual Text Name() const { return {}; }
  /// Sets the user name, as `Name` means in scripts that assign it; UserName returns it.
  virtual void SetName(const Text& /*name*/) {}
  /// Name that the form's author gave; in lower case it is the key of the control in its form.
  virtual Text UserName() const { return {}; }

  /// @name Geometry in the form's scale unit. Setting raises the designer's PropertyChanged.
  /// @{
  virtual float Left() const { return 0; }
  virtual void SetLeft(float /*value*/) {}
  virtual float Top() const { return 0; }
  virtual void SetTop(float /*value*/) {}
  virtual float Width() const { return 0; }
  virtual void SetWidth(float /*value*/) {}
  virtual float Height() const { return 0; }
  virtual void SetHeight(float /*value*/) {}
  /// @}

  /// @name Colours of background and text; 0 where the class has none. Setting raises the designer's
  /// PropertyChanged.
  /// @{
  virtual OleColor BackColor() const { return 0; }
  virtual void SetBackColor(OleColor /*color*/) {}
  virtual OleColor ForeColor() const { return 0; }
  virtual void SetForeColor(OleColor /*color*/) {}
  /// @}
  /// The font object itself, shared and not copied.
  virtual Ref<cardwright::Font> GetFont() const { return {}; }
  /// Sets the font object. Error 424 for a value that is no object, 13 for another object.
  virtual void SetFont(const Variant& /*font*/) {}

  /// The bound widget.
  virtual Ref<Object> BoundObject() const { return {}; }
  /// Binds the control to its widget, or for null to none. Error 13 for an object that does not fit the
  /// class.
  virtual void BindObject(Ref<Object> /*object*/) {}
  /// The owner: a FormDesigner or a FormInput; an object of any other type is ignored.
  virtual Ref<Object> ParentForm() const { return {}; }
  /// Sets the owner.
  virtual void SetParentForm(Ref<Object> /*form*/) {}

  /// @name Property table. An index is a row's number from 0 or a name in any case. Error 9 for a number
  /// outside.
  /// @{
  virtual std::uint8_t PropertyCount() const { return 0; }
  virtual Text PropertyName(const Variant& /*index*/) const { return {}; }
  virtual PropertyTypeEnum PropertyType(const Variant& /*index*/) const { return PropertyTypeEnum::ptNone; }
  virtual Text PropertyDescription(const Variant& /*index*/) const { return {}; }
  /// Hidden rows included; Empty for an unknown index.
  virtual Variant PropertyValue(const Variant& /*index*/) const { return {}; }
  /// Does nothing for an unknown index.
  virtual void SetPropertyValue(const Variant& /*index*/, const Variant& /*value*/) {}
  /// Choices of a ptList or ptControls row.
  virtual std::vector<Text> PropertyList(const Variant& /*index*/) const { return {}; }
  /// Dialog filter of a ptFileName or ptImage row.
  virtual Text FilenameFilter(const Variant& /*index*/) const { return {}; }
  /// @}

  /// Reads a section of a form project, key by key; a missing key leaves the value unchanged.
  virtual bool Read(const Text& /*filePath*/, const Text& /*sectionName*/) { return false; }
  /// Writes to a section of a form project; false outside the designer.
  virtual bool Save(const Text& /*filePath*/, const Text& /*sectionName*/) { return false; }

  /// @name The same for a project that is open.
  /// @{
  virtual bool ReadFrom(const SectionReader& /*section*/) { return false; }
  virtual bool SaveTo(SectionWriter& /*section*/) const { return false; }
  /// @}

  /// Only stored; the owner changes the z-order of the widget.
  virtual std::int16_t ZOrder() const { return 0; }
  virtual void SetZOrder(std::int16_t /*position*/) {}
  /// Removes the widget from the surface.
  virtual void Delete() {}

  /// The control's value as scripts and hosts read it; what is stored is TakeValue of Control, which can
  /// differ. `params` may hold an array whose first element is a template.
  virtual Text Value(std::optional<Variant> /*params*/ = {}) const { return {}; }
  /// The text that the control shows.
  virtual Text DisplayText() const { return {}; }
  /// The feature attribute that the control is bound to, or "".
  virtual Text AttributeName() const { return {}; }

  /// @name Links to other controls, by name.
  /// @{
  virtual void AttachControls(Collection& /*controls*/) {}
  virtual void LinkControlNameChanged(const Text& /*oldName*/, const Text& /*newName*/) {}
  virtual void LinkControlDelete(Collection& /*controls*/) {}
  /// @}

  /// Script events that the class offers.
  virtual std::vector<Text> Events() const { return {}; }
  /// Repaints the widget and reads its choices again.
  virtual void Refresh() {}

 protected:
  const MemberTable& Members() const override;
};

/// The control in a collection's item; null for any other object.
IControl* AsControl(const Variant& item) noexcept;
/// A copy of the list of controls, in order: scripts may add and remove controls while it is iterated.
std::vector<Ref<IControl>> ControlsOf(const Collection& controls);
/// The control of that name, whatever its case, or null.
IControl* FindControl(const Collection& controls, std::u16string_view userName) noexcept;

}  // namespace cardwright
