#pragma once

#include <QPushButton>
#include <QWidget>
#include <memory>

#include "runtime/FormInput.h"

namespace cardwright::qt {

class QtSurface;

/// The form as an end user fills it in, as a widget that a Qt host places like any other. Its size hint is
/// the size that the form needs; the object's own members are reached through Object() and, in C++, directly
/// here. The one setting that a container keeps for it is the property SetAttributesEnabled; all others live
/// in the form project.
class FormInput final : public QWidget {
  Q_OBJECT
  Q_PROPERTY(bool SetAttributesEnabled READ SetAttributesEnabled WRITE SetSetAttributesEnabled NOTIFY
                 SetAttributesEnabledChanged)
 public:
  explicit FormInput(QWidget* parent = nullptr);
  ~FormInput() override;

  /// The toolkit-free control behind the widget, as scripts see it. It may outlive the widget, without its
  /// surface.
  Ref<cardwright::FormInput> Object() const noexcept { return m_Input; }

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
  bool SetAttributesEnabled() const;
  void SetSetAttributesEnabled(bool enabled);
  /// @}

  /// Whether the container is being designed: only then do the buttons follow a resize. A form that is filled
  /// in keeps the layout of its project.
  bool DesignMode() const noexcept { return m_DesignMode; }
  void SetDesignMode(bool designing) noexcept { m_DesignMode = designing; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 Q_SIGNALS:
  /// Size that the host's window needs, its frame included, in the form's scale (FormScaleMode).
  void NeedResize(float width, float height);
  void OkClick();
  void CancelClick();
  void SetParentCaption(const QString& caption);
  void ControlNameChanged(const QString& oldName, const QString& newName);
  void SetAttributesEnabledChanged(bool enabled);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Forward(std::u16string_view event, Args args);
  QPushButton* FixedButton(std::u16string_view name) const;

  QSize m_Needed;  // invalid until a project has been read
  bool m_DesignMode = false;
  std::unique_ptr<QtSurface> m_Surface;
  Ref<cardwright::FormInput> m_Input;
  int m_Connection = 0;
};

}  // namespace cardwright::qt
