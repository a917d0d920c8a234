On Error Resume Next
x = CInt(40000)
WScript.Echo Err.Number, Err.Description
' expect: 6 Overflow
x = CInt(Null)
WScript.Echo Err.Number, Err.Description
' expect: 94 Invalid use of Null
x = Left("a", -1)
WScript.Echo Err.Number, Err.Description
' expect: 5 Invalid procedure call or argument
Set o = Nothing
o.Work
WScript.Echo Err.Number, Err.Description
' expect: 91 Object variable not set
o = 5
o.Work
WScript.Echo Err.Number, Err.Description
' expect: 424 Object required
Set o = CreateObject("No.SuchClass")
WScript.Echo Err.Number, Err.Description
' expect: 429 ActiveX component can't create object
Set o = CreateObject("Scripting.Dictionary")
o.Work
WScript.Echo Err.Number, Err.Description
' expect: 438 Object doesn't support this property or method
