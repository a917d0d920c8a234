Class Thermometer
  Private m_Celsius
  Public Property Get Fahrenheit()
    Fahrenheit = m_Celsius * 9 / 5 + 32
  End Property
  Public Property Let Fahrenheit(value)
    m_Celsius = (value - 32) * 5 / 9
  End Property
  Public Property Get Celsius()
    Celsius = m_Celsius
  End Property
End Class

Set t = New Thermometer
t.Fahrenheit = 212
WScript.Echo t.Celsius, t.Fahrenheit
' expect: 100 212
