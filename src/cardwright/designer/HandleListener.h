// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright {

/// Receives the mouse events of the grab handles, 0 to 8: the centre, then the corners and edges.
class HandleListener {
 public:
  /// A button was pressed on a handle.
  virtual void OnHandleDown(int index, int button) = 0;
  /// The mouse moved over a handle.
  virtual void OnHandleMove(int index) = 0;

 protected:
  ~HandleListener() = default;
};

}  // namespace cardwright
