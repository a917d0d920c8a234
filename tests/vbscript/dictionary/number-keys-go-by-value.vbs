' expect: True
' expect: True
' expect: True
' expect: False
' expect: one
Set d = CreateObject("Scripting.Dictionary")
d.Add 1, "one"
WScript.Echo d.Exists(1.0)
WScript.Echo d.Exists(CLng(1))
WScript.Echo d.Exists(CByte(1))
WScript.Echo d.Exists("1")
WScript.Echo d(CDbl(1))
