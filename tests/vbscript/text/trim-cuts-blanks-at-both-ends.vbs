' expect: [a b]
' expect: [a  ]
' expect: [  a]
' expect: []
WScript.Echo "[" & Trim("  a b  ") & "]"
WScript.Echo "[" & LTrim("  a  ") & "]"
WScript.Echo "[" & RTrim("  a  ") & "]"
WScript.Echo "[" & Trim("   ") & "]"
