#include "hosting/ClassRegistry.h"
#include "hosting/FileSystemObject.h"
#include "storage/CIni.h"
#include "vbscript/objects/Dictionary.h"
#include "vbscript/objects/RegExp.h"

namespace cardwright {

void AddLightClasses(ClassRegistry& classes) {
  classes.Add(u"Scripting.Dictionary", [] { return MakeRef<vbscript::Dictionary>(); });
  classes.Add(u"Scripting.FileSystemObject", [] { return MakeRef<FileSystemObject>(); });
  classes.Add(u"VBScript.RegExp", [] { return MakeRef<vbscript::RegExp>(); });
  classes.Add(u"Cardwright.CIni", [] { return MakeRef<CIni>(); });
}

}  // namespace cardwright
