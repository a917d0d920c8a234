#pragma once

namespace cardwright {

/// Receives the mouse events of the handles, which count from 0.
class HandleListener {
 public:
  virtual void OnHandleDown(int index, int button) = 0;
  virtual void OnHandleMove(int index) = 0;

 protected:
  ~HandleListener() = default;
};

}  // namespace cardwright
