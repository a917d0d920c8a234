#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/ScriptEngine.h"

namespace cardwright {

/// The script engines that a program has, by the names of their languages.
class ScriptLanguages {
 public:
  using Maker = std::function<std::unique_ptr<ScriptEngine>(ScriptHost& host)>;

  void Add(std::u16string_view language, Maker make);
  /// A new engine, whatever the case of the name; null for a language that there is none of.
  std::unique_ptr<ScriptEngine> Make(std::u16string_view language, ScriptHost& host) const;

 private:
  struct Language {
    Text name;
    Maker make;
  };
  std::vector<Language> m_Languages;
};

}  // namespace cardwright
