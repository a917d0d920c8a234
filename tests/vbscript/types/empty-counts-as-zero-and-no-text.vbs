WScript.Echo Empty + 5, 5 - Empty, Len(Empty & ""), TypeName(Empty + Empty)
' expect: 5 5 0 Integer
WScript.Echo Empty = 0, Empty = "", Empty = False
' expect: True True True
