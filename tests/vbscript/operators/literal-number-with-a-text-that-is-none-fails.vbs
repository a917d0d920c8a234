text = "abc"
On Error Resume Next
answer = (text = 1)
WScript.Echo Err.Number, Err.Description
' expect: 13 Type mismatch
Err.Clear
text = ""
answer = (0 < text)
WScript.Echo Err.Number, TypeName(answer)
' expect: 13 Empty
