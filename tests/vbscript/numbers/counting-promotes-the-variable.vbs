For i = 32766 To 32769
  text = text & TypeName(i) & " "
Next
WScript.Echo Trim(text)
' expect: Integer Integer Long Long
