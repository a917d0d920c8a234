' A text of a million characters searched for a word, then looked at character by character.
Dim text, i, found, count, letters, letter
text = "the quick brown fox jumps over the lazy dog; "
Do While Len(text) < 1048576
  text = text & text
Loop
text = Left(text, 1048576)
count = 0
found = InStr(1, text, "fox")
Do While found > 0
  count = count + 1
  found = InStr(found + 1, text, "fox")
Loop
letters = 0
For i = 1 To Len(text)
  letter = Mid(text, i, 1)
  If letter = "o" Then letters = letters + 1
Next
WScript.Echo count & " " & letters
