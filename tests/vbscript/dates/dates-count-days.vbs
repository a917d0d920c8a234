WScript.Echo #11/21/2026# - #11/20/2026#
' expect: 1
WScript.Echo CDbl(#12/31/1899#), CDbl(#12/29/1899#)
' expect: 1 -1
WScript.Echo CDbl(#1/1/100#), CDbl(#12/31/9999#)
' expect: -657434 2958465
