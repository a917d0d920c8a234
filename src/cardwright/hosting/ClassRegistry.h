// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>
#include <unordered_map>

#include "cardwright/automation/Object.h"

namespace cardwright {

/// The classes that a script can create, by their programmatic identifiers in any case.
class ClassRegistry {
 public:
  /// Makes a new object of a class.
  using Maker = std::function<Ref<Object>()>;
  /// Adds the classes of a module that is loaded when first needed.
  using Loader = std::function<void(ClassRegistry& classes)>;

  /// A second maker of an identifier replaces the first.
  void Add(std::u16string_view progid, Maker make);
  /// The loader runs once, for the first unknown identifier that begins with `prefix`. If it fails, it runs
  /// again the next time.
  void SetLoader(std::u16string_view prefix, Loader load);
  /// Runs the loader if it has not succeeded yet. Errors of the loader.
  void Load();
  /// Whether a class has the identifier. Errors of the loader.
  bool Has(std::u16string_view progid) { return Find(progid) != nullptr; }
  /// A new object. Error 429 where no class has the identifier; errors of the loader and of the class.
  Ref<Object> Create(std::u16string_view progid);

 private:
  const Maker* Find(std::u16string_view progid);

  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::u16string_view name) const noexcept { return HashNoCase(name); }
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(std::u16string_view a, std::u16string_view b) const noexcept {
      return EqualsNoCase(a, b);
    }
  };

  std::unordered_map<Text, Maker, Hash, Equal> m_Makers;
  Text m_LoaderPrefix;
  Loader m_Load;
};

/// Adds the classes that every script may use as they cannot reach the machine: Scripting.Dictionary and
/// VBScript.RegExp.
void AddSafeClasses(ClassRegistry& classes);
/// Adds the classes that need no toolkit: Scripting.Dictionary, Scripting.FileSystemObject, VBScript.RegExp
/// and Cardwright.CIni.
void AddCoreClasses(ClassRegistry& classes);

}  // namespace cardwright
