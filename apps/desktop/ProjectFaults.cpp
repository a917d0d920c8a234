// SPDX-License-Identifier: MIT
#include "desktop/ProjectFaults.h"

#include <QHash>
#include <QSet>
#include <QStringDecoder>
#include <QStringList>

#include "cardwright/automation/Conversions.h"
#include "cardwright/model/CForm.h"
#include "cardwright/model/ControlClasses.h"
#include "cardwright/model/Enums.h"
#include "cardwright/model/RegKey.h"
#include "cardwright/platform/Files.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/OrvClient.h"
#include "cardwright/storage/CIni.h"
#include "cardwright/storage/CodePage.h"
#include "desktop/ScriptFaults.h"

namespace cardwright::desktop {
namespace {

constexpr qsizetype kLongestValue = 8191;  // characters that are read of a value

/// The faults that the bytes of the file show.
class LineFaults {
 public:
  LineFaults(std::vector<Fault>& faults, const Text& file) : m_Faults(faults) {
    const std::string bytes = ReadFile(ToPath(file)).value_or(std::string());
    for (std::size_t at = 0; at < bytes.size() && !m_InScript;) {
      const std::size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
      CheckLine(QByteArrayView(bytes)
                    .sliced(static_cast<qsizetype>(at), static_cast<qsizetype>(end - at))
                    .trimmed());
      at = end + (std::string_view(bytes).substr(end).starts_with("\r\n") ? 2 : 1);
    }
  }

 private:
  void CheckLine(QByteArrayView line) {
    ++m_Number;
    if (line.isEmpty() || line.startsWith(';')) return;
    if (line.startsWith('[') && line.endsWith(']')) {
      m_Section = Decode(line.sliced(1, line.size() - 2));
      m_InScript = line.compare("[SCRIPT]", Qt::CaseInsensitive) == 0;
      return;
    }
    const qsizetype equals = line.indexOf('=');
    if (equals < 0)
      return Add(QStringLiteral("line %1 is no entry; of a text with several lines only the first is read")
                     .arg(m_Number));
    const QString key = Decode(line.first(equals).trimmed());
    const QByteArrayView value = line.sliced(equals + 1).trimmed();
    if (value.size() > kLongestValue)
      Add(QStringLiteral("the value of %1 is cut to %2 characters").arg(key).arg(kLongestValue));
    CheckCharacters(key, value);
  }

  // Today's editors save UTF-8; the form would show each accented letter as two characters.
  void CheckCharacters(const QString& key, QByteArrayView value) {
    const bool isPlain =
        std::all_of(value.begin(), value.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
    if (isPlain) return;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString asUtf8 = decoder(value);
    if (!decoder.hasError())
      return Add(QStringLiteral("the value of %1 is UTF-8 text and shows as \"%2\"").arg(key, Decode(value)));
    for (const QChar c : Decode(value)) {
      if (c.category() != QChar::Other_Control) continue;
      return Add(QStringLiteral("the value of %1 has a character that the code page lacks").arg(key));
    }
  }

  void Add(const QString& text) { m_Faults.push_back({m_Section, text}); }
  static QString Decode(QByteArrayView bytes) {
    return qt::ToQString(CodePage::Current().Decode({bytes.data(), static_cast<std::size_t>(bytes.size())}));
  }

  std::vector<Fault>& m_Faults;
  QString m_Section;
  int m_Number = 0;
  bool m_InScript = false;
};

/// The faults in the sections and their relations.
class SectionFaults {
 public:
  SectionFaults(std::vector<Fault>& faults, const Text& file, EmbeddedHost* data) : m_Faults(faults) {
    if (data) m_Data.emplace(Ref<HostConnection>(data));
    m_Ini.SetFileName(file);
    m_Elements.push_back({QStringLiteral("Form"), CForm::kTable.events});
    CheckForm();
    CheckControls();
  }

  /// The elements that the script can use.
  std::span<const ScriptedElement> Elements() const { return m_Elements; }

 private:
  QString Value(std::u16string_view key) const { return qt::ToQString(m_Ini.GetText(m_Section, key)); }
  void Add(const QString& text) { m_Faults.push_back({qt::ToQString(m_Section), text}); }

  void CheckForm() {
    m_Section = u"FORM";
    if (!m_Ini.Find(m_Section, u"ControlsNumber"))
      Add(QStringLiteral("there is no ControlsNumber: the form has no controls"));
    CheckNumbers();
    m_Theme = m_Ini.GetText(m_Section, u"ThemeName");
    if (!m_Data || m_Theme.IsEmpty()) return;
    if (m_Data->ThemeNumber(m_Theme) > 0) {
      LoadAttributeNames();
    } else {
      Add(QStringLiteral("the data has no theme %1").arg(qt::ToQString(m_Theme)));
    }
  }

  void LoadAttributeNames() {
    const auto type = static_cast<FeatureTypeEnum>(Val(m_Ini.GetText(m_Section, u"FeatureType", u"-1")));
    for (const Text& name : m_Data->AttributeNames({m_Theme, type}))
      m_Attributes.insert(qt::ToQString(name).toLower());
    m_KnowsAttributes = !m_Attributes.isEmpty();
    if (!m_KnowsAttributes)
      Add(QStringLiteral("the theme %1 has no features of the form's feature type")
              .arg(qt::ToQString(m_Theme)));
  }

  // If a size or position cannot be read, the control is invisible.
  void CheckNumbers() {
    for (const char16_t* key : {u"Left", u"Top", u"ItemsNumber"}) CheckNumber(key, false);
    for (const char16_t* key : {u"Width", u"Height", u"FontSize"}) CheckNumber(key, true);
  }

  void CheckNumber(const char16_t* key, bool isSize) {
    const QString value = Value(key).trimmed();
    if (value.isEmpty()) return;
    bool isNumber = false;
    const double number = QString(value).replace(u',', u'.').toDouble(&isNumber);
    if (!isNumber || (isSize && number <= 0))
      Add(QStringLiteral("the value of %1 is no %2: %3")
              .arg(QStringView(key), isSize ? QStringLiteral("size") : QStringLiteral("number"), value));
  }

  void CheckControls() {
    const double count = Val(m_Ini.GetText(m_Section, u"ControlsNumber"));
    if (count > INT16_MAX)
      return Add(QStringLiteral("ControlsNumber is more than %1: the form has no controls").arg(INT16_MAX));
    for (int i = 1; i <= count; ++i) NoteKind(i);
    for (int i = 1; i <= count; ++i) CheckControl(i);
  }

  void EnterControl(int number) { m_Section = Text(u"CONTROLS_") + ToText(Variant(std::int32_t{number})); }
  const ClassTable* Kind() const { return FindControlClass(qt::ViewOf(Value(u"Type"))); }
  QString WidgetName(int number) const {
    const QString name = Value(u"Name");
    return name.isEmpty() ? QStringLiteral("object_%1").arg(number + 1) : name;
  }
  QString UserName(int number) const {
    const QString name = Value(u"UserName");
    return name.isEmpty() ? WidgetName(number) : name;
  }

  // Links may refer to later controls. Of two controls with one name, the form has the first.
  void NoteKind(int number) {
    EnterControl(number);
    const QString name = UserName(number).toLower();
    if (const ClassTable* const kind = Kind(); kind && !m_Kinds.contains(name)) m_Kinds.insert(name, kind);
  }

  void CheckControl(int number) {
    EnterControl(number);
    const QString type = Value(u"Type");
    if (type.isEmpty())
      return Add(QStringLiteral("the section is missing or has no Type: there is no such control"));
    const ClassTable* const known = Kind();
    if (!known) return Add(QStringLiteral("unknown type %1: the control is left out").arg(type));
    CheckNames(number, *known);
    CheckNumbers();
    CheckLinks(*known);
    CheckRegKey(*known);
    const QString attribute = Value(u"Attribute");
    if (m_KnowsAttributes && !attribute.isEmpty() && !m_Attributes.contains(attribute.toLower()))
      Add(QStringLiteral("the theme %1 has no attribute %2").arg(qt::ToQString(m_Theme), attribute));
  }

  void CheckLinks(const ClassTable& known) {
    for (const PropertyRow& row : known.rows) {
      const ClassTable* const wanted = FindControlClass(row.links);
      const QString target = wanted ? Value(row.name) : QString();
      if (target.isEmpty()) continue;
      const ClassTable* const found = m_Kinds.value(target.toLower());
      if (!found)
        Add(QStringLiteral("%1 names %2, which is no control of the form")
                .arg(QStringView(row.name), target));
      else if (found != wanted)
        Add(QStringLiteral("%1 names %2, which is no %3")
                .arg(QStringView(row.name), target, QStringView(wanted->className)));
    }
    if (known.type == ControlTypeEnum::ctAttributeSelector && Value(u"ThemeSelectorName").isEmpty())
      Add(QStringLiteral("there is no ThemeSelectorName: the control lists no attributes"));
  }

  void CheckRegKey(const ClassTable& known) {
    const QString key = Value(u"RegKey");
    if (known.type != ControlTypeEnum::ctResourceSelector || key.trimmed().isEmpty()) return;
    if (!SplitRegKey(qt::ViewOf(key)))
      Add(QStringLiteral("the RegKey %1 is not of the form Application/Section/Key: no folder is kept")
              .arg(key));
  }

  void CheckNames(int number, const ClassTable& known) {
    const QString name = WidgetName(number);
    const QString userName = UserName(number);
    const QString container = Value(u"Container");
    if (!container.isEmpty() && !m_Names.contains(container.toLower()))
      Add(QStringLiteral("the container %1 does not exist or comes later: the control is left out")
              .arg(container));
    if (m_Names.contains(name.toLower()))
      Add(QStringLiteral("the name %1 is taken: the control is left out").arg(name));
    if (m_UserNames.contains(userName.toLower()) || userName.compare(u"Form", Qt::CaseInsensitive) == 0)
      Add(QStringLiteral("the user name %1 is taken: the control is not part of the form").arg(userName));
    if (userName.contains(u'='))
      Add(QStringLiteral("the user name %1 has a \"=\": its stacking is lost").arg(userName));
    m_Names.insert(name.toLower());
    m_UserNames.insert(userName.toLower());
    m_Elements.push_back({userName, known.events});
  }

  std::vector<Fault>& m_Faults;
  std::optional<OrvClient> m_Data;
  CIni m_Ini;
  Text m_Section;
  Text m_Theme;
  QSet<QString> m_Attributes, m_Names, m_UserNames;
  QHash<QString, const ClassTable*> m_Kinds;  // by lower-case user name
  std::vector<ScriptedElement> m_Elements;
  bool m_KnowsAttributes = false;
};

}  // namespace

std::vector<Fault> FindFaults(const QString& file, EmbeddedHost* data) {
  std::vector<Fault> faults;
  const Text path = qt::FromQString(file);
  LineFaults(faults, path);
  const SectionFaults sections(faults, path, data);
  const std::vector<Fault> inScript = FindScriptFaults(file, sections.Elements());
  faults.insert(faults.end(), inScript.begin(), inScript.end());
  return faults;
}

}  // namespace cardwright::desktop
