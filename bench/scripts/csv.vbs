' A table as text, as scripts get it from files: 50,000 lines made, taken apart and written again with other formats.
' The amounts are quarters, which every language writes alike.
Const COUNT = 50000
Dim lines, i, seed, text, fields, amount, total, hash
ReDim lines(COUNT - 1)
seed = 7
For i = 0 To COUNT - 1
  seed = (seed * 1103 + 12345) Mod 1000003
  lines(i) = i & ";parcel " & (seed Mod 4001) & ";" & (seed Mod 10000) / 4
Next
text = Join(lines, vbCrLf)

lines = Split(text, vbCrLf)
total = 0
For i = 0 To UBound(lines)
  fields = Split(lines(i), ";")
  amount = CDbl(fields(2))
  total = total + amount
  lines(i) = Right("000000" & fields(0), 6) & "," & UCase(fields(1)) & "," & FormatNumber(amount * 2, 2, -1, 0, 0)
Next
text = Join(lines, vbLf)

hash = 0
For i = 1 To Len(text) Step 101
  hash = (hash * 31 + Asc(Mid(text, i, 1))) Mod 1000003
Next
WScript.Echo Len(text) & " " & Int(total) & " " & hash
