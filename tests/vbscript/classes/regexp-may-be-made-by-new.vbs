Set r = New RegExp
r.Pattern = "^a+$"
WScript.Echo r.Test("aaa"), r.Test("ab")
' expect: True False
