// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// The platform's run-time errors that this library raises or distinguishes. StandardErrorText has the texts
/// of many more.
enum class ErrorNumber : int {
  InvalidCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  ArrayIsFixedOrLocked = 10,
  DivisionByZero = 11,
  TypeMismatch = 13,
  OutOfStringSpace = 14,
  CannotPerform = 17,
  UserInterrupt = 18,
  OutOfStackSpace = 28,
  BadFileName = 52,
  FileNotFound = 53,
  BadFileMode = 54,
  DeviceError = 57,
  FileExists = 58,
  DiskFull = 61,
  InputPastEnd = 62,
  TooManyFiles = 67,
  PermissionDenied = 70,
  DifferentDevice = 74,
  PathAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  ForLoopNotInitialized = 92,
  InvalidUseOfNull = 94,
  InvalidPropertyValue = 380,
  ObjectRequired = 424,
  CannotCreateObject = 429,
  FileOrClassNotFound = 432,
  NotSupported = 438,
  LocaleNotSupported = 447,
  ArgumentNotOptional = 449,
  WrongArgumentCount = 450,
  NotACollection = 451,
  KeyExists = 457,
  ServerNotAvailable = 462,
  InvalidPicture = 481,
  UndefinedVariable = 500,
  IllegalAssignment = 501,
  InvalidReference = 505,
  UndefinedClass = 506,
  ControlNameExists = 727,
  RegExpSyntax = 5017,
  RegExpUnexpectedQuantifier = 5018,
  RegExpExpectedBracket = 5019,
  RegExpExpectedParenthesis = 5020,
  RegExpInvalidRange = 5021,
  ElementNotFound = 32811,
};

/// The platform's text for an error number; "Unknown runtime error" for others.
Text StandardErrorText(int number);

/// A numbered run-time error: what scripts see as Err and what BestEffort() catches.
class Error : public std::exception {
 public:
  /// An error with the standard text of its number if `description` is empty.
  explicit Error(int number, Text description = {}, Text source = {});
  /// An error with its standard text.
  explicit Error(ErrorNumber number) : Error(static_cast<int>(number)) {}

  /// The number, which scripts see as Err.Number.
  int Number() const noexcept { return m_Number; }
  /// Whether the error has this number.
  bool Is(ErrorNumber number) const noexcept { return m_Number == static_cast<int>(number); }
  /// The text, which scripts see as Err.Description.
  const Text& Description() const noexcept { return m_Description; }
  /// The name of what raised the error; "" if it is not known.
  const Text& Source() const noexcept { return m_Source; }
  const char* what() const noexcept override;

 private:
  int m_Number;
  Text m_Description;
  Text m_Source;
  std::string m_What;
};

/// @name Throw an Error.
/// @{
[[noreturn]] void Raise(ErrorNumber number);
[[noreturn]] void Raise(int number, Text description = {}, Text source = {});
/// @}

/// Runs a step whose numbered failure is ignored on purpose, and returns whether it succeeded. Only Error is
/// caught: other exceptions, which are bugs, propagate.
template <class Step>
bool BestEffort(Step&& step) {
  try {
    step();
    return true;
  } catch (const Error&) {
    return false;
  }
}

/// The value of `step`, or `fallback` where it fails with a numbered error.
template <class Step, class Value>
Value BestEffortOr(Value fallback, Step&& step) {
  try {
    return step();
  } catch (const Error&) {
    return fallback;
  }
}

}  // namespace cardwright
