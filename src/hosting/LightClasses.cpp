#include "hosting/ClassRegistry.h"
#include "hosting/FileSystemObject.h"
#include "storage/CIni.h"
#include "vbscript/objects/Dictionary.h"
#include "vbscript/objects/RegExp.h"

namespace cardwright {

void AddHarmlessClasses(ClassRegistry& classes) {
  classes.Add(u"Scripting.Dictionary", [] { return MakeRef<vbscript::Dictionary>(); });
  classes.Add(u"VBScript.RegExp", [] { return MakeRef<vbscript::RegExp>(); });
}

void AddLightClasses(ClassRegistry& classes) {
  AddHarmlessClasses(classes);
  classes.Add(u"Scripting.FileSystemObject", [] { return MakeRef<FileSystemObject>(); });
  classes.Add(u"Cardwright.CIni", [] { return MakeRef<CIni>(); });
}

}  // namespace cardwright
