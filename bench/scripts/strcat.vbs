' A text that grows by one character, 200,000 times. Scripts build reports like this, and it must not cost a copy of
' the whole text each time.
Dim grown, i, hash
grown = ""
For i = 1 To 200000
  grown = grown & (i Mod 10)
Next
hash = 0
For i = 1 To Len(grown) Step 997
  hash = (hash * 31 + Asc(Mid(grown, i, 1))) Mod 1000003
Next
WScript.Echo Len(grown) & " " & hash
