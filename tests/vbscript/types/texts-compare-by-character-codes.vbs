WScript.Echo "a" = "A", "B" < "a", "a" < "b", "" < "a", "abc" < "abd", "ab" < "abc"
' expect: False True True True True True
WScript.Echo "10" < "9", 10 < 9
' expect: True False
