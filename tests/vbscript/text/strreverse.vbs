' expect: cba
' expect: |
' expect: 321
WScript.Echo StrReverse("abc")
WScript.Echo StrReverse("") & "|"
WScript.Echo StrReverse(123)
