WScript.Echo "before"
' expect: before
second = 5
' expect error: 501 at 3:0
