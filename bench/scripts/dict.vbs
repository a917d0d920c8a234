' A dictionary of 200,000 texts filled, then asked for each.
Dim entries, i, total
Set entries = CreateObject("Scripting.Dictionary")
For i = 1 To 200000
  entries.Add "k" & i, i
Next
total = 0
For i = 1 To 200000
  If entries.Exists("k" & i) Then total = (total + entries.Item("k" & i)) Mod 1000003
Next
WScript.Echo entries.Count & " " & total
