// SPDX-License-Identifier: MIT
#include "workbench/grid/Validation.h"

#include <QCoreApplication>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/model/CItems.h"
#include "cardwright/model/FormOwner.h"
#include "cardwright/platform/Scale.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/storage/CodePage.h"

namespace cardwright::workbench {
namespace {

struct Messages {
  Q_DECLARE_TR_FUNCTIONS(Validation)
};

FormOwner* OwnerOf(const IControl& control) { return dynamic_cast<FormOwner*>(control.ParentForm().get()); }

bool HasLineBreak(const QString& text) { return text.contains(u'\n') || text.contains(u'\r'); }

/// The text as a form project returns it: trimmed, with question marks for characters that the code page
/// lacks.
Text AsSaved(std::u16string_view text) {
  const CodePage& page = CodePage::Current();
  return Text(Trim(page.Decode(page.Encode(text)).View()));
}

QString CheckName(const IControl& control, const QString& name) {
  if (Trim(qt::ViewOf(name)).empty()) return Messages::tr("A control needs a name.");
  if (HasLineBreak(name)) return Messages::tr("A name cannot hold a line break.");
  FormOwner* owner = OwnerOf(control);
  if (!owner) return {};
  const Text wanted = AsSaved(qt::ViewOf(name));
  for (const Ref<IControl>& other : ControlsOf(owner->Controls())) {
    const Text taken = other->UserName();
    if (other.get() == &control || !EqualsNoCase(AsSaved(taken), wanted)) continue;
    const QString reason =
        EqualsNoCase(taken, qt::ViewOf(name))
            ? Messages::tr(
                  "Another control is called “%1” already; capital and small letters count as the same.")
            : Messages::tr("In the file this name could not be told from “%1”, the name of another control.");
    return reason.arg(qt::ToQString(taken));
  }
  return {};
}

// Only the four rows of the geometry are limited to the size of a window.
QString CheckGeometry(const IControl& control, const QString& row, double value) {
  const bool isSize = row == u"Width" || row == u"Height";
  if (!isSize && row != u"Left" && row != u"Top") return {};
  if (isSize && value < 0) return Messages::tr("%1 cannot be negative.").arg(row);
  FormOwner* owner = OwnerOf(control);
  const Surface* surface = owner ? owner->GetSurface() : nullptr;
  const bool countsTwips = surface && surface->Scale() == ScaleMode::Twips;
  const double limit = countsTwips ? QWIDGETSIZE_MAX * double{kTwipsPerPixel} : QWIDGETSIZE_MAX;
  if (std::abs(value) <= limit) return {};
  QString most = Messages::tr("%L1 pixels").arg(QWIDGETSIZE_MAX);
  if (countsTwips) most = Messages::tr("%L1 twips (%2)").arg(limit, 0, 'f', 0).arg(most);
  return isSize ? Messages::tr("%1 can be %2 at most: no form is larger.").arg(row, most)
                : Messages::tr("%1 can be %2 at most, to either side: no form is larger.").arg(row, most);
}

std::vector<Text> TextsOf(const Variant& value) {
  if (value.IsString()) return {value.String()};
  std::vector<Text> texts;
  const auto* items = value.IsObject() ? dynamic_cast<const CItems*>(value.ObjectPtr()) : nullptr;
  for (std::int32_t i = 1; items && i <= items->Count(); ++i) {
    const Ref<CItem> item = items->Item(Variant(i));
    if (item) texts.insert(texts.end(), {item->m_Text, item->m_Value});
  }
  return texts;
}

bool IsIdentifier(const QString& name) {
  return name[0].isLetter() &&
         std::ranges::all_of(name, [](QChar c) { return c.isLetterOrNumber() || c == u'_'; });
}

}  // namespace

QString CheckValue(const IControl& control, const QString& row, PropertyTypeEnum type, const Variant& value) {
  switch (type) {
    case PropertyTypeEnum::ptName: return CheckName(control, qt::ToQString(ToText(value)));
    case PropertyTypeEnum::ptInteger:
    case PropertyTypeEnum::ptFloat: return CheckGeometry(control, row, ToDouble(value));
    default: return {};
  }
}

QString WarningAbout(PropertyTypeEnum type, const Variant& value) {
  for (const Text& each : TextsOf(value)) {
    const QString text = qt::ToQString(each);
    if (const auto lost = CodePage::Current().FirstLost(each)) {
      const auto at = static_cast<qsizetype>(*lost);
      return Messages::tr("The code page of form projects has no “%1”: the file will hold “?” in its place.")
          .arg(text.mid(at, text[at].isHighSurrogate() ? 2 : 1));
    }
    if (HasLineBreak(text)) return Messages::tr("The file will hold the first line only.");
  }
  if (type == PropertyTypeEnum::ptName && !IsIdentifier(qt::ToQString(ToText(value))))
    return Messages::tr(
        "Scripts cannot use this name: it should begin with a letter and hold letters, "
        "digits and “_” only.");
  return {};
}

}  // namespace cardwright::workbench
