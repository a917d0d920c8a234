WScript.Echo "a" < "b", "A" < "a", "Z" < "a", "a" < "aa", "" < "a", "10" < "9", "abc" = "ABC"
' expect: True True True True True True False
