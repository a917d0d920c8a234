d = #2/3/2004#
WScript.Echo Month(d) & "-" & Day(d) & "-" & Year(d)
WScript.Echo TypeName(d)
WScript.Echo Hour(#1/1/2000 3:04:05 PM#)
WScript.Echo Month(#25 December 2001#)
' expect: 2-3-2004
' expect: Date
' expect: 15
' expect: 12
