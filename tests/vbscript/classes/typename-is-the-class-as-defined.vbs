Class PumpStation
End Class

Set o = New PUMPSTATION
WScript.Echo TypeName(o), IsObject(o), VarType(o)
' expect: PumpStation True 9
