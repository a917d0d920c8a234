WScript.Echo TypeName(Year(1)), TypeName(Hour(1)), TypeName(Weekday(1))
' expect: Integer Integer Integer
