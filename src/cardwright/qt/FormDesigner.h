// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <memory>

#include "cardwright/designer/FormDesigner.h"
#include "cardwright/qt/VisualControl.h"

namespace cardwright::qt {

class QtDesignSurface;

/// The surface on which an author draws a form. The one setting that a container keeps for it is the property
/// EnableKeyDelete. Tool box, property grid and menus are the host's: it follows the signals, each of which
/// is the event of the same name of cardwright::FormDesigner.
///
/// A signal may come in the middle of a press that is not over. A host may close its window then, but deletes
/// the designer when the event is through.
class FormDesigner final : public VisualControl {
  Q_OBJECT
  Q_PROPERTY(bool EnableKeyDelete READ EnableKeyDelete WRITE SetEnableKeyDelete NOTIFY EnableKeyDeleteChanged)
 public:
  /// A new form without controls.
  explicit FormDesigner(QWidget* parent = nullptr);
  ~FormDesigner() override;

  /// Its members are those of the designer by name: selection, commands, grid, kind to add.
  Ref<cardwright::FormDesigner> Object() const noexcept { return m_Designer; }
  Ref<cardwright::Object> Control() const override { return m_Designer; }

  /// @name As the members of the same names of cardwright::FormDesigner.
  /// @{
  bool ProjectRead(const QString& fileName);
  bool ProjectSave(const QString& fileName, bool isTemporary = false);
  bool EnableKeyDelete() const;
  void SetEnableKeyDelete(bool enable);
  /// @}

 Q_SIGNALS:
  /// The form was resized.
  void Resize();
  /// Back from drawing to selection.
  void StateChanged(const QString& state);
  /// An entry of the popup menu was enabled or disabled.
  void MenuStateChanged(const QString& menuName, bool state);
  /// Before the control becomes the current one. Never null.
  void CurrObjectChanged(cardwright::IControl* control);
  /// A row of the current control has a new value.
  void PropertyChanged(int propertyIndex, const cardwright::Variant& value);
  /// The user chose Properties in the popup menu.
  void PropertyMenuClick();
  /// The values of several rows have changed.
  void RefreshPropertyList();
  /// The attributes of the form's theme have been read.
  void AttribsList(const QStringList& attributes);
  /// Name of the widget (object_1), not the author's name.
  void ObjectRemoved(const QString& objectName);
  /// The controls were locked or unlocked.
  void ControlsLocked(bool locked);
  /// Before the links that others have to the control follow.
  void ControlNameChanged(const QString& oldName, const QString& newName);
  /// The property EnableKeyDelete has changed.
  void EnableKeyDeleteChanged(bool enabled);

 protected:
  bool focusNextPrevChild(bool next) override;

 private:
  void Forward(std::u16string_view event, Args args);
  void ForwardControl(std::u16string_view event, Args args);
  QWidget* CurrentWidget() const;
  void OpenMenuByKey();

  std::unique_ptr<QtDesignSurface> m_Surface;
  Ref<cardwright::FormDesigner> m_Designer;
  int m_Connection = 0;
};

}  // namespace cardwright::qt
