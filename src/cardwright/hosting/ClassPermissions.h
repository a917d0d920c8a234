// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// The classes that the user allowed the script of one form project. A permission is saved in the user's
/// settings for this project file and this text of the script: after a change of the script, and for a copy
/// of the file, the user is asked again. A refusal lasts as long as the object.
class ClassPermissions {
 public:
  /// @name Where permissions are saved: a key for each project file and class
  /// @{
  static constexpr std::u16string_view kSettingsApp = u"Cardwright", kSettingsSection = u"FormScripts";
  /// @}

  /// `file` is the project's path, `program` the whole text that its script runs.
  ClassPermissions(Text file, Text program) : m_File(std::move(file)), m_Program(std::move(program)) {}

  /// Asks the user if there is no answer yet, `mayAsk` is true and the desktop is attended; otherwise false.
  bool IsAllowed(std::u16string_view progid, bool mayAsk);

 private:
  struct Answer {
    Text progid;
    bool isYes = false;
  };

  bool Remember(std::u16string_view progid, bool isYes);
  bool IsSaved(std::u16string_view progid) const;
  void Save(std::u16string_view progid) const;
  bool Ask(std::u16string_view progid) const;
  Text Key(std::u16string_view progid) const;
  Text Digest() const;

  const Text m_File, m_Program;
  std::vector<Answer> m_Answers;
};

}  // namespace cardwright
