Dim a(0)
a(0) = 1
WScript.Echo TypeName(a(0))
' expect: Integer
a(0) = "text"
WScript.Echo TypeName(a(0))
' expect: String
a(0) = Array(1)
WScript.Echo TypeName(a(0))
' expect: Variant()
