#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/HostBoxes.h"
#include "cardwright/vbscript/builtins/HostObjects.h"
#include "cardwright/vbscript/builtins/LocaleFunctions.h"

namespace cardwright::vbscript {

namespace {

// The version that scripts ask for: the last of the language, with the build number that most machines had.
constexpr std::int32_t kMajorVersion = 5, kMinorVersion = 8, kBuildVersion = 16384;

Variant ScriptEngineFunction(Context&, Args) { return u"VBScript"; }

template <std::int32_t Number>
Variant VersionFunction(Context&, Args) {
  return Number;
}

constexpr Builtin kHostFunctions[] = {
    {u"CreateObject", CreateObjectFunction, 1, 2},
    {u"GetLocale", GetLocaleFunction, 0, 0},
    {u"GetObject", GetObjectFunction, 0, 2},
    {u"InputBox", InputBoxFunction, 1, 7},
    {u"LoadPicture", LoadPictureFunction, 1, 1},
    {u"MsgBox", MsgBoxFunction, 1, 5},
    {u"ScriptEngine", ScriptEngineFunction, 0, 0},
    {u"ScriptEngineBuildVersion", VersionFunction<kBuildVersion>, 0, 0},
    {u"ScriptEngineMajorVersion", VersionFunction<kMajorVersion>, 0, 0},
    {u"ScriptEngineMinorVersion", VersionFunction<kMinorVersion>, 0, 0},
    {u"SetLocale", SetLocaleFunction, 0, 1},
};

}  // namespace

std::span<const Builtin> HostFunctions() { return kHostFunctions; }

}  // namespace cardwright::vbscript
