// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QPushButton>
#include <memory>

#include "cardwright/qt/VisualControl.h"
#include "cardwright/runtime/FormInput.h"

namespace cardwright::qt {

class QtSurface;

/// The form as an end user fills it in. The one setting that a container keeps for it is the property
/// SetAttributesEnabled; all others live in the form project. Only in design mode do its buttons follow a
/// resize: a form that is filled in keeps the layout of its project.
///
/// While a screen reader runs, every control has a name for it (see SetAccessibleNames).
class FormInput final : public VisualControl, private QAccessible::ActivationObserver {
  Q_OBJECT
  Q_PROPERTY(bool SetAttributesEnabled READ StoresAttributes WRITE SetStoresAttributes NOTIFY
                 SetAttributesEnabledChanged)
 public:
  /// An empty form with its two buttons.
  explicit FormInput(QWidget* parent = nullptr);
  ~FormInput() override;

  /// The form without the toolkit, with its controls.
  Ref<cardwright::FormInput> Object() const noexcept { return m_Input; }
  Ref<cardwright::Object> Control() const override { return m_Input; }

  /// @name As the members of the same names of cardwright::FormInput.
  /// @{
  bool ProjectRead(const QString& fileName);
  bool ProjectSave(const QString& fileName, bool isTemporary = false);
  QString FeatureID() const;
  void SetFeatureID(const QString& id);
  bool NewFeature() const;
  void SetNewFeature(bool isNew);
  bool DebugMode() const;
  void SetDebugMode(bool debug);
  bool StoresAttributes() const;
  void SetStoresAttributes(bool enabled);
  /// @}

  QSize minimumSizeHint() const override { return sizeHint(); }

 Q_SIGNALS:
  /// OK was carried out: the host closes its window.
  void OkClick();
  /// The form was cancelled: the host closes its window.
  void CancelClick();
  /// The title for the host's window.
  void SetParentCaption(const QString& caption);
  /// A control was renamed.
  void ControlNameChanged(const QString& oldName, const QString& newName);
  /// The property SetAttributesEnabled has changed.
  void SetAttributesEnabledChanged(bool enabled);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Forward(std::u16string_view event, Args args);
  void accessibilityActiveChanged(bool active) override;
  void NameControls(const QWidget* only = nullptr);
  QPushButton* FixedButton(std::u16string_view name) const;

  std::unique_ptr<QtSurface> m_Surface;
  Ref<cardwright::FormInput> m_Input;
  int m_Connection = 0;
  bool m_HasReader = QAccessible::isActive();
};

}  // namespace cardwright::qt
