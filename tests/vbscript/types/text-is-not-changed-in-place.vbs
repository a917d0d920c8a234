a = "text"
b = a
b = b & "!"
WScript.Echo a, b
' expect: text text!
