// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "cardwright/model/FormDocument.h"
#include "cardwright/model/FormOwner.h"

namespace cardwright {

class AttributeBinding;
class FormButton;
struct BoundFeature;

/// The form as an end user fills it in for one feature: it owns the form's objects and the fixed buttons OK
/// and Cancel, and the order in which scripts, required-field checks and attribute writes happen.
///
/// Events: NeedResize(Width, Height), OkClick, CancelClick, SetParentCaption(Caption),
/// ControlNameChanged(OldName, Obj). A host sets up a form with ProjectRead, then NewFeature, then FeatureID,
/// and closes its window on OkClick or CancelClick.
class FormInput final : public TableObject, public InputOwner {
 public:
  /// Works on a surface that outlives it or whose owner calls DetachSurface before it ends.
  static Ref<FormInput> Create(Surface& surface);

  Text TypeName() const override { return u"FormInput"; }

  /// All objects of the form, the CForm first.
  Collection& Controls() override { return *m_Document.Controls(); }
  /// The same collection, to be kept.
  Ref<Collection> ControlCollection() const { return m_Document.Controls(); }
  /// Whether OK writes commands to the debug output of the application object instead of sending them.
  bool DebugMode() const noexcept { return m_DebugMode; }
  void SetDebugMode(bool debug) noexcept { m_DebugMode = debug; }
  /// The form describes a feature that is not stored yet: its attributes are not loaded.
  bool NewFeature() const noexcept { return m_NewFeature; }
  void SetNewFeature(bool isNew) noexcept { m_NewFeature = isNew; }
  /// The host's unique identifier of the feature. Setting it loads the attributes into the controls.
  Text FeatureID() const { return m_FeatureID; }
  void SetFeatureID(const Text& id);
  /// Reads a form project, starts its script and runs "Initialize"; false where it could not be read.
  bool ProjectRead(const Text& fileName);
  /// Path of the project read last, or being read.
  const Text& ProjectFile() const noexcept { return m_ProjectFile; }
  /// Saves the form's own settings and script. Beware: run-time controls write nothing, so on an existing
  /// project their sections are gone afterwards while their count stays. Hosts know and keep to reading.
  bool ProjectSave(const Text& fileName, std::optional<bool> isTemporary = {});
  /// Whether OK writes attributes.
  bool StoresAttributes() const noexcept { return m_StoresAttributes; }
  void SetStoresAttributes(bool enabled) noexcept { m_StoresAttributes = enabled; }
  void ChangeControlName(Ref<Object> control, const Text& newName) override;
  /// @name Theme and feature type that the form is bound to
  /// @{
  Text GetThemeName() const { return m_Document.ThemeName(); }
  FeatureTypeEnum GetFeatureType() const { return m_Document.FeatureType(); }
  Text GetFeatureTypeString() const { return FeatureTypeText(GetFeatureType()); }
  /// Theme and feature type together.
  FeatureClass GetFeatureClass() const { return {GetThemeName(), GetFeatureType()}; }
  /// @}
  /// Number of the surface's window; 0 once it has ended.
  std::int32_t WindowHandle() const;
  /// The host's window, as every container gives it to its controls under this name; null where there is
  /// none.
  Ref<HostWindow> Parent() const { return m_Surface ? m_Surface->Host() : nullptr; }

  bool CanRunScripts() const override;
  /// Whether OK stores attribute values.
  bool AttributesWritable() const noexcept { return m_StoresAttributes && !m_DebugMode; }

  /// @name What a click on the buttons does. Without a connection no event procedure can run, which counts as
  /// a refusal: the form stays open.
  /// @{
  void Ok();
  void Cancel();
  /// @}
  /// Tells the host to close the window without checks, scripts or writing.
  void CloseWithoutChecks() { RaiseEvent(u"CancelClick"); }
  /// Places the buttons in the bottom right corner while the container is being designed.
  void PlaceButtonsForDesign();
  /// The surface ends: the form's objects stay for whoever holds them, without widgets.
  void DetachSurface();

  Surface* GetSurface() override { return m_Surface; }
  float OuterWidth() const override;
  float OuterHeight() const override;
  void SetOuterSize(float width, float height) override;
  bool RunEvent(const Text& procedure) override;
  Text Caption() const override { return m_Caption; }
  void SetCaption(const Text& caption) override;
  void LayOut() override;

 protected:
  explicit FormInput(Surface& surface);
  ~FormInput() override;
  const MemberTable& Members() const override;

 private:
  /// First required control without a value, or null.
  Ref<IControl> FirstMissing() const;
  void ReportMissing(IControl& control);
  bool RunFormEvent(std::u16string_view event);
  /// The part of OK and Cancel during which the host does not redraw: its scripts and what it writes. False
  /// where a script refused.
  bool RunOk();
  bool RunCancel();
  BoundFeature Feature() const;

  Surface* m_Surface;
  FormDocument m_Document;
  bool m_DebugMode = false;
  bool m_NewFeature = false;
  Text m_ProjectFile;
  Text m_FeatureID;
  Text m_Caption;
  const std::unique_ptr<AttributeBinding> m_Binding;
  bool m_StoresAttributes = true;
  bool m_RunsOk = false;
  bool m_RunsCancel = false;
  std::unique_ptr<FormButton> m_OkButton;  // none once the surface has ended
  std::unique_ptr<FormButton> m_CancelButton;
};

}  // namespace cardwright
