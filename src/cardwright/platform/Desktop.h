// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/automation/Object.h"
#include "cardwright/platform/Color.h"
#include "cardwright/platform/Widget.h"

namespace cardwright {

/// Per-user settings by application, section and key.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// The value of a key, or `fallback` if there is none.
  virtual Text Get(std::u16string_view app, std::u16string_view section, std::u16string_view key,
                   std::u16string_view fallback) const = 0;
  /// Stores the value of a key. Error 5 if a name is empty.
  virtual void Save(std::u16string_view app, std::u16string_view section, std::u16string_view key,
                    std::u16string_view value) = 0;
};

/// Style of a message box: a question's buttons plus an icon, as the platform numbers them.
namespace BoxStyle {
/// The buttons.
inline constexpr int OkOnly = 0, OkCancel = 1, AbortRetryIgnore = 2, YesNoCancel = 3, YesNo = 4,
                     RetryCancel = 5;
/// Which button is the default; the first one otherwise.
inline constexpr int SecondIsDefault = 256, ThirdIsDefault = 512;
/// The icon.
inline constexpr int Critical = 16, Question = 32, Exclamation = 48, Information = 64;
}  // namespace BoxStyle

/// The button that a message box was left by.
namespace BoxAnswer {
inline constexpr int Ok = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7;
}  // namespace BoxAnswer

/// What the library asks of the machine that it runs on, besides surfaces and widgets.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Shows a modal message box; the answer is a BoxAnswer. An empty title gives the program's name.
  virtual int ShowMessage(const Text& text, int style, const Text& title) = 0;
  /// Shows a box to type one line into, at a place of the screen in twips or Missing; the text, or Empty
  /// where it was cancelled. An empty title gives the program's name.
  virtual Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                          const Variant& y) = 0;
  /// Whether somebody is there to answer a box.
  virtual bool IsAttended() const = 0;
  /// For work that takes long: processes the toolkit's events, but of the user's input only the Break key;
  /// what else was pressed or clicked is dropped, and timers are held back. True where Break was pressed.
  virtual bool BreakPressed() = 0;
  /// Plays the warning sound.
  virtual void Beep() = 0;
  /// The widget that has the focus, or null.
  virtual Ref<Widget> ActiveControl() const = 0;
  /// A colour number without system colours: 0x00BBGGRR.
  virtual OleColor ResolveColor(OleColor color) const = 0;
  /// True for a handle of a window of this process.
  virtual bool IsWindow(std::int32_t handle) const = 0;
  /// Starts a program by its command line and returns at once; a program that does not exist is ignored.
  virtual void Start(const Text& commandLine) = 0;
  /// What no two texts have in common: the SHA-256 digest of a text's UTF-8, in hexadecimal digits.
  virtual Text Digest(const Text& text) const = 0;
  /// The settings of the user.
  virtual SettingsStore& Settings() = 0;
};

}  // namespace cardwright
