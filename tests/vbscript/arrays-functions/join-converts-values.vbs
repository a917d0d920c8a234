' expect: 1|2.5|True|
WScript.Echo Join(Array(1, 2.5, True, Empty), "|")
