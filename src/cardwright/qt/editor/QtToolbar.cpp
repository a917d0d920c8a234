// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/QtToolbar.h"

#include <QAction>
#include <QPointer>
#include <QToolBar>
#include <QToolButton>
#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/editor/EditorIcons.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kToolbar = MakeFaceKind(u"Toolbar", MouseUse::All, ClickSource::Widget);

enum class ButtonStyle { Push, Check, Separator, Placeholder };

struct ButtonPlan {
  std::u16string_view key;
  std::u16string_view tag;  // number of the tooltip's message
  ButtonStyle style;
};

constexpr ButtonPlan kButtons[] = {
    {u"save", u"tooltip:1038", ButtonStyle::Push},   {u"sep_save", u"", ButtonStyle::Separator},
    {u"props", u"tooltip:1039", ButtonStyle::Push},  {u"help", u"tooltip:1040", ButtonStyle::Check},
    {u"sep_undo", u"", ButtonStyle::Separator},      {u"undo", u"tooltip:1041", ButtonStyle::Push},
    {u"redo", u"tooltip:1042", ButtonStyle::Push},   {u"sep_find", u"", ButtonStyle::Separator},
    {u"find", u"tooltip:1043", ButtonStyle::Push},   {u"findnext", u"tooltip:1044", ButtonStyle::Push},
    {u"subst", u"tooltip:1045", ButtonStyle::Push},  {u"sep_method", u"", ButtonStyle::Separator},
    {u"method", u"tooltip:1046", ButtonStyle::Push}, {u"function", u"tooltip:1047", ButtonStyle::Push},
    {u"sep_panes", u"", ButtonStyle::Separator},     {u"linecol", u"", ButtonStyle::Placeholder},
    {u"lang", u"", ButtonStyle::Placeholder},
};

// Room for what a pane shows, in average characters.
constexpr int kPaneCharacters = 22;

}  // namespace

/// One button, or one of the gaps between them.
class QtToolbar::Button final : public ToolButton {
 public:
  Button(const ButtonPlan& plan, QAction& action) : ToolButton(plan.key, plan.tag), m_Action(&action) {}

  Text Caption() const override { return FromQString(Action().text()); }
  void SetCaption(const Text& caption) override { Action().setText(ToQString(caption)); }
  Text TooltipText() const override { return FromQString(Action().toolTip()); }
  void SetTooltipText(const Text& text) override {
    Action().setToolTip(ToQString(text));
    if (Action().text().isEmpty()) Action().setIconText(ToQString(text));
  }
  bool IsEnabled() const override { return Action().isEnabled(); }
  void SetEnabled(bool enabled) override { Action().setEnabled(enabled); }
  bool IsVisible() const override { return Action().isVisible(); }
  void SetVisible(bool visible) override { Action().setVisible(visible); }
  std::int32_t Value() const override { return Action().isChecked() ? 1 : 0; }
  void SetValue(std::int32_t value) override {
    if (Action().isCheckable()) Action().setChecked(value != 0);
  }

 private:
  QAction& Action() const {
    if (!m_Action) Raise(ErrorNumber::ObjectNotSet);
    return *m_Action;
  }

  const QPointer<QAction> m_Action;
};

QtToolbar::QtToolbar(WidgetPlace place, std::function<void(const Text& key)> onButton)
    : QtWidget(kToolbar, place), m_Bar(new QToolBar(place.parent)) {
  const int side = qMax(20, m_Bar->fontMetrics().height() + 4);
  m_Bar->setIconSize({side, side});
  m_Bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
  std::vector<Ref<ToolButton>> buttons;
  for (const ButtonPlan& plan : kButtons) {
    QAction* action = nullptr;
    if (plan.style == ButtonStyle::Separator) {
      action = m_Bar->addSeparator();
    } else if (plan.style == ButtonStyle::Placeholder) {
      auto* const room = new QWidget(m_Bar);
      room->setFixedWidth(m_Bar->fontMetrics().averageCharWidth() * kPaneCharacters);
      action = m_Bar->addWidget(room);
    } else {
      action = m_Bar->addAction(EditorIcon(plan.key), QString());
      action->setCheckable(plan.style == ButtonStyle::Check);
      QObject::connect(action, &QAction::triggered, this,
                       [onButton, key = Text(plan.key)] { onButton(key); });
    }
    action->setObjectName(ToQString(plan.key));
    buttons.push_back(MakeRef<Button>(plan, *action));
  }
  m_Buttons = MakeRef<ToolButtons>(std::move(buttons));
  for (QToolButton* button : m_Bar->findChildren<QToolButton*>()) button->setFocusPolicy(Qt::TabFocus);
  Adopt(*m_Bar);
}

QRect QtToolbar::RectOf(std::u16string_view key) const {
  for (QAction* action : Live(m_Bar)->actions())
    if (EqualsNoCase(ViewOf(action->objectName()), key))
      if (const QWidget* const widget = m_Bar->widgetForAction(action); widget && !widget->isHidden())
        return widget->geometry();
  return {};
}

QToolBar& QtToolbar::Bar() const { return *Live(m_Bar); }

}  // namespace cardwright::qt
