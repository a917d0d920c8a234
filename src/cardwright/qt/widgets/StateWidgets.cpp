// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/StateWidgets.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kCheckBox = MakeFaceKind(u"CheckBox", MouseUse::LeftButton, ClickSource::Widget);
constexpr WidgetKind kOptionButton = MakeFaceKind(u"OptionButton", MouseUse::LeftButton, ClickSource::Widget);

/// A button that a click on any point of it presses, as on the platform; the toolkit takes those on mark and
/// caption only.
template <class Base>
class WholeButton : public Base {
 public:
  using Base::Base;

 protected:
  bool hitButton(const QPoint& at) const override { return this->rect().contains(at); }
};

class CheckBox final : public WholeButton<QCheckBox> {
 public:
  using WholeButton::WholeButton;

 protected:
  void nextCheckState() override {
    setCheckState(checkState() == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
  }
};

}  // namespace

QtCheckBox::QtCheckBox(WidgetPlace place) : QtWidget(kCheckBox, place), m_Box(new CheckBox(place.parent)) {
  Adopt(*m_Box);
  QObject::connect(m_Box, &QCheckBox::clicked, this, [this] { NotifyClick(); });
}

Text QtCheckBox::DisplayText() const { return FromQString(Live(m_Box)->text()); }

void QtCheckBox::SetDisplayText(const Text& text) { Live(m_Box)->setText(ToQString(text)); }

int QtCheckBox::State() const {
  switch (Live(m_Box)->checkState()) {
    case Qt::Unchecked: return 0;
    case Qt::Checked: return 1;
    case Qt::PartiallyChecked: break;
  }
  return 2;
}

void QtCheckBox::SetState(int state) {
  if (state < 0 || state > 2) Raise(ErrorNumber::InvalidPropertyValue);
  if (state == State()) return;
  constexpr Qt::CheckState kStates[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
  m_Box->setCheckState(kStates[state]);
  NotifyClick();
}

QtOptionButton::QtOptionButton(WidgetPlace place)
    : QtWidget(kOptionButton, place),
      m_Button(new WholeButton<QRadioButton>(place.parent)),
      m_Group(&place.state->OptionsIn(*place.parent)) {
  m_Group->addButton(m_Button);
  Adopt(*m_Button);
  QObject::connect(m_Button, &QRadioButton::clicked, this, [this] { NotifyClick(); });
}

Text QtOptionButton::DisplayText() const { return FromQString(Live(m_Button)->text()); }

void QtOptionButton::SetDisplayText(const Text& text) { Live(m_Button)->setText(ToQString(text)); }

int QtOptionButton::State() const { return Live(m_Button)->isChecked() ? 1 : 0; }

void QtOptionButton::SetState(int state) {
  const bool selected = state != 0;
  if (selected == (State() != 0)) return;
  if (selected) {
    m_Button->setChecked(true);
  } else {
    // A user cannot leave a group without a selection, code can.
    m_Group->setExclusive(false);
    m_Button->setChecked(false);
    m_Group->setExclusive(true);
  }
  NotifyClick();
}

}  // namespace cardwright::qt
