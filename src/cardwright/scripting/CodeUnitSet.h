// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace cardwright::scripting {

/// A set of UTF-16 code units, as a class of a regular expression names it.
class CodeUnitSet {
 public:
  /// @name Predefined sets
  /// @{
  static const CodeUnitSet& Digits();           ///< \d: ASCII digits
  static const CodeUnitSet& WordUnits();        ///< \w: ASCII letters, digits and the underscore
  static const CodeUnitSet& Blanks();           ///< \s: white space, line ends and Unicode's space separators
  static const CodeUnitSet& LineTerminators();  ///< where ^ and $ match with MultiLine
  /// @}

  CodeUnitSet() = default;
  CodeUnitSet(std::initializer_list<std::pair<char16_t, char16_t>> ranges);

  /// `first` must not be beyond `last`.
  void Add(char16_t first, char16_t last);
  void Add(char16_t unit) { Add(unit, unit); }
  void Add(const CodeUnitSet& other);

  bool IsSingle() const;
  CodeUnitSet Complement() const;
  /// The set with every unit that differs from one of its units only in case.
  CodeUnitSet WithOtherCases() const;
  /// The set in the notation of the matching library, good outside classes.
  std::u16string Notation() const;

 private:
  using Range = std::pair<char16_t, char16_t>;
  /// Ranges in order, none touching another.
  std::vector<Range> Sorted() const;

  std::vector<Range> m_Ranges;
};

/// One code unit in the notation of the matching library, in and outside classes.
std::u16string UnitNotation(char16_t unit);

}  // namespace cardwright::scripting
