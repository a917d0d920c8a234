// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/HostConnection.h"
#include "cardwright/qt/desktop/QtDesktop.h"
#include "cardwright/runtime/Vellum.h"

namespace cardwright::qt {

/// What a Qt host holds as long as it uses the library on its user-interface thread: the desktop's services
/// and the application object. Needs a QApplication, and is to be made before the first visual control.
class Library {
 public:
  /// Makes this the desktop of the calling thread until the end of the object.
  Library();
  ~Library();
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  /// The application object.
  cardwright::Vellum& Vellum() const noexcept { return *m_Vellum; }
  /// Message boxes, settings and other services.
  QtDesktop& Desktop() noexcept { return m_Desktop; }
  /// Makes the connection the one that forms use, and gives its handle.
  std::int32_t Connect(Ref<HostConnection> connection);

 private:
  QtDesktop m_Desktop;
  Ref<cardwright::Vellum> m_Vellum;
};

}  // namespace cardwright::qt
