// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>
#include <QWidget>

#include "cardwright/qt/FormInput.h"
#include "desktop/DataSource.h"
#include "desktop/DebugPane.h"

namespace cardwright::desktop {

/// A window with one form, which scrolls if the screen is too small. It closes after OK and Cancel; closing
/// it is Cancel. If the data source rejects the values of OK, it shows the reason and stays open. In a
/// debugging run it also stays open after OK, so that the output can be read.
class FormWindow final : public QWidget {
  Q_OBJECT
 public:
  explicit FormWindow(DataSource& source);

  qt::FormInput& Form() noexcept { return *m_Form; }
  /// Adds a pane below the form for the output of a debugging run.
  void ShowDebugOutput();
  /// True after OK has closed the form.
  bool IsAccepted() const noexcept { return m_Accepted; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Fit();
  void OnOk();
  /// Why the values of OK were not stored; empty if they were.
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
