// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/syntax/Position.h"

namespace cardwright::vbscript {

/// Numbers of the compile errors. StandardErrorText has their texts.
enum class SyntaxErrorNumber : int {
  OutOfMemory = 1001,  ///< also: nested beyond the parser's limit
  SyntaxError = 1002,
  ExpectedColon = 1003,
  ExpectedLeftParen = 1005,
  ExpectedRightParen = 1006,
  ExpectedRightBracket = 1007,
  ExpectedIdentifier = 1010,
  ExpectedEquals = 1011,
  ExpectedIf = 1012,
  ExpectedTo = 1013,
  ExpectedEnd = 1014,
  ExpectedFunction = 1015,
  ExpectedSub = 1016,
  ExpectedThen = 1017,
  ExpectedWend = 1018,
  ExpectedLoop = 1019,
  ExpectedNext = 1020,
  ExpectedCase = 1021,
  ExpectedSelect = 1022,
  ExpectedExpression = 1023,
  ExpectedStatement = 1024,
  ExpectedEndOfStatement = 1025,
  ExpectedIntegerConstant = 1026,
  ExpectedWhileOrUntil = 1027,
  ExpectedWhileUntilOrEnd = 1028,
  ExpectedWith = 1029,
  IdentifierTooLong = 1030,
  InvalidNumber = 1031,
  InvalidCharacter = 1032,
  UnterminatedString = 1033,
  UnterminatedComment = 1034,
  InvalidMe = 1037,
  LoopWithoutDo = 1038,
  InvalidExit = 1039,
  InvalidForVariable = 1040,
  NameRedefined = 1041,
  MustBeFirstStatement = 1042,
  CannotAssignToArgument = 1043,
  CannotUseParentheses = 1044,
  ExpectedLiteral = 1045,
  ExpectedIn = 1046,
  ExpectedClass = 1047,
  MustBeInsideClass = 1048,
  ExpectedLetSetGet = 1049,
  ExpectedProperty = 1050,
  InconsistentPropertyArguments = 1051,
  MultipleDefaults = 1052,
  ClassEventArguments = 1053,
  PropertyNeedsArgument = 1054,
  UnexpectedNext = 1055,
  DefaultOnlyOnProcedures = 1056,
  DefaultMustBePublic = 1057,
  DefaultOnlyOnGet = 1058,
};

/// The first error of a text that is no program, at the start of the offending token.
class SyntaxError : public Error {
 public:
  SyntaxError(SyntaxErrorNumber number, Position position)
      : Error(static_cast<int>(number), {}, u"Microsoft VBScript compilation error"), m_Position(position) {}
  Position Where() const noexcept { return m_Position; }

 private:
  Position m_Position;
};

}  // namespace cardwright::vbscript
