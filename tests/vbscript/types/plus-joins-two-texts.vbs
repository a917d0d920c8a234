WScript.Echo "1" + "2", TypeName("1" + "2"), "a" + "b"
' expect: 12 String ab
