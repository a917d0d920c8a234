WScript.Echo True Xor True, True Xor False, False Xor True, False Xor False
' expect: False True True False
WScript.Echo IsNull(True Xor Null), IsNull(Null Xor False), IsNull(Null Xor Null)
' expect: True True True
