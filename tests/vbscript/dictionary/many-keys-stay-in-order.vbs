' expect: 1500
' expect: 2 2000 2500
Set d = CreateObject("Scripting.Dictionary")
For i = 1 To 2000 : d("k" & i) = i : Next
For i = 1 To 2000 Step 2 : d.Remove "k" & i : Next
For i = 2001 To 2500 : d("k" & i) = i : Next
a = d.Items
WScript.Echo d.Count
WScript.Echo a(0) & " " & a(999) & " " & a(1499)
