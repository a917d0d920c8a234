// SPDX-License-Identifier: MIT
#include "cardwright/model/IControl.h"

namespace cardwright {
namespace {

void AttachControls(IControl& self, const Ref<Collection>& controls) {
  if (controls) self.AttachControls(*controls);
}
void LinkControlDelete(IControl& self, const Ref<Collection>& controls) {
  if (controls) self.LinkControlDelete(*controls);
}
bool Read(IControl& self, const Text& filePath, std::optional<Text> sectionName) {
  return self.Read(filePath, sectionName.value_or(Text()));
}
bool Save(IControl& self, const Text& filePath, std::optional<Text> sectionName) {
  return self.Save(filePath, sectionName.value_or(Text()));
}

constexpr Member kControlMembers[] = {
    Property<&IControl::Name, &IControl::SetName>(u"Name"),
    Property<&IControl::UserName>(u"UserName"),
    Property<&IControl::Left, &IControl::SetLeft>(u"Left"),
    Property<&IControl::Top, &IControl::SetTop>(u"Top"),
    Property<&IControl::Height, &IControl::SetHeight>(u"Height"),
    Property<&IControl::Width, &IControl::SetWidth>(u"Width"),
    Property<&IControl::BackColor, &IControl::SetBackColor>(u"BackColor"),
    Property<&IControl::ForeColor, &IControl::SetForeColor>(u"ForeColor"),
    Property<&IControl::GetFont, &IControl::SetFont, &IControl::SetFont>(u"Font"),
    Property<&IControl::BoundObject, nullptr, &IControl::BindObject>(u"Object"),
    Property<&IControl::ParentForm, nullptr, &IControl::SetParentForm>(u"ParentForm"),
    Property<&IControl::PropertyCount>(u"PropertyCount"),
    Property<&IControl::PropertyName>(u"PropertyName"),
    Property<&IControl::PropertyType>(u"PropertyType"),
    Property<&IControl::PropertyDescription>(u"PropertyDescription"),
    Property<&IControl::PropertyValue, &IControl::SetPropertyValue, &IControl::SetPropertyValue>(
        u"PropertyValue"),
    Method<&Read>(u"Read"),
    Method<&Save>(u"Save"),
    Property<&IControl::ZOrder, &IControl::SetZOrder>(u"ZOrder"),
    Method<&IControl::Delete>(u"Delete"),
    Property<&IControl::Value>(u"Value"),
    Property<&IControl::DisplayText>(u"Text"),
    Property<&IControl::AttributeName>(u"AttributeName"),
    Property<&IControl::PropertyList>(u"PropertyList"),
    Method<&AttachControls>(u"AttachControls"),
    Method<&IControl::LinkControlNameChanged>(u"LinkControlNameChanged"),
    Method<&LinkControlDelete>(u"LinkControlDelete"),
    Property<&IControl::Events>(u"Events"),
    Property<&IControl::FilenameFilter>(u"FilenameFilter"),
    Method<&IControl::Refresh>(u"Refresh"),
};

}  // namespace

const MemberTable& IControl::Members() const {
  static const MemberTable table(kControlMembers);
  return table;
}

IControl* AsControl(const Variant& item) noexcept {
  return item.IsObject() ? dynamic_cast<IControl*>(item.ObjectPtr()) : nullptr;
}

std::vector<Ref<IControl>> ControlsOf(const Collection& controls) {
  std::vector<Ref<IControl>> list;
  list.reserve(static_cast<std::size_t>(controls.Count()));
  for (std::int32_t i = 1; i <= controls.Count(); ++i)
    if (IControl* control = AsControl(controls.Item(Variant(i)))) list.emplace_back(control);
  return list;
}

IControl* FindControl(const Collection& controls, std::u16string_view userName) noexcept {
  const Variant* found = controls.Find(userName);
  return found ? AsControl(*found) : nullptr;
}

}  // namespace cardwright
