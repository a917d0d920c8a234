#pragma once

#include <optional>

#include "cardwright/designer/DesignClipboard.h"
#include "cardwright/designer/DesignGrid.h"
#include "cardwright/designer/DesignMenu.h"
#include "cardwright/designer/GrabHandles.h"
#include "cardwright/designer/OutlineDrag.h"
#include "cardwright/model/CForm.h"
#include "cardwright/model/Control.h"
#include "cardwright/model/FormOwner.h"
#include "cardwright/platform/PropertyBag.h"

namespace cardwright {

/// The surface on which an author draws a form: it owns the form's objects, shows which one is selected, and
/// moves, sizes, makes, renames and deletes them. One control at most is selected, and nothing can be undone.
///
/// Events: Resize, StateChanged(State), MenuStateChanged(MenuName, State), CurrObjectChanged(Obj),
/// PropertyChanged(PropertyIndex, PropertyValue), PropertyMenuClick, RefreshPropertyList,
/// AttribsList(Attribs), ObjectRemoved(ObjectName), NeedResize(Width, Height), ControlsLocked(LockValue),
/// ControlNameChanged(OldName, Obj).
///
/// Of these, Obj, PropertyIndex, PropertyValue, Attribs, ObjectName, LockValue and OldName are handed over by
/// reference, each a copy made for the event: what a handler writes into one reaches the handlers after it
/// and nothing else.
class FormDesigner final : public TableObject,
                           public DesignerOwner,
                           private WidgetListener,
                           private HandleListener {
 public:
  /// Works on a surface that outlives it or whose owner calls DetachSurface before it ends.
  static Ref<FormDesigner> Create(DesignSurface& surface);

  Text TypeName() const override { return u"FormDesigner"; }

  /// Selects a control, or the form itself. CurrObjectChanged tells of another one before it is stored.
  /// Error 91 for nothing.
  void SetCtrl(Ref<IControl> control) override;
  /// Paints the grid. A step that is negative or left out is the one that GridStep holds; 0 clears. With
  /// `reset` all points are painted anew.
  void SetGrid(std::optional<std::int16_t> step = {}, std::optional<bool> reset = {});

  /// @name Commands on the selected control. What cannot be done is passed over in silence.
  /// @{
  void Cut();
  void Copy();
  /// Into the selected frame, or onto the form; always at the left top corner.
  void Paste();
  /// Takes what another designer has copied, for a host that shows a project in a new designer.
  void TakeClipboard(const FormDesigner& other);
  void Delete();
  void SetForeground();
  void SetBackground();
  /// Locks all controls against drag and restacking, or unlocks them.
  void LockUnlock();
  void CenterLeft();
  void CenterTop();
  /// @}
  /// Switches an entry of the popup menu, or the menu itself ("mnuPopUp"), on or off and tells the host,
  /// whose menus follow. The menu opens in either state.
  void SetMenuState(const Text& menuName, bool state);

  /// To be called when the surface was resized.
  void UserControl_Resize();
  /// Step of the grid, in the surface's scale. Setting only stores it.
  std::int16_t GridStep() const noexcept { return m_GridStep; }
  void SetGridStep(std::int16_t step) noexcept { m_GridStep = step; }
  /// Whether a drag is held to the grid.
  bool GridAlignment() const noexcept { return m_GridAlignment; }
  void SetGridAlignment(bool align) noexcept { m_GridAlignment = align; }
  /// Whether a drag counts the mouse as having been at each point between two places where it is seen.
  /// Without it, as at first, a hand that is quicker than the grid is fine passes grid points unseen. For a
  /// host; no script sees it.
  void SetTracesMouse(bool traces) noexcept { m_TracesMouse = traces; }

  Collection& Controls() override { return *m_Controls; }
  Ref<Collection> ControlCollection() const { return m_Controls; }
  Ref<IControl> CurrentControl() const override { return m_Current; }
  /// The kind that the next press on the surface draws; a number that names none is ignored.
  ControlTypeEnum ControlTypeToAdd() const override { return m_TypeToAdd; }
  void SetControlTypeToAdd(ControlTypeEnum type);
  std::int32_t WindowHandle() const;
  Ref<HostWindow> Parent() const { return m_Surface ? m_Surface->Host() : nullptr; }

  /// Reads a form project into the designer, which should be a fresh one; false where there is no such file.
  bool ProjectRead(const Text& fileName);
  /// Writes the form project; one without controls has no file and is deleted.
  bool ProjectSave(const Text& fileName, bool isTemporary = false);
  Text GetThemeName() const;
  FeatureTypeEnum GetFeatureType() const;
  void SetThemeName(const Text& themeName);
  void SetFeatureType(FeatureTypeEnum type);

  /// Whether the Delete key deletes the selected control; the one setting that a container keeps.
  bool EnableKeyDelete() const noexcept { return m_EnableKeyDelete; }
  void SetEnableKeyDelete(bool enable);
  void ReadProperties(const PropertyBag& bag);
  void WriteProperties(PropertyBag& bag) const;

  /// Nothing happens for a blank name or one that another control has in any case.
  void ChangeControlName(Ref<Object> control, const Text& newName) override;
  /// The controls of a class, by their order; none for the selection tool and the table viewer.
  std::vector<Ref<IControl>> FilterControls(ControlTypeEnum type) const override;

  /// The surface ends: the form's objects stay for whoever holds them, without widgets, and the designer is
  /// an empty one.
  void DetachSurface();

  Surface* GetSurface() override { return m_Surface; }
  float OuterWidth() const override;
  float OuterHeight() const override;
  void SetOuterSize(float width, float height) override;
  void ShowArrowPointer() override;
  void ShowHandles(bool show) override;
  void OpenControlMenu(IControl& control) override;
  void SurfaceMouseDown(int button, int shift, float x, float y) override;
  void SurfaceMouseMove(int button, int shift, float x, float y) override;
  void SurfaceMouseUp(int button, int shift, float x, float y) override;
  bool IsTracking() const override { return m_Tracking; }
  void SetTracking(bool tracking) override { m_Tracking = tracking; }
  bool IsIntoFrame() const override { return m_IntoFrame; }
  void SetIntoFrame(bool intoFrame) override { m_IntoFrame = intoFrame; }
  void ApplyScaleAndGrid() override;
  void RepaintGrid() override { SetGrid({}, true); }
  std::vector<Ref<IControl>> ZList() const override;
  void ResetZList() override;
  void AppendToZList(Ref<IControl> control) override;
  void RaisePropertyChanged(int propertyIndex, const Variant& value) override;
  void RaiseRefreshPropertyList() override { RaiseEvent(u"RefreshPropertyList"); }
  void RaiseAttribsList(std::vector<Text> names) override;
  void RaiseNeedResize(float width, float height) override;

 protected:
  explicit FormDesigner(DesignSurface& surface);
  ~FormDesigner() override;
  const MemberTable& Members() const override;

 private:
  class Drag;
  class Tracking;
  struct NewControl {
    const ClassTable* kind = nullptr;
    Ref<Widget> container;
    Ref<Widget> widget;
    Ref<Control> control;  ///< null for a kind without a class
  };

  /// Error 91 once the surface has ended.
  DesignSurface& Canvas() const;
  GrabHandles& Handles();
  /// First object of the form; null where a script took it away.
  Ref<IControl> Form() const;
  static bool IsForm(const IControl& control);
  /// Whether the control's widget stands on the surface.
  bool IsAlive(const IControl& control) const;
  /// Whether the next press draws a new control.
  bool IsAdding() const noexcept { return m_TypeToAdd != ControlTypeEnum::ctDefault; }
  void ParkFocus();
  /// Lets the controls that follow others find them again.
  void AttachLinks();

  // Events of the surface itself.
  void OnClick() override;
  void OnMouseDown(int button, int shift, float x, float y) override {
    SurfaceMouseDown(button, shift, x, y);
  }
  void OnMouseMove(int button, int shift, float x, float y) override {
    SurfaceMouseMove(button, shift, x, y);
  }
  void OnMouseUp(int button, int shift, float x, float y) override { SurfaceMouseUp(button, shift, x, y); }
  void OnKeyDown(int& keyCode, int& shift) override;
  void OnResize() override { UserControl_Resize(); }
  void OnHandleDown(int index, int button) override;
  void OnHandleMove(int index) override;

  /// Runs a drag until the mouse button is let go: of a control, or of a new one's rectangle for null.
  void TrackControl(Ref<IControl> control, DragMode mode);
  void ApplyDrag(const Drag& drag);
  void PlaceDrawn(const Drag& drag);

  void PlaceControl(int button, float x, float y);
  Text NextObjectName();
  /// The frame that a new control goes into; null for the surface.
  Ref<Widget> FrameForNew() const;
  NewControl CreateControl();
  Ref<Widget> AddWidget(std::u16string_view identifier, Widget* container);
  void BindNew(const NewControl& made);
  void SizeDrawn(const NewControl& made, float x, float y);
  void FillPasted(const NewControl& made);
  void HoldPastedSize(const NewControl& made);
  void AdoptNew(const NewControl& made);

  void RemoveFromLists(const IControl& control);
  void RemoveChildren(const Widget& frame);
  void ChangeZOrder(IControl& control, StackPosition position);
  /// The room that a control has in its container, by one of the sizes.
  float RoomFor(const IControl& control, float (Widget::*ofWidget)() const,
                float (Surface::*ofSurface)() const) const;
  void OpenSurfaceMenu();
  void ShowMenu();
  void Run(DesignCommand command);
  bool AreControlsLocked() const noexcept { return m_Locked || m_Menu.Lock().m_Checked; }

  DesignSurface* m_Surface;
  Ref<Collection> m_Controls = MakeRef<Collection>();
  Ref<Collection> m_ZList = MakeRef<Collection>();  // by the widgets' names; the last restacked last
  Ref<IControl> m_Current;
  DesignMenu m_Menu;
  DesignClipboard m_Clipboard;
  DesignGrid m_Grid;
  std::optional<GrabHandles> m_Handles;  // none once the surface has ended

  ControlTypeEnum m_TypeToAdd = ControlTypeEnum::ctDefault;
  float m_MouseDownX = 0;
  float m_MouseDownY = 0;
  std::int16_t m_NameCounter = 0;
  std::int16_t m_GridStep = 8;
  bool m_GridAlignment = false;
  bool m_TracesMouse = false;
  bool m_EnableKeyDelete = true;
  bool m_Locked = false;
  bool m_PasteMode = false;
  bool m_IntoFrame = false;
  bool m_Tracking = false;  // also set while a click must not select the form
  bool m_Dragging = false;
  float m_FormWidth = 0;
  float m_FormHeight = 0;
};

}  // namespace cardwright
