#pragma once

#include <QScrollArea>
#include <QWidget>

#include "cardwright/qt/FormInput.h"
#include "desktop/DataSource.h"
#include "desktop/DebugPane.h"

namespace cardwright::desktop {

/// A window with one form in it, scrolled where the screen is too small for it, that closes itself after OK
/// and Cancel. Closing the window is Cancel. While the data source refuses what OK wrote, the window says why
/// and stays. A debugging run stays after OK, too, so that its output can be read.
class FormWindow final : public QWidget {
  Q_OBJECT
 public:
  explicit FormWindow(DataSource& source);

  qt::FormInput& Form() noexcept { return *m_Form; }
  /// Adds a pane below the form, into which a debugging run writes.
  void ShowDebugOutput();
  /// True once the form was ended by OK.
  bool IsAccepted() const noexcept { return m_Accepted; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Fit();
  void OnOk();
  /// Why what OK wrote is not stored; empty if it is.
  QString Failure();
  void End();

  DataSource& m_Data;
  QScrollArea* m_Scroll;
  qt::FormInput* m_Form;
  Ref<DebugPane> m_DebugPane;
  bool m_Accepted = false;
  bool m_Ended = false;
  bool m_IsClosing = false;
};

}  // namespace cardwright::desktop
