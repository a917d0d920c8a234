WScript.Echo(ScriptEngine(), ScriptEngineMajorVersion(), ScriptEngineMinorVersion(), ScriptEngineBuildVersion() > 0);
CollectGarbage();
// expect: JScript 5 8 True
