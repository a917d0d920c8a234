WScript.Echo ScriptEngine
' expect: VBScript
WScript.Echo ScriptEngineMajorVersion, ScriptEngineMinorVersion, ScriptEngineBuildVersion
' expect: 5 8 16384
