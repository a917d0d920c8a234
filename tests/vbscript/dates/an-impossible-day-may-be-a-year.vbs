WScript.Echo CDate("29-Feb-01")
' expect: 2/1/2029
WScript.Echo CDate("2/30")
' expect: 2/1/1930
