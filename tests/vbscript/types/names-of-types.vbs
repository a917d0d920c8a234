WScript.Echo TypeName(CByte(1)), TypeName(1), TypeName(70000), TypeName(1.5), TypeName(CSng(1))
' expect: Byte Integer Long Double Single
WScript.Echo TypeName(CCur(1)), TypeName(CDate(1)), TypeName("a"), TypeName(True)
' expect: Currency Date String Boolean
WScript.Echo TypeName(Empty), TypeName(Null), TypeName(Nothing), TypeName(Array())
' expect: Empty Null Nothing Variant()
WScript.Echo TypeName(CreateObject("Scripting.Dictionary"))
' expect: Dictionary
