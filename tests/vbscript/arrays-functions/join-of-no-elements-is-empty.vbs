' expect: .
WScript.Echo Join(Array()) & "."
