// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/HostConnection.h"

namespace cardwright {

/// A host that answers from a table and writes down all that it is asked: "X " and the command, or "R " and
/// the request.
class ScriptedHost final : public HostConnection {
 public:
  struct Attribute {
    std::string name;
    int type = 0;
    int length = 0;
    int decimals = 0;
    std::string value;
  };

  /// Answers as a host does whose theme of point features has the attributes, with one feature selected.
  void SetTheme(const std::vector<Attribute>& attributes, const std::string& theme = "wells") {
    const std::string place = " |" + theme + "| |POINT|";
    replies["THEME_NUMBER |" + theme + "|"] = "1";
    replies["THEME_SELECTED_NUMBER" + place] = "1";
    replies["THEME_CURRENT_ISVALID" + place] = "1";
    replies["THEME_ATTRIBUTE_NUMBER" + place] = std::to_string(attributes.size());
    int number = 0;
    for (const Attribute& each : attributes) {
      replies["THEME_ATTRIBUTE" + place + " " + std::to_string(++number)] =
          each.name + "," + std::to_string(each.type) + "," + std::to_string(each.length) + "," +
          std::to_string(each.decimals);
      replies["THEME_GET_ATTRIBUTE" + place + " |" + each.name + "|"] = each.value;
    }
  }

  Text Execute(std::u16string_view command) override {
    Note("X ", command);
    return {};
  }
  Text Request(std::u16string_view command) override {
    const std::string text = Note("R ", command);
    if (answer) return answer(text);
    const auto found = replies.find(text);
    return found == replies.end() ? Text() : Text::FromUtf8(found->second);
  }

  /// The lines since the last call.
  std::vector<std::string> Take() { return std::exchange(lines, {}); }

  std::map<std::string, std::string> replies;
  std::function<Text(const std::string& request)> answer;  ///< in the place of the table
  std::function<void(const std::string& line)> onLine;
  std::string failsAt;  ///< command that raises error 17
  std::vector<std::string> lines;

 private:
  std::string Note(const char* kind, std::u16string_view command) {
    const std::string text = Text(command).ToUtf8();
    lines.push_back(kind + text);
    if (onLine) onLine(lines.back());
    if (!failsAt.empty() && text == failsAt) Raise(ErrorNumber::CannotPerform);
    return text;
  }
};

}  // namespace cardwright
