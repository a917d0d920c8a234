WScript.Echo "say ""hi""", """", Len("""""")
' expect: say "hi" " 2
