// SPDX-License-Identifier: MIT
#include "cardwright/qt/desktop/QtSettings.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

/// A name in lower case, with everything but plain letters, digits and a few signs as '~' and four
/// hexadecimal digits: separators in it mean nothing to the file then, and no two names meet.
QString Escape(std::u16string_view name) {
  const Text folded = ToLower(name);
  QString escaped;
  for (const char16_t c : folded.View()) {
    const bool isPlain = (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'_' || c == u'-';
    if (isPlain) {
      escaped += QChar(c);
    } else {
      escaped += u'~' + QString::number(c, 16).rightJustified(4, u'0');
    }
  }
  return escaped;
}

QString KeyOf(std::u16string_view app, std::u16string_view section, std::u16string_view key) {
  return Escape(app) + u'/' + Escape(section) + u'/' + Escape(key);
}

}  // namespace

QtSettings::QtSettings()
    : m_Settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Cardwright"),
                 QStringLiteral("Settings")) {
  m_Settings.setFallbacksEnabled(false);
}

Text QtSettings::Get(std::u16string_view app, std::u16string_view section, std::u16string_view key,
                     std::u16string_view fallback) const {
  const QVariant value = m_Settings.value(KeyOf(app, section, key));
  return value.isValid() ? FromQString(value.toString()) : Text(fallback);
}

void QtSettings::Save(std::u16string_view app, std::u16string_view section, std::u16string_view key,
                      std::u16string_view value) {
  if (app.empty() || section.empty() || key.empty()) Raise(ErrorNumber::InvalidCall);
  m_Settings.setValue(KeyOf(app, section, key), ToQString(value));
  m_Settings.sync();  // another program of the same user may ask next
}

}  // namespace cardwright::qt
