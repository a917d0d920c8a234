WScript.Echo True + True, True * 5, True - 1, TypeName(True + True)
' expect: -2 -5 -2 Integer
WScript.Echo -True, TypeName(-True), CInt(False)
' expect: 1 Integer 0
