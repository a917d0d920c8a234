#include "model/Rename.h"

namespace cardwright {

void RenameInCollection(Collection& controls, IControl& control, const Text& newName) {
  const Variant item{Ref<Object>(&control)};
  const Text newKey = ToLower(newName);
  Text oldKey = ToLower(control.UserName());
  if (FindControl(controls, oldKey) != &control) return;
  // Where only the case changes the key is taken by the control itself, so it steps aside first.
  if (oldKey == newKey) {
    const Text aside = u"\u00A7";
    controls.Add(item, Variant(aside));
    controls.Remove(Variant(oldKey));
    oldKey = aside;
  }
  controls.Add(item, Variant(newKey));
  controls.Remove(Variant(oldKey));
}

}  // namespace cardwright
