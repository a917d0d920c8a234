WScript.Echo "1" + 2, TypeName("1" + 2), 2 + "1.5"
' expect: 3 Double 3.5
