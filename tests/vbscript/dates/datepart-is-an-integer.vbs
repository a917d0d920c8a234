WScript.Echo TypeName(DatePart("yyyy", #1/1/2026#))
' expect: Integer
