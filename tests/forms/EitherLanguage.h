// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormScriptsFixture.h"

namespace cardwright {

/// A fixture for tests whose scripts are written in both languages. The parameter is the language's name.
class EitherLanguage : public FormScripts, public testing::WithParamInterface<const char*> {
 protected:
  EitherLanguage() : FormScripts(GetParam()) {}

  bool InJScript() const { return std::string_view(GetParam()) == "JScript"; }
  bool ReadEither(const std::string& inVBScript, const std::string& inJScript) {
    const bool read = ReadScript(InJScript() ? inJScript : inVBScript);
    host->Take();
    TakeEvents();
    return read;
  }
  /// Sets what the host does when the script sends the command "NOW".
  void OnNow(std::function<void()> action) {
    host->onLine = [action = std::move(action)](const std::string& line) {
      if (line == "X NOW") action();
    };
  }
  /// The error numbers in the message boxes since the last call.
  std::vector<std::string> Numbers() {
    std::vector<std::string> numbers;
    for (const std::string& box : boxes.Take()) {
      const std::size_t at = box.find("Error N. ");
      numbers.push_back(at == box.npos ? box : box.substr(at + 9, box.find(' ', at + 9) - at - 9));
    }
    return numbers;
  }
  using Numbered = std::vector<std::string>;
};

inline const auto kBothLanguages = testing::Values("VBScript", "JScript");

}  // namespace cardwright
