// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "cardwright/automation/Collection.h"
#include "cardwright/model/IControl.h"
#include "cardwright/platform/Surface.h"

namespace cardwright {

class FormOwner;

/// How the elements of a form reach their owner. A script may keep an element longer than the form lives.
struct OwnerLink final : RefCounted {
  /// A link to an owner, which clears it at its end.
  explicit OwnerLink(FormOwner* at) : owner(at) {}
  FormOwner* owner;  ///< null once the owner is gone
};

/// What a form element calls in the visual control that owns it, in the designer and at run time alike.
class FormOwner {
 public:
  FormOwner(const FormOwner&) = delete;
  FormOwner& operator=(const FormOwner&) = delete;

  /// The link that elements keep to their owner.
  Ref<OwnerLink> Link() const noexcept { return m_Link; }
  /// All objects of the form, the CForm first, keyed by lower-case user name.
  virtual Collection& Controls() = 0;
  /// Null after the visual control has ended, while a script still keeps its objects.
  virtual Surface* GetSurface() = 0;
  /// Renames the control unless another one has the name.
  virtual void ChangeControlName(Ref<Object> control, const Text& newName) = 0;
  /// @name Outer size in the form's scale: the control's own size and the frame of its top-level window
  /// @{
  virtual float OuterWidth() const = 0;
  virtual float OuterHeight() const = 0;
  virtual void SetOuterSize(float width, float height) = 0;
  /// @}

 protected:
  FormOwner() : m_Link(MakeRef<OwnerLink>(this)) {}
  ~FormOwner() { m_Link->owner = nullptr; }

 private:
  Ref<OwnerLink> m_Link;
};

/// The form being filled in, as its elements see it.
class InputOwner : public FormOwner {
 public:
  /// False only in a debugging run without an output object. Then event procedures do not run, values are not
  /// loaded, required fields are not checked, and no screen keyboard opens.
  virtual bool CanRunScripts() const = 0;
  /// Runs a script event procedure; false where the script refused.
  virtual bool RunEvent(const Text& procedure) = 0;
  /// The form's title.
  virtual Text Caption() const = 0;
  /// Stores the form's title and raises SetParentCaption.
  virtual void SetCaption(const Text& caption) = 0;
  /// Places the fixed buttons and raises NeedResize. To be called after a project was read.
  virtual void LayOut() = 0;

 protected:
  ~InputOwner() = default;
};

/// The design surface, as its elements see it.
class DesignerOwner : public FormOwner {
 public:
  /// Selects a control.
  virtual void SetCtrl(Ref<IControl> control) = 0;
  /// The selected control, or null.
  virtual Ref<IControl> CurrentControl() const = 0;
  /// The kind of control to be drawn next; ctDefault for none.
  virtual ControlTypeEnum ControlTypeToAdd() const = 0;
  /// The controls of a kind.
  virtual std::vector<Ref<IControl>> FilterControls(ControlTypeEnum type) const = 0;
  /// Shows the arrow as mouse pointer.
  virtual void ShowArrowPointer() = 0;
  /// Shows the grab handles around the current control, or hides them.
  virtual void ShowHandles(bool show) = 0;
  /// Opens the popup menu for a control; the lock decides which items are enabled.
  virtual void OpenControlMenu(IControl& control) = 0;

  /// @name The mouse on a frame while a control is being added; coordinates are the frame's own.
  /// @{
  /// Selects the frame. The left button draws the control inside.
  virtual void FrameMouseDown(IControl& frame, int button, int shift, float x, float y) = 0;
  virtual void FrameMouseMove(int button, int shift, float x, float y) = 0;
  virtual void FrameMouseUp(int button, int shift, float x, float y) = 0;
  /// @}
  /// While suspended, a resize of the surface raises no events and a click on it selects nothing.
  virtual void SuspendEvents(bool suspend) = 0;

  /// Gives the surface the form's scale and paints the grid.
  virtual void ApplyScaleAndGrid() = 0;
  /// Repaints the grid.
  virtual void RepaintGrid() = 0;

  /// Objects in z-order; a control whose z-order changes moves to the end.
  virtual std::vector<Ref<IControl>> ZList() const = 0;
  /// Empties the z-order list.
  virtual void ResetZList() = 0;
  /// Adds an object at the end of the z-order list. Error 457 if one with the same name is in it.
  virtual void AppendToZList(Ref<IControl> control) = 0;

  /// @name Events of the designer
  /// @{
  virtual void RaisePropertyChanged(int propertyIndex, const Variant& value) = 0;
  virtual void RaiseRefreshPropertyList() = 0;
  virtual void RaiseAttribsList(std::vector<Text> names) = 0;
  /// Both sizes in twips.
  virtual void RaiseNeedResize(float width, float height) = 0;
  /// @}

 protected:
  ~DesignerOwner() = default;
};

}  // namespace cardwright
