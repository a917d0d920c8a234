' expect: 0
WScript.Echo Len(Empty)
