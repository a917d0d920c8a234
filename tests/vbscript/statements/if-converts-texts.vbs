s = "True"
If s Then WScript.Echo "word"
' expect: word
s = "0"
If s Then WScript.Echo "true" Else WScript.Echo "digit"
' expect: digit
s = "-3.5"
If s Then WScript.Echo "number"
' expect: number
