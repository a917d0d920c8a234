// SPDX-License-Identifier: MIT
#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/hosting/FileSystemObject.h"
#include "cardwright/scripting/Dictionary.h"
#include "cardwright/scripting/RegExp.h"
#include "cardwright/storage/CIni.h"

namespace cardwright {

void AddSafeClasses(ClassRegistry& classes) {
  classes.Add(u"Scripting.Dictionary", [] { return MakeRef<scripting::Dictionary>(); });
  classes.Add(u"VBScript.RegExp", [] { return MakeRef<scripting::RegExp>(); });
}

void AddCoreClasses(ClassRegistry& classes) {
  AddSafeClasses(classes);
  classes.Add(u"Scripting.FileSystemObject", [] { return MakeRef<FileSystemObject>(); });
  classes.Add(u"Cardwright.CIni", [] { return MakeRef<CIni>(); });
}

}  // namespace cardwright
