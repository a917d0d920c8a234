// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/TableControl.h"
#include "cardwright/platform/WidgetListener.h"

namespace cardwright {

/// A form element with exactly one widget, and the base of all control classes. A class adds its table and
/// overrides only what it does differently.
class Control : public TableControl, protected WidgetListener {
 public:
  Text Name() const override;

  float Left() const override { return Bound() ? Bound()->Left() : 0; }
  void SetLeft(float value) override;
  float Top() const override { return Bound() ? Bound()->Top() : 0; }
  void SetTop(float value) override;
  float Width() const override { return Bound() ? Bound()->Width() : 0; }
  void SetWidth(float value) override;
  float Height() const override { return Bound() ? Bound()->Height() : 0; }
  void SetHeight(float value) override;

  OleColor BackColor() const override { return Bound() ? Bound()->BackColor() : 0; }
  void SetBackColor(OleColor color) override;
  OleColor ForeColor() const override { return Bound() ? Bound()->ForeColor() : 0; }
  void SetForeColor(OleColor color) override;
  Ref<cardwright::Font> GetFont() const override;
  void SetFont(const Variant& font) override;

  Ref<Object> BoundObject() const override { return m_Obj; }
  void BindObject(Ref<Object> object) override;

  bool Read(const Text& filePath, const Text& sectionName) override;
  bool Save(const Text& filePath, const Text& sectionName) override;
  bool ReadFrom(const SectionReader& section) override;
  bool SaveTo(SectionWriter& section) const override;
  void Refresh() override;
  /// Value of the row `Attribute`; "" in classes without that row.
  Text AttributeName() const override { return m_Attribute; }

  /// @name The value of the bound feature attribute.
  /// @{
  /// Limits what can be typed to the attribute's length and type, in classes that take typed text.
  virtual void LimitInput(std::int32_t /*maxLength*/, InputTypeEnum /*type*/) {}
  /// Shows a value that was read from `attribute`: in the row of the class, unless the class overrides it.
  virtual void ShowValue(const Text& attribute, const Text& value);
  /// Puts what is to be written to the attribute into `value`. False where nothing is to be written. A class
  /// may leave `value` unchanged, and then the value of the control before it is written again.
  virtual bool TakeValue(Text& value) const;
  /// Puts what a needed control must have into `value`; "" is a missing value. A class without a check leaves
  /// `value` unchanged, so it is judged by the needed control before it.
  virtual void TakeRequiredValue(Text& value) const;
  /// @}
  /// The last step of drawing or pasting a new control, when its widget has its size.
  virtual void FinishDrawing() {}

  /// The bound widget, or null.
  Widget* Bound() const noexcept { return m_Obj.get(); }

  /// @name Fields that several classes have, as the texts that grid or file set.
  /// @{
  Text m_Attribute;
  Text m_IsNeeded = u"False";
  /// @}

 protected:
  explicit Control(const ClassTable& table) : TableControl(table) {}
  ~Control() override;

  /// True where the class can work with this widget; any other is not bound. By default the type name
  /// decides.
  virtual bool Accepts(const Widget& widget) const;
  /// The class's last step of reading, when the keys of the table and the user name are read and the widget
  /// shows.
  virtual void FinishRead(const SectionReader& /*section*/) {}
  /// Whether a click on the widget selects it on the design surface.
  virtual bool ClickSelects() const { return true; }

  void OnClick() override;
  void OnGotFocus() override;
  void OnMouseDown(int button, int shift, float x, float y) override;
  void OnMouseMove(int button, int shift, float x, float y) override;

  /// Runs the procedure UserName_event where a form is being filled in and may run scripts.
  void RunScriptEvent(std::u16string_view event);
  /// Makes this the designer's current control.
  void SelectInDesigner();
  virtual void OpenDesignerMenu();
  /// Whether the widget has a menu of its own, which must not open together with the designer's.
  virtual bool HasOwnMenu() const { return false; }

 private:
  Ref<Widget> m_Obj;
};

/// The widget that an element of a form is bound to; null for the form itself and for an unbound control.
Ref<Widget> BoundWidget(const IControl& control);

/// Boolean value of a flag that is kept as text; false for a text that is no boolean.
bool FlagIsSet(const Text& flag) noexcept;

}  // namespace cardwright
