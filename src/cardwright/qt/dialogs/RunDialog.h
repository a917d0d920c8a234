// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QWidget>

namespace cardwright::qt {

/// Runs a dialog that belongs to the window of `owner` and calls `take` with it where it was accepted.
/// Nothing is taken where the window was closed under the dialog, which then is gone too. The dialog is
/// deleted, so it must be on the heap.
template <class Dialog, class Take>
void RunDialog(Dialog* dialog, QWidget& owner, Take&& take) {
  const QPointer<Dialog> open = dialog;
  const QPointer<QWidget> window = owner.window();
  const bool isAccepted = dialog->exec() == QDialog::Accepted;
  if (open && isAccepted) take(*open);
  delete open.data();
  // Where there is no window manager nobody else gives the window its place back.
  if (window && !QApplication::activeWindow()) window->activateWindow();
}

}  // namespace cardwright::qt
