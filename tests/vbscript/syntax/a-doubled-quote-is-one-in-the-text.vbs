WScript.Echo "say ""hi"""
WScript.Echo """"
WScript.Echo "" & "[]"
' expect: say "hi"
' expect: "
' expect: []
