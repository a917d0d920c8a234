// SPDX-License-Identifier: MIT
#include "cardwright/qt/AccessibleNames.h"

#include <QLabel>
#include <vector>

#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/CaptionWidgets.h"

namespace cardwright::qt {

namespace {

/// A control and its place in its container.
struct Field {
  const IControl* control;
  QWidget* native;
  QRect box;
  QString caption;  // of a kind that has one
  QString label;    // of a label, as the name of another control
};

// Labels are often drawn wider than what is in them.
QRect TextBox(const QLabel& label) {
  const int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
  const QRect room = label.contentsRect();
  return (label.fontMetrics().boundingRect(room, flags, label.text()) & room).translated(label.pos());
}

QString NameFrom(const QString& labelText) {
  QString name = labelText.simplified();
  while (name.endsWith(u':') || name.endsWith(u' ')) name.chop(1);
  return name;
}

std::vector<Field> FieldsOf(std::span<const Ref<IControl>> controls) {
  std::vector<Field> fields;
  for (const Ref<IControl>& control : controls) {
    const Ref<Object> bound = control->BoundObject();
    const auto* core = dynamic_cast<const WidgetCore*>(bound.get());
    QWidget* const native = core ? core->Native() : nullptr;
    if (!native) continue;
    Field field{control.get(), native, native->geometry(), {}, {}};
    if (const auto* captioned = dynamic_cast<const CaptionWidget*>(core))
      field.caption = ToQString(captioned->DisplayText()).simplified();
    if (dynamic_cast<const QtLabel*>(core) && !field.caption.isEmpty()) {
      const auto& label = dynamic_cast<const QLabel&>(*native);
      field.label = NameFrom(label.text());
      field.box = TextBox(label);
    }
    fields.push_back(std::move(field));
  }
  return fields;
}

bool ShareRow(const QRect& a, const QRect& b) { return a.top() <= b.bottom() && b.top() <= a.bottom(); }
bool ShareColumn(const QRect& a, const QRect& b) { return a.left() <= b.right() && b.left() <= a.right(); }

QString LabelOf(const Field& field, std::span<const Field> fields) {
  const Field* before = nullptr;
  const Field* above = nullptr;
  for (const Field& other : fields) {
    if (other.native->parentWidget() != field.native->parentWidget() || other.native->isHidden()) continue;
    const QRect& box = other.box;
    if (box.right() < field.box.left() && ShareRow(box, field.box) &&
        (!before || box.right() > before->box.right()))
      before = &other;
    if (box.bottom() < field.box.top() && ShareColumn(box, field.box) &&
        (!above || box.bottom() > above->box.bottom()))
      above = &other;
  }
  if (before && !before->label.isEmpty()) return before->label;
  const bool isNear = above && field.box.top() - above->box.bottom() <= above->native->fontMetrics().height();
  return isNear ? above->label : QString();
}

void Name(const Field& field, std::span<const Field> fields) {
  QString name = field.caption.isEmpty() ? LabelOf(field, fields) : QString();
  if (field.caption.isEmpty() && name.isEmpty()) name = ToQString(field.control->UserName());
  QWidget* const part = field.native->focusProxy();
  const bool tellsValue =
      part && !part->accessibleName().isEmpty() && part->accessibleName() != field.native->accessibleName();
  if (tellsValue) part->setAccessibleDescription(name);
  if (part && !tellsValue) part->setAccessibleName(name);
  field.native->setAccessibleName(name);  // the toolkit knows captions, and follows them
}

}  // namespace

void SetAccessibleNames(std::span<const Ref<IControl>> controls, const QWidget* only) {
  const std::vector<Field> fields = FieldsOf(controls);
  for (const Field& field : fields)
    if (!only || field.native == only || field.native->isAncestorOf(only)) Name(field, fields);
}

}  // namespace cardwright::qt
