Const kInteger = 1, kLong = 70000, kDouble = 1.5, kText = "a", kTruth = True, kDate = #2024-01-31#
WScript.Echo TypeName(kInteger), TypeName(kLong), TypeName(kDouble)
' expect: Integer Long Double
WScript.Echo TypeName(kText), TypeName(kTruth), TypeName(kDate)
' expect: String Boolean Date
Const kNothingYet = Empty, kUnknown = Null
WScript.Echo TypeName(kNothingYet), TypeName(kUnknown)
' expect: Empty Null
