// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/QtThemeSelector.h"

#include "cardwright/qt/dialogs/NewThemeDialog.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/OrvClient.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kThemeSelector =
    MakeFieldKind(u"ThemeSelector", MouseUse::LeftButton, ClickSource::Widget);

}  // namespace

QtThemeSelector::QtThemeSelector(WidgetPlace place) : QtHostList(kThemeSelector, place) {
  List().showsIcons = true;
  List().describe = [](const ListEntry& entry) { return ToQString(FeatureTypeToText(entry.data)); };
}

void QtThemeSelector::SetConnectionHandle(std::int32_t handle) {
  QtHostList::SetConnectionHandle(handle);
  OfferNewTheme();
}

Text QtThemeSelector::CreateThemeText() const { return Live(m_CreateThemeText); }

void QtThemeSelector::SetCreateThemeText(const Text& text) {
  Live(m_CreateThemeText) = text;
  ChangeList([&] { List().SetAction(ToQString(text)); });
  Show(ListIndex());
  OfferNewTheme();
}

/// A theme can be created only over a connection.
void QtThemeSelector::OfferNewTheme() { Combo().offersAction = ConnectionHandle() != 0; }

void QtThemeSelector::RefreshThemes() {
  RequireAlive();
  const HandlerScope scope(*this);
  std::vector<ListEntry> entries;
  for (const ListedTheme& theme : OrvClient::At(ConnectionHandle()).ListThemes())
    entries.push_back({theme.name, static_cast<std::int32_t>(theme.featureType)});
  if (Native()) SetEntries(std::move(entries));
}

void QtThemeSelector::OnActivated(int row) {
  if (row < ListCount()) return QtHostList::OnActivated(row);
  Show(ListIndex());
  CreateNewTheme();
}

/// Nothing changes where the host refuses the theme; it tells the user why.
void QtThemeSelector::CreateNewTheme() {
  const auto plan = AskForNewTheme(Combo(), ToQString(m_CreateThemeText), [this](std::u16string_view name) {
    return Native() && List().Find(name) >= 0;
  });
  if (!plan || !Native()) return;
  bool isCreated = false;
  BestEffort([&] {
    isCreated = OrvClient::At(ConnectionHandle()).CreateTheme({plan->name, plan->featureType});
  });
  if (!isCreated || !Native()) return;
  BestEffort([&] { RefreshThemes(); });
  if (!Native()) return;
  const int index = List().Find(plan->name);
  if (index < 0) return;
  Show(index);
  QtHostList::OnActivated(index);
}

}  // namespace cardwright::qt
