Function Tell(answer)
  WScript.Echo "asked"
  Tell = answer
End Function
x = False And Tell(True)
y = True Or Tell(False)
WScript.Echo x, y
' expect: asked
' expect: asked
' expect: False True
