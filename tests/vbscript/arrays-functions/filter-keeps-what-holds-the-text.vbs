' expect: one two
WScript.Echo Join(Filter(Array("one", "two", "three"), "o"))
