' Words of a text found by a regular expression and counted in a dictionary.
Const COUNT = 60000
Dim syllables, words, i, seed, text
syllables = Array("ka", "Lo", "mi", "ne", "ru", "Sa", "ti", "vo")
ReDim words(COUNT - 1)
seed = 11
For i = 0 To COUNT - 1
  seed = (seed * 1103 + 12345) Mod 1000003
  words(i) = syllables(seed Mod 8) & syllables((seed \ 8) Mod 8) & syllables((seed \ 64) Mod 8) & "," & (i Mod 100)
Next
text = Join(words, " ")

Dim expression, counts, found, word
Set expression = New RegExp
expression.Pattern = "[a-z]+"
expression.Global = True
expression.IgnoreCase = True
Set counts = CreateObject("Scripting.Dictionary")
For Each found In expression.Execute(text)
  word = LCase(found.Value)
  If counts.Exists(word) Then
    counts(word) = counts(word) + 1
  Else
    counts.Add word, 1
  End If
Next

Dim best, squares
best = 0
squares = 0
For Each word In counts.Keys
  If counts(word) > best Then best = counts(word)
  squares = (squares + counts(word) * counts(word)) Mod 1000003
Next
expression.Pattern = "[aeiou]"
WScript.Echo counts.Count & " " & best & " " & squares & " " & Len(expression.Replace(text, ""))
