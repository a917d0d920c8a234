// SPDX-License-Identifier: MIT
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/model/CItems.h"
#include "cardwright/model/Control.h"
#include "cardwright/qt/FormDesigner.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/ModuleState.h"
#include "desktop/DesktopCommands.h"
#include "desktop/DesktopSession.h"
#include "desktop/FormWindow.h"
#include "desktop/ScriptProcedures.h"
#include "launcher/CommandLine.h"

namespace cardwright::desktop {
namespace {

void PrintLine(const QString& line) { app::PrintLine(line.toStdString()); }

QString FontText(const Font& font) {
  const FontValues& values = font.Values();
  QStringList parts{qt::ToQString(values.name), QString::number(values.size)};
  if (values.bold) parts += QStringLiteral("bold");
  if (values.italic) parts += QStringLiteral("italic");
  if (values.underline) parts += QStringLiteral("underline");
  if (values.strikethrough) parts += QStringLiteral("strikethrough");
  return parts.join(QStringLiteral(", "));
}

QJsonValue ItemsJson(const CItems& items) {
  QJsonArray list;
  for (std::int32_t i = 1; i <= items.Count(); ++i) {
    const Ref<CItem> item = items.Item(Variant(i));
    if (item)
      list += QJsonObject{{"value", qt::ToQString(item->m_Value)}, {"text", qt::ToQString(item->m_Text)}};
  }
  return list;
}

QJsonValue ValueJson(const Variant& value) {
  if (value.IsObject()) {
    if (const auto* font = dynamic_cast<const Font*>(value.ObjectPtr())) return FontText(*font);
    if (const auto* items = dynamic_cast<const CItems*>(value.ObjectPtr())) return ItemsJson(*items);
    if (const auto* picture = dynamic_cast<const Picture*>(value.ObjectPtr()))
      return QStringLiteral("%1 x %2").arg(picture->Width()).arg(picture->Height());
    return QJsonValue::Null;
  }
  if (value.IsString()) return qt::ToQString(value.StringView());
  if (value.Type() == VarType::Boolean) return value.Boolean();
  if (IsNumeric(value)) return ToDouble(value);
  return QJsonValue::Null;
}

// An array, because JSON objects of this toolkit sort their keys.
QJsonArray PropertiesJson(const IControl& control) {
  QJsonArray rows;
  for (std::int32_t i = 0; i < control.PropertyCount(); ++i) {
    const Variant index(i);
    const Variant value = BestEffortOr(Variant(), [&] { return control.PropertyValue(index); });
    rows += QJsonObject{{"name", qt::ToQString(control.PropertyName(index))}, {"value", ValueJson(value)}};
  }
  return rows;
}

QJsonArray TextsJson(const std::vector<Text>& texts) {
  QJsonArray list;
  for (const Text& text : texts) list += qt::ToQString(text);
  return list;
}

QJsonObject ControlJson(const IControl& control) {
  QJsonObject json{{"class", qt::ToQString(control.TypeName())},
                   {"name", qt::ToQString(control.UserName())},
                   {"properties", PropertiesJson(control)},
                   {"events", TextsJson(control.Events())}};
  const auto* bound = dynamic_cast<const Control*>(&control);
  if (!bound || !bound->Bound()) return json;
  json["widget"] = qt::ToQString(bound->Name());
  if (const Ref<Widget> container = bound->Bound()->Container())
    json["container"] = qt::ToQString(container->Name());
  return json;
}

/// What only the designer knows of a form: the order in which controls were brought to front (0) or sent to
/// back (1).
QJsonObject DesignJson(const FormDesigner& designer) {
  QJsonArray stacking;
  for (const Ref<IControl>& control : designer.ZList())
    stacking += QJsonObject{{"name", qt::ToQString(control->UserName())}, {"zOrder", control->ZOrder()}};
  return {{"gridStep", designer.GridStep()}, {"stacking", stacking}};
}

QJsonObject ProjectJson(const QString& file, const Collection& controls) {
  const QString script = qt::ToQString(Module().scriptContent);
  const QString language = qt::ToQString(Module().scriptLanguage);
  QJsonArray list;
  QJsonObject form;
  for (const Ref<IControl>& control : ControlsOf(controls)) {
    if (form.isEmpty()) {
      form = ControlJson(*control);
    } else {
      list += ControlJson(*control);
    }
  }
  QJsonArray procedures;
  for (const ScriptProcedure& procedure : ProceduresOf(script, language))
    procedures += QJsonObject{{"name", procedure.name}, {"line", procedure.line}};
  return {{"file", file},
          {"form", form},
          {"controls", list},
          {"script", QJsonObject{{"language", language}, {"procedures", procedures}}}};
}

QString StackingText(const QJsonObject& design) {
  QStringList names;
  for (const QJsonValue& place : design["stacking"].toArray()) {
    const bool isBack = place[u"zOrder"].toInt() != 0;
    names += place[u"name"].toString() + (isBack ? QStringLiteral(" (back)") : QString());
  }
  return names.join(QStringLiteral(", "));
}

QString ValueText(const QJsonValue& value) {
  if (value.isString()) return value.toString().replace(u'\n', QStringLiteral("\\n")).remove(u'\r');
  if (value.isArray()) {
    QStringList entries;
    for (const QJsonValue& item : value.toArray())
      entries += QStringLiteral("%1 (%2)").arg(item[u"text"].toString(), item[u"value"].toString());
    return entries.join(QStringLiteral(", "));
  }
  return value.toVariant().toString();
}

void PrintElement(const QJsonObject& element) {
  QString head = element["class"].toString() + u' ' + element["name"].toString();
  if (element.contains("container")) head += QStringLiteral(" in ") + element["container"].toString();
  PrintLine(head);
  for (const QJsonValue& row : element["properties"].toArray())
    PrintLine(QStringLiteral("  %1 %2")
                  .arg(row[u"name"].toString(), -16)
                  .arg(ValueText(row[u"value"]))
                  .trimmed()
                  .prepend("  "));
  QStringList events;
  for (const QJsonValue& event : element["events"].toArray()) events += event.toString();
  PrintLine(QStringLiteral("  Events           ") + events.join(QStringLiteral(", ")));
}

void PrintProject(const QJsonObject& project) {
  PrintElement(project["form"].toObject());
  for (const QJsonValue& control : project["controls"].toArray()) PrintElement(control.toObject());
  PrintLine(QStringLiteral("Stacking ") + StackingText(project["design"].toObject()));
  const QJsonObject script = project["script"].toObject();
  const QString language = script["language"].toString();
  PrintLine(QStringLiteral("Script ") + (language.isEmpty() ? QStringLiteral("none") : language));
  for (const QJsonValue& procedure : script["procedures"].toArray())
    PrintLine(QStringLiteral("  line %1  %2")
                  .arg(procedure[u"line"].toInt(), 4)
                  .arg(procedure[u"name"].toString()));
}

}  // namespace

int RunInfo(std::span<const std::string> words) {
  app::CommandLine line({.name = "info",
                         .summary = "Shows the form, its controls with their properties and events, and the "
                                    "script's procedures.",
                         .operands = "FORM",
                         .leastOperands = 1,
                         .mostOperands = 1,
                         .options = {{"--json", "as JSON"}}});
  if (const auto status = line.Parse(words)) return *status;
  const std::string& file = line.Operands().front();
  const QString path = QString::fromStdString(file);
  if (!QFileInfo(path).isFile()) return line.Fail("there is no form project " + file, app::kWrongUse);
  DesktopSession session(Display::Unused);
  qt::FormDesigner designer;
  FormWindow window(session.Data());
  if (!designer.ProjectRead(path) || !window.Form().ProjectRead(path))
    return line.Fail("the form project " + file + " could not be read");
  QJsonObject project = ProjectJson(path, window.Form().Object()->Controls());
  project["design"] = DesignJson(*designer.Object());
  if (line.Has("json")) {
    PrintLine(QString::fromUtf8(QJsonDocument(project).toJson()).trimmed());
  } else {
    PrintProject(project);
  }
  return app::kDone;
}

}  // namespace cardwright::desktop
