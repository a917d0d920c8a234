// SPDX-License-Identifier: MIT
#include "desktop/Classes.h"

#include "cardwright/editor/CElement.h"
#include "cardwright/model/CColor.h"
#include "cardwright/model/CForm.h"
#include "cardwright/model/CItems.h"
#include "cardwright/model/ControlClasses.h"
#include "cardwright/runtime/CAttrib.h"
#include "cardwright/runtime/Vellum.h"

namespace cardwright::desktop {
namespace {

template <class C>
Ref<Object> Make() {
  return MakeRef<C>();
}

void AddDataClasses(ClassRegistry& classes) {
  classes.Add(u"Cardwright.CColor", Make<CColor>);
  classes.Add(u"Cardwright.CElement", Make<CElement>);
  classes.Add(u"Cardwright.CItem", Make<CItem>);
  classes.Add(u"Cardwright.CItems", Make<CItems>);
  classes.Add(u"Cardwright.CAttrib", Make<CAttrib>);
  classes.Add(u"Cardwright.CAttribs", Make<CAttribs>);
}

}  // namespace

void AddDesktopClasses(ClassRegistry& classes) {
  classes.Add(u"Cardwright.Vellum", Make<Vellum>);
  classes.Add(u"Cardwright.CForm", Make<CForm>);
  AddDataClasses(classes);
  for (const ClassTable* table : ControlClasses())
    classes.Add(Text(u"Cardwright.") + table->className, [make = table->create] { return make(); });
}

ClassRegistry RestrictedClasses() {
  ClassRegistry classes;
  AddCoreClasses(classes);
  AddDataClasses(classes);
  return classes;
}

}  // namespace cardwright::desktop
