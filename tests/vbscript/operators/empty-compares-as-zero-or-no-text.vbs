WScript.Echo Empty = 0, Empty = "", Empty = False, Empty = Empty, Empty < 1, Empty < "a", Empty = "0"
' expect: True True True True True True False
