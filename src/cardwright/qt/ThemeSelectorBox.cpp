#include "cardwright/qt/ThemeSelectorBox.h"

#include "cardwright/qt/NewThemeDialog.h"
#include "cardwright/qt/QtText.h"
#include "cardwright/runtime/HostLists.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kThemeSelector =
    MakeFieldKind(u"ThemeSelector", MouseUse::LeftButton, ClickSource::Widget);

}  // namespace

ThemeSelectorBox::ThemeSelectorBox(WidgetPlace place) : HostListBox(kThemeSelector, place) {
  List().showsSigns = true;
  List().describe = [](const ListEntry& entry) { return ToQString(FeatureTypeToText(entry.data)); };
}

void ThemeSelectorBox::SetConnectionHandle(std::int32_t handle) {
  HostListBox::SetConnectionHandle(handle);
  OfferNewTheme();
}

Text ThemeSelectorBox::CreateThemeText() const {
  RequireAlive();
  return m_CreateThemeText;
}

void ThemeSelectorBox::SetCreateThemeText(const Text& text) {
  RequireAlive();
  m_CreateThemeText = text;
  ChangeList([&] { List().SetAction(ToQString(text)); });
  Show(ListIndex());
  OfferNewTheme();
}

/// Without a connection there is nobody to create a theme.
void ThemeSelectorBox::OfferNewTheme() { Combo().offersAction = ConnectionHandle() != 0; }

void ThemeSelectorBox::RefreshThemes() {
  RequireAlive();
  const Ref<Widget> keepAlive(&Self());
  const SurfaceState::Handling handling(*m_Place.state);
  std::vector<ListEntry> entries;
  for (const ListedTheme& theme : ListThemes(ConnectionHandle()))
    entries.push_back({theme.name, static_cast<std::int32_t>(theme.featureType)});
  if (Native()) SetEntries(std::move(entries));
}

void ThemeSelectorBox::OnActivated(int row) {
  if (row < ListCount()) return HostListBox::OnActivated(row);
  Show(ListIndex());
  CreateNewTheme();
}

/// A theme that the host refuses, which tells the person why itself, changes nothing here.
void ThemeSelectorBox::CreateNewTheme() {
  const auto plan = AskForNewTheme(Combo(), ToQString(m_CreateThemeText), [this](std::u16string_view name) {
    return Native() && List().Find(name) >= 0;
  });
  if (!plan || !Native()) return;
  bool isCreated = false;
  Attempt([&] { isCreated = CreateTheme(ConnectionHandle(), plan->name, plan->featureType); });
  if (!isCreated || !Native()) return;
  Attempt([&] { RefreshThemes(); });
  if (!Native()) return;
  const int index = List().Find(plan->name);
  if (index < 0) return;
  Show(index);
  HostListBox::OnActivated(index);
}

}  // namespace cardwright::qt
