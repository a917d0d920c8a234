// SPDX-License-Identifier: MIT
#pragma once

#include "model/Forms.h"
#include "platform/FakeSelectors.h"
#include "storage/TempFolder.h"

namespace cardwright {

/// A control of the class on a widget that the test keeps, in the form's collection under the user name.
template <class Owner>
Ref<Control> Bind(FormOn<Owner>& on, std::u16string_view className, const Ref<Widget>& widget,
                  std::u16string_view userName = u"a") {
  for (const ClassTable* candidate : ControlClasses()) {
    if (candidate->className != className) continue;
    Ref<Control> control = candidate->create();
    control->BindObject(widget);
    control->SetParentForm(on.owner);
    control->SetName(userName);
    on.owner->Controls().Add(Variant(Ref<Object>(control)), Variant(ToLower(userName)));
    on.owner->Take();
    return control;
  }
  ADD_FAILURE() << "no class " << Text(className).ToUtf8();
  return nullptr;
}

/// Reads the control from a section of these lines, each ended by "\n".
inline bool ReadLines(Control& control, const std::string& lines) {
  const TempFolder folder;
  std::string text = "[CONTROLS_1]\r\n";
  for (const char c : lines) text += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return control.Read(folder.Put("a.frm", text), u"CONTROLS_1");
}

/// What the control saves between its `UserName` and its `Container`.
inline std::string SavedLines(Control& control) {
  const TempFolder folder;
  EXPECT_TRUE(control.Save(folder.Put("a.frm", ""), u"CONTROLS_1"));
  const std::string all = folder.Get("a.frm");
  std::string lines;
  for (const char c : all)
    if (c != '\r') lines += c;
  const std::size_t begin = lines.find('\n', lines.find("UserName=")) + 1;
  return lines.substr(begin, lines.find("Container=") - begin);
}

}  // namespace cardwright
