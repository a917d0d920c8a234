// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/platform/Color.h"
#include "cardwright/platform/Picture.h"
#include "cardwright/platform/Scale.h"

namespace cardwright {

/// The application object through which a host ties the library to itself: the connection handle, where
/// settings are kept, defaults of appearance, and queries on form project files. All instances of a thread
/// share one state. Each new one resets the scale and the look of grab handles, and gives the thread a new
/// script engine: the procedures of a form that is open are gone. The last to go ends the engine.
class Vellum final : public TableObject {
 public:
  Vellum();

  Text TypeName() const override { return u"Vellum"; }

  /// Handle of the host's connection; 0 for none.
  std::int32_t TarvoHandle() const;
  void SetTarvoHandle(std::int32_t handle);
  /// Takes the host's editor object, asks it for its connection handle ("HWND_CONTROL") and uses that.
  /// Nothing takes the object away and keeps the handle. Errors of the editor reach the caller.
  void AttachOVeditor(Ref<Object> editor);
  /// Path of a file in the folder of the project; "" where a check was asked for and fails.
  Text GetOrvPath(const Text& projectPath, const Text& fileName, std::optional<bool> checkParentFolder = {},
                  std::optional<bool> checkFile = {}) const;

  /// The script without its language line. Setting takes the first line as the language.
  Text ScriptContent() const;
  void SetScriptContent(const Text& content);

  /// The icon that a form project has; null if there is none.
  Ref<Picture> GetFormImage(const Text& fileName) const;
  /// @name The menu flag of a form project; false if there is no such file
  /// @{
  bool GetShowMenu(const Text& fileName) const;
  void SetShowMenu(const Text& fileName, bool value);
  /// @}

  /// @name Colours of new forms: the system's colours until a host has set two colours that differ
  /// @{
  OleColor DefaultBackColor() const;
  void SetDefaultBackColor(OleColor color);
  OleColor DefaultForeColor() const;
  void SetDefaultForeColor(OleColor color);
  /// @}

  /// @name Space for the buttons OK and Cancel, in the form's scale
  /// @{
  float ButtonsOffsetY() const;
  float ButtonsOffsetX() const;
  /// @}

  /// Draws a picture box as a grab handle; error 13 for any other object.
  void ResizeHandleEnabled(Ref<Object> handle, bool enabled);
  /// Whether a picture box is drawn as an enabled grab handle; error 13 for any other object.
  bool ResizeHandleIsEnabled(Ref<Object> handle) const;

 protected:
  ~Vellum() override;
  const MemberTable& Members() const override;
};

}  // namespace cardwright
