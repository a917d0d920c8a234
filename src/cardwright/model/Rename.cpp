#include "cardwright/model/Rename.h"

#include "cardwright/automation/Errors.h"

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

bool RenameControl(Collection& controls, const Ref<Object>& object, const Text& newName,
                   const std::function<void(const Text& oldName, IControl& control)>& told) {
  const Ref<IControl> control(dynamic_cast<IControl*>(object.get()));
  // Blanks around a name stay part of it.
  if (!control || Trim(newName).empty()) return false;
  const IControl* holder = FindControl(controls, newName);
  if (holder && holder != control.get()) return false;
  const Text oldName = control->UserName();
  // Without a place under the new name the control keeps its old one.
  if (!Attempt([&] { RenameInCollection(controls, *control, newName); })) return false;
  Attempt([&] { control->SetName(newName); });
  Attempt([&] { told(oldName, *control); });
  for (const Ref<IControl>& other : ControlsOf(controls))
    Attempt([&] { other->LinkControlNameChanged(oldName, newName); });
  return true;
}

}  // namespace cardwright
