// SPDX-License-Identifier: MIT
#include "cardwright/robot/windows/ControlProperties.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/PropertyBag.h"
#include "cardwright/qt/FormDesigner.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/OrvEditor.h"

namespace cardwright::robot {
namespace {

constexpr std::u16string_view kSetAttributesEnabled = u"SetAttributesEnabled";

/// A property bag over a dictionary. Unlike a container's it keeps default values too, so that a script sees
/// all of them.
class DictionaryPropertyBag final : public PropertyBag {
 public:
  explicit DictionaryPropertyBag(scripting::Dictionary& values) : m_Values(values) {}

  Variant ReadProperty(std::u16string_view name, const Variant& fallback) const override {
    const Variant key(name);
    return m_Values.Exists(key) ? m_Values.Item(key) : fallback;
  }
  void WriteProperty(std::u16string_view name, const Variant& value, const Variant&) override {
    m_Values.LetItem(Variant(name), value);
  }

 private:
  scripting::Dictionary& m_Values;
};

}  // namespace

Ref<scripting::Dictionary> WriteProperties(qt::VisualControl& control) {
  auto values = MakeRef<scripting::Dictionary>();
  DictionaryPropertyBag bag(*values);
  if (const auto* designer = qobject_cast<qt::FormDesigner*>(&control)) {
    designer->Object()->WriteProperties(bag);
  } else if (const auto* editor = qobject_cast<qt::OrvEditor*>(&control)) {
    editor->Object()->WriteProperties(bag);
  } else if (const auto* form = qobject_cast<qt::FormInput*>(&control)) {
    bag.WriteProperty(kSetAttributesEnabled, form->StoresAttributes(), true);
  }
  return values;
}

void ReadProperties(qt::VisualControl& control, scripting::Dictionary& values) {
  const DictionaryPropertyBag bag(values);
  if (const auto* designer = qobject_cast<qt::FormDesigner*>(&control)) {
    designer->Object()->ReadProperties(bag);
  } else if (const auto* editor = qobject_cast<qt::OrvEditor*>(&control)) {
    editor->Object()->ReadProperties(bag);
  } else if (auto* form = qobject_cast<qt::FormInput*>(&control)) {
    form->SetStoresAttributes(ToBoolean(bag.ReadProperty(kSetAttributesEnabled, true)));
  }
}

}  // namespace cardwright::robot
