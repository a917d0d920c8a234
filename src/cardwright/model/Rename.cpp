// SPDX-License-Identifier: MIT
#include "cardwright/model/Rename.h"

#include "cardwright/automation/Errors.h"

namespace cardwright {

void RenameInCollection(Collection& controls, IControl& control, const Text& newName) {
  const Variant item{Ref<Object>(&control)};
  const Text newKey = ToLower(newName);
  Text oldKey = ToLower(control.UserName());
  if (FindControl(controls, oldKey) != &control) return;
  // A change of case alone would find the key taken, by the control itself: it is moved to a temporary key
  // first.
  if (oldKey == newKey) {
    const Text temporary = u"\u00A7";
    controls.Add(item, Variant(temporary));
    controls.Remove(Variant(oldKey));
    oldKey = temporary;
  }
  controls.Add(item, Variant(newKey));
  controls.Remove(Variant(oldKey));
}

bool RenameControl(Collection& controls, const Ref<Object>& object, const Text& newName,
                   const std::function<void(const Text& oldName, IControl& control)>& renamed) {
  const Ref<IControl> control(dynamic_cast<IControl*>(object.get()));
  // Leading and trailing blanks are part of a name.
  if (!control || Trim(newName).empty()) return false;
  const IControl* holder = FindControl(controls, newName);
  if (holder && holder != control.get()) return false;
  const Text oldName = control->UserName();
  // If the collection refuses the new key, the control keeps its old name.
  if (!BestEffort([&] { RenameInCollection(controls, *control, newName); })) return false;
  BestEffort([&] { control->SetName(newName); });
  BestEffort([&] { renamed(oldName, *control); });
  for (const Ref<IControl>& other : ControlsOf(controls))
    BestEffort([&] { other->LinkControlNameChanged(oldName, newName); });
  return true;
}

}  // namespace cardwright
