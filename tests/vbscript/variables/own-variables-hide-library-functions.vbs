Dim left
left = 5
WScript.Echo left + 1
' expect: 6
