WScript.Echo TypeName(-32768), TypeName(-32767)
' expect: Long Integer
