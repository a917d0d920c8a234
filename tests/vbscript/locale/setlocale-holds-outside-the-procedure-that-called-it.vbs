Sub Italian()
  SetLocale 1040
End Sub
Italian
WScript.Echo MonthName(11)
' expect: novembre
