' expect: 100%
' expect: %zz%4
' expect: %u20A
WScript.Echo Unescape("100%")
WScript.Echo Unescape("%zz%4")
WScript.Echo Unescape("%u20A")
