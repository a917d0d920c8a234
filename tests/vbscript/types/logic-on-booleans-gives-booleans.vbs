WScript.Echo True And False, True Or False, True Xor True, Not True
' expect: False True False False
WScript.Echo True Eqv False, False Imp False, TypeName(True And True)
' expect: False True Boolean
