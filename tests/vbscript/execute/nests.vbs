Execute "Execute ""x = Eval(""""1 + 1"""")"""
WScript.Echo x
' expect: 2
