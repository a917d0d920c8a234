WScript.Echo "before"
' expect: before
Err.Raise 1000, "Tests", "Made up"
WScript.Echo "never"
' expect error: 1000 at 3:0
' expect text: Made up
