WScript.Echo Len(CStr(Empty)), TypeName(CStr(Empty)), CStr(Empty) = ""
' expect: 0 String True
