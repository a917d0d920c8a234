Function Three()
  Three = Rnd & " " & Rnd & " " & Rnd
End Function
Rnd -1
Randomize 42
first = Three()
Rnd -1
Randomize 42
WScript.Echo first = Three()
' expect: True
Randomize 42
WScript.Echo first = Three()
' expect: False
