d = #2/3/2004#
WScript.Echo Month(d)
' expect: 2
' locale: it-IT
