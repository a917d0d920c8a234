chain = "0" & Replace(String(5000, "x"), "x", "+1")
WScript.Echo Eval(chain)
' expect: 5000
chain = """""" & Replace(String(5000, "x"), "x", "&""a""")
WScript.Echo Len(Eval(chain))
' expect: 5000
