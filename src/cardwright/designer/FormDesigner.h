// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "cardwright/designer/HandleListener.h"
#include "cardwright/designer/Placement.h"
#include "cardwright/model/FormDocument.h"
#include "cardwright/model/FormOwner.h"
#include "cardwright/platform/DesignSurface.h"
#include "cardwright/platform/PropertyBag.h"

namespace cardwright {

class DesignClipboard;
class DesignGrid;
class DesignMenu;
class DesignTool;
class OuterSize;
class Placer;
class Selection;
class StackOrder;
enum class DesignCommand;

/// The surface on which an author draws a form. It owns the form's objects and selects, moves, resizes, adds,
/// renames and deletes them. At most one control is selected, and nothing can be undone.
///
/// Events: Resize, StateChanged(State), MenuStateChanged(MenuName, State), CurrObjectChanged(Obj),
/// PropertyChanged(PropertyIndex, PropertyValue), PropertyMenuClick, RefreshPropertyList,
/// AttribsList(Attribs), ObjectRemoved(ObjectName), NeedResize(Width, Height), ControlsLocked(LockValue),
/// ControlNameChanged(OldName, Obj).
///
/// Of these, Obj, PropertyIndex, PropertyValue, Attribs, ObjectName, LockValue and OldName are passed by
/// reference, each to a copy made for the event: what a handler assigns reaches the handlers after it and
/// nothing else.
class FormDesigner final : public TableObject,
                           public DesignerOwner,
                           private WidgetListener,
                           private HandleListener {
 public:
  /// Works on a surface that outlives it or whose owner calls DetachSurface before it ends.
  static Ref<FormDesigner> Create(DesignSurface& surface);

  Text TypeName() const override { return u"FormDesigner"; }

  /// Selects a control, or the form itself. CurrObjectChanged is raised before the selection changes, unless
  /// the object is already selected. Error 91 for null.
  void SetCtrl(Ref<IControl> control) override;
  /// Paints the grid. A negative or missing step means GridStep; 0 clears. With `reset` all points are
  /// painted again.
  void SetGrid(std::optional<std::int16_t> step = {}, std::optional<bool> reset = {});

  /// @name Commands on the selected control. A command that cannot be done does nothing.
  /// @{
  void Cut();
  void Copy();
  /// Into the selected frame, or onto the form; always at the top left corner.
  void Paste();
  /// Copies the clipboard of another designer, for a host that shows a project in a new designer.
  void TakeClipboard(const FormDesigner& other);
  void Delete();
  void SetForeground();
  void SetBackground();
  /// Locks all controls against dragging and restacking, or unlocks them.
  void LockUnlock();
  void CenterLeft();
  void CenterTop();
  /// @}
  /// Enables or disables an entry of the popup menu, or the menu itself ("mnuPopUp"), and raises
  /// MenuStateChanged, by which menus of hosts follow. The menu opens in either state.
  void SetMenuState(const Text& menuName, bool state);

  /// Puts a control on the surface, selects it and returns to the selection tool. While the designer is busy,
  /// this only sets ControlTypeToAdd. Failures are ignored; if no widget can be created, ControlTypeToAdd
  /// stays set.
  void Place(const Placement& placement);

  /// To be called after the surface was resized.
  void UserControl_Resize();
  /// Step of the grid: in pixels where the grid is painted, in the surface's scale where a drag snaps to it.
  /// Setting only stores it.
  std::int16_t GridStep() const noexcept { return m_GridStep; }
  void SetGridStep(std::int16_t step) noexcept { m_GridStep = step; }
  /// Whether a drag snaps to the grid.
  bool GridAlignment() const noexcept { return m_GridAlignment; }
  void SetGridAlignment(bool align) noexcept { m_GridAlignment = align; }
  /// Whether a drag counts the mouse as having been at each point between two positions where it is polled.
  /// Without it, which is the default, a fast drag misses grid points that lie between two
  /// such positions. For hosts; scripts do not see it.
  bool TracesMouse() const noexcept { return m_TracesMouse; }
  void SetTracesMouse(bool traces) noexcept { m_TracesMouse = traces; }

  Collection& Controls() override { return *m_Document.Controls(); }
  /// All objects of the form, the CForm first.
  Ref<Collection> ControlCollection() const { return m_Document.Controls(); }
  Ref<IControl> CurrentControl() const override;
  /// The class of control that the next press on the surface draws; a number that names none is ignored.
  ControlTypeEnum ControlTypeToAdd() const override { return m_TypeToAdd; }
  void SetControlTypeToAdd(ControlTypeEnum type);
  /// Number of the surface's window; 0 once it has ended.
  std::int32_t WindowHandle() const;
  /// The host's window; null if there is none.
  Ref<HostWindow> Parent() const { return m_Surface ? m_Surface->Host() : nullptr; }

  /// Reads a form project into the designer, which should be a new one; false if there is no such file.
  bool ProjectRead(const Text& fileName);
  /// Writes the form project. A project without controls has no file: it is deleted.
  bool ProjectSave(const Text& fileName, std::optional<bool> isTemporary = {});
  /// @name Theme and feature type that the form is bound to
  /// @{
  Text GetThemeName() const { return m_Document.ThemeName(); }
  FeatureTypeEnum GetFeatureType() const { return m_Document.FeatureType(); }
  void SetThemeName(const Text& themeName);
  void SetFeatureType(FeatureTypeEnum type);
  /// @}

  /// Whether the Delete key deletes the selected control; the one setting that a container stores.
  bool EnableKeyDelete() const noexcept { return m_EnableKeyDelete; }
  void SetEnableKeyDelete(bool enable);
  /// @name The settings that a container stores
  /// @{
  void ReadProperties(const PropertyBag& bag);
  void WriteProperties(PropertyBag& bag) const;
  /// @}

  /// Does nothing for a blank name or the name of another control, whatever its case.
  void ChangeControlName(Ref<Object> control, const Text& newName) override;
  /// The controls of a class, in their order; none for the selection tool and the table viewer.
  std::vector<Ref<IControl>> FilterControls(ControlTypeEnum type) const override;

  /// Whether a tool is in use, the surface is being resized or a project is being read. Meanwhile clicks and
  /// resizes are ignored.
  bool IsBusy() const noexcept { return m_Tool || m_AreEventsSuspended; }
  /// Whether the control's widget is on the surface.
  bool IsAlive(const IControl& control) const;

  /// To be called before the surface ends. The form's objects stay alive without widgets for those who hold
  /// them; the designer is empty.
  void DetachSurface();

  /// @name For the elements of the form
  /// @{
  DesignSurface* GetSurface() override { return m_Surface; }
  /// The surface; error 91 once it has ended.
  DesignSurface& Canvas() const;
  float OuterWidth() const override;
  float OuterHeight() const override;
  void SetOuterSize(float width, float height) override;
  void ShowArrowPointer() override;
  void ShowHandles(bool show) override;
  void OpenControlMenu(IControl& control) override;
  void FrameMouseDown(IControl& frame, int button, int shift, float x, float y) override;
  void FrameMouseMove(int button, int shift, float x, float y) override { OnMouseMove(button, shift, x, y); }
  void FrameMouseUp(int button, int shift, float x, float y) override { OnMouseUp(button, shift, x, y); }
  void SuspendEvents(bool suspend) override { m_AreEventsSuspended = suspend; }
  void ApplyScaleAndGrid() override;
  void RepaintGrid() override { SetGrid({}, true); }
  std::vector<Ref<IControl>> ZList() const override;
  void ResetZList() override;
  void AppendToZList(Ref<IControl> control) override;
  void RaisePropertyChanged(int propertyIndex, const Variant& value) override;
  void RaiseRefreshPropertyList() override { RaiseEvent(u"RefreshPropertyList"); }
  void RaiseAttribsList(std::vector<Text> names) override;
  void RaiseNeedResize(float width, float height) override;
  /// @}

 protected:
  explicit FormDesigner(DesignSurface& surface);
  ~FormDesigner() override;
  const MemberTable& Members() const override;

 private:
  Ref<IControl> Form() const { return m_Document.Form(); }
  static bool IsForm(const IControl& control);
  /// Whether the next press draws a new control.
  bool IsAdding() const noexcept { return m_TypeToAdd != ControlTypeEnum::ctDefault; }
  /// Returns to the selection tool.
  void EndAdding();
  /// Lets the controls that depend on others find them again.
  void AttachLinks();

  // Events of the surface and of the handles.
  void OnClick() override;
  void OnMouseDown(int button, int shift, float x, float y) override {
    Press(nullptr, button, shift, {x, y});
  }
  void OnMouseMove(int button, int shift, float x, float y) override;
  void OnMouseUp(int button, int shift, float x, float y) override;
  void OnKeyDown(int& keyCode, int& shift) override;
  void OnResize() override { UserControl_Resize(); }
  void OnHandleDown(int index, int button) override;
  void OnHandleMove(int index) override;
  void Press(Ref<Widget> container, int button, int shift, FormPoint at);
  void Draw(Ref<Widget> container);
  /// A press or click ends the suspension that a handler of Resize has left by running a message loop.
  void ResumeEvents() noexcept { m_AreEventsSuspended = false; }

  void RemoveFromLists(const IControl& control);
  void RemoveChildren(const Widget& container);
  void Restack(StackPosition position);
  void Center(void (IControl::*set)(float), float (IControl::*size)() const, float FormExtent::*room);
  void OpenSurfaceMenu();
  void ShowMenu();
  void Run(DesignCommand command);

  DesignSurface* m_Surface;  // null once it has ended
  FormDocument m_Document;
  const std::unique_ptr<Selection> m_Selection;
  const std::unique_ptr<StackOrder> m_StackOrder;
  const std::unique_ptr<Placer> m_Placer;
  const std::unique_ptr<DesignClipboard> m_Clipboard;
  const std::unique_ptr<DesignMenu> m_Menu;
  const std::unique_ptr<DesignGrid> m_Grid;
  const std::unique_ptr<OuterSize> m_OuterSize;
  DesignTool* m_Tool = nullptr;  // in use; null while the mouse is not followed

  ControlTypeEnum m_TypeToAdd = ControlTypeEnum::ctDefault;
  FormPoint m_PressedAt;
  std::int16_t m_GridStep = 8;
  bool m_GridAlignment = false;
  bool m_TracesMouse = false;
  bool m_EnableKeyDelete = true;
  bool m_AreEventsSuspended = false;
};

}  // namespace cardwright
