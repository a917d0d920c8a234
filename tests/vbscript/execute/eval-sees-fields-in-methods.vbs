Class Box
  Private m_N
  Public Function Told(code)
    m_N = 6
    Told = Eval(code)
  End Function
End Class
Set b = New Box
WScript.Echo b.Told("m_N * 7"), b.Told("Me.Told(""1"")")
' expect: 42 1
