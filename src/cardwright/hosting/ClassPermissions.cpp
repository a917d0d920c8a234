// SPDX-License-Identifier: MIT
#include "cardwright/hosting/ClassPermissions.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/Files.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

// The file itself, whatever links and relative paths lead to it.
Text Canonical(const Text& file) {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::canonical(ToPath(file), error);
  return error ? Text() : FromPath(path);
}

}  // namespace

Text ClassPermissions::Key(std::u16string_view progid) const {
  return Canonical(m_File) + u" " + ToLower(progid);
}

// Includes the path, as the settings ignore the case of keys and the file system does not.
Text ClassPermissions::Digest() const {
  return Module().desktop->Digest(Canonical(m_File) + u"\n" + m_Program);
}

bool ClassPermissions::IsSaved(std::u16string_view progid) const {
  const SettingsStore& settings = Module().desktop->Settings();
  return settings.Get(kSettingsApp, kSettingsSection, Key(progid), {}) == Digest();
}

void ClassPermissions::Save(std::u16string_view progid) const {
  if (!Module().desktop) return;  // the desktop can end while the box is open
  Module().desktop->Settings().Save(kSettingsApp, kSettingsSection, Key(progid), Digest());
}

bool ClassPermissions::Ask(std::u16string_view progid) const {
  const Text question = u"The script of this form wants to use the class " + Text(progid) +
                        u", with which it may reach more than the form, such as your files.\r\n\r\n" +
                        Canonical(m_File) +
                        u"\r\n\r\nAllow it, until the script is changed? Do so only if you know where the "
                        u"form comes from.";
  constexpr int kStyle = BoxStyle::YesNo | BoxStyle::Exclamation | BoxStyle::SecondIsDefault;
  return Module().desktop->ShowMessage(question, kStyle, {}) == BoxAnswer::Yes;
}

bool ClassPermissions::Remember(std::u16string_view progid, bool isYes) {
  std::erase_if(m_Answers, [&](const Answer& one) { return EqualsNoCase(one.progid, progid); });
  m_Answers.push_back({Text(progid), isYes});
  return isYes;
}

bool ClassPermissions::IsAllowed(std::u16string_view progid, bool mayAsk) {
  for (const Answer& one : m_Answers)
    if (EqualsNoCase(one.progid, progid)) return one.isYes;
  const Desktop* const desktop = Module().desktop;
  if (!desktop || Canonical(m_File).IsEmpty()) return false;
  if (IsSaved(progid)) return Remember(progid, true);
  if (!mayAsk || !desktop->IsAttended()) return false;
  Remember(progid, false);  // for requests while the box is open
  if (!Ask(progid)) return false;
  Save(progid);
  return Remember(progid, true);
}

}  // namespace cardwright
