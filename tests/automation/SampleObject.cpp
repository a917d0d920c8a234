// SPDX-License-Identifier: MIT
#include "automation/SampleObject.h"

namespace cardwright {

namespace {
Text Greeting(SampleObject& self, const Text& name) { return self.Caption() + u" " + name; }
}  // namespace

const MemberTable& SampleObject::Members() const {
  static constexpr Member kMembers[] = {
      Property<&SampleObject::Number, &SampleObject::SetNumber>(u"Number"),
      Property<&SampleObject::Caption, &SampleObject::SetCaption>(u"Caption"),
      Property<&SampleObject::Cell, &SampleObject::SetCell>(u"Cell"),
      Property<&SampleObject::Link, nullptr, &SampleObject::SetLink>(u"Link"),
      Property<&SampleObject::Parts>(u"Parts"),
      Property<&SampleObject::GetShade, &SampleObject::SetShade>(u"Shade"),
      Property<&SampleObject::Names>(u"Names"),
      Method<&SampleObject::Add>(u"Add"),
      Method<&SampleObject::IsGiven>(u"IsGiven"),
      Method<&SampleObject::Raise>(u"Raise"),
      Method<&Greeting>(u"Greeting"),
      Property<nullptr, &SampleObject::SetNumber>(u"WriteOnly"),
  };
  static const MemberTable table(kMembers, u"Caption");
  return table;
}

}  // namespace cardwright
