Function Answer(value)
  If value Then Answer = "yes" Else Answer = "no"
End Function
WScript.Echo Answer(1), Answer(-0.1), Answer("True"), Answer("false"), Answer("0"), Answer("0.5"), Answer(Empty), Answer(0), Answer(CDate(1))
' expect: yes yes yes no no yes no no yes
