#pragma once

#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// The classes that a user has allowed the script of one form project. An allowance is kept in the user's
/// settings for the project file and the script as it was then: a changed script, or the same in another
/// file, asks again. A refusal holds as long as the object lives.
class ClassPermissions {
 public:
  /// @name Where allowances are kept: a key for each project file and class
  /// @{
  static constexpr std::u16string_view kSettingsApp = u"Cardwright", kSettingsSection = u"FormScripts";
  /// @}

  /// `file` is the project's path, `program` all that its script runs.
  ClassPermissions(Text file, Text program) : m_File(std::move(file)), m_Program(std::move(program)) {}

  /// Asks the user where they have not answered yet, and if they are there to answer and `mayAsk`; otherwise
  /// the answer is no.
  bool Allow(std::u16string_view progid, bool mayAsk);

 private:
  struct Answer {
    Text progid;
    bool isYes = false;
  };

  bool Note(std::u16string_view progid, bool isYes);
  bool IsKept(std::u16string_view progid) const;
  void Keep(std::u16string_view progid) const;
  bool Ask(std::u16string_view progid) const;
  Text Key(std::u16string_view progid) const;
  Text Digest() const;

  const Text m_File, m_Program;
  std::vector<Answer> m_Answers;
};

}  // namespace cardwright
