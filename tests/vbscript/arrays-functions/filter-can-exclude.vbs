' expect: three
WScript.Echo Join(Filter(Array("one", "two", "three"), "o", False))
