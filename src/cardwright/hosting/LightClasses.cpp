#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/hosting/FileSystemObject.h"
#include "cardwright/storage/CIni.h"
#include "cardwright/vbscript/objects/Dictionary.h"
#include "cardwright/vbscript/objects/RegExp.h"

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
