' expect: [   ]
' expect: []
WScript.Echo "[" & Space(3) & "]"
WScript.Echo "[" & Space(0) & "]"
