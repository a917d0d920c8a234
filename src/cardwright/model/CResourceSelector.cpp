// SPDX-License-Identifier: MIT
#include "cardwright/model/CResourceSelector.h"

#include "cardwright/model/RegKey.h"
#include "cardwright/model/WidgetFields.h"
#include "cardwright/platform/Files.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/ScreenKeyboard.h"

namespace cardwright {

struct CResourceSelector::Tables {
  using W = ResourceSelectorWidget;
  using enum PropertyTypeEnum;

  static constexpr Field kPath = WidgetText<&W::Path, &W::SetPath>;
  static constexpr Field kRegKey = Stored<&CResourceSelector::m_RegKey>;
  static constexpr Field kReadRegKey{kRegKey.get, [](TableControl& c, const Variant& key) {
                                       As<CResourceSelector>(c).ReadRegKey(ToText(key));
                                     }};
  static constexpr Field kBackground = WidgetColor<&W::BackColorBkg, &W::SetBackColorBkg>;
  static constexpr Field kHeight{rows::GetHeight, [](TableControl& c, const Variant& height) {
                                   As<CResourceSelector>(c).MoveHeight(height);
                                 }};
  static constexpr Field kFolders = WidgetFlag<&W::BrowseForFolder, &W::SetBrowseForFolder>;
  static constexpr Field kFilter = WidgetText<&W::Filter, &W::SetFilter>;
  static constexpr Field kTyping = WidgetFlag<&W::IsInputTextEnabled, &W::SetInputTextEnabled>;
  static constexpr Field kSave = WidgetFlag<&W::ShowSave, &W::SetShowSave>;
  static constexpr Field kTitle = WidgetText<&W::Title, &W::SetTitle>;
  static constexpr Field kSeveral = WidgetFlag<&W::MultiSelect, &W::SetMultiSelect>;

  static constexpr auto kRows = Rows(
      rows::Name, PropertyRow{u"Path", ptString, messages::TextHelp, kPath},
      PropertyRow{u"RegKey", ptString, messages::RegKeyHelp, kRegKey},
      PropertyRow{u"BackColor", ptColor, messages::InputBackColorHelp, rows::BackColor.field},
      PropertyRow{u"BackColorBkg", ptColor, messages::BackColorHelp, kBackground}, rows::Font, rows::Left,
      rows::Top, rows::Width, PropertyRow{u"Height", ptInteger, messages::HeightHelp, kHeight},
      rows::ForeColor, PropertyRow{u"BrowseForFolder", ptBoolean, messages::BrowseForFolderHelp, kFolders},
      PropertyRow{u"Filter", ptString, messages::FilterHelp, kFilter},
      PropertyRow{u"InputTextEnabled", ptBoolean, messages::InputTextHelp, kTyping},
      PropertyRow{u"ShowSave", ptBoolean, messages::ShowSaveHelp, kSave},
      PropertyRow{u"Title", ptString, messages::TitleHelp, kTitle},
      PropertyRow{u"MultiSelect", ptBoolean, messages::MultipleFilesHelp, kSeveral}, rows::Attribute,
      rows::IsNeeded);
  static constexpr auto kKeys =
      Keys(keys::Key(u"Path", kPath), keys::Key(u"RegKey", kReadRegKey), keys::BackColor,
           keys::ColorKey(u"BackColorBkg", kBackground), keys::Font, keys::Geometry, keys::ForeColor,
           keys::Attribute, keys::IsNeeded, keys::Key(u"BrowseForFolder", kFolders),
           keys::Key(u"Filter", kFilter), keys::Key(u"InputTextEnabled", kTyping),
           keys::Key(u"ShowSave", kSave), keys::Key(u"Title", kTitle), keys::Key(u"MultiSelect", kSeveral));
  static constexpr auto kEvents =
      EventNames(u"AfterButtonClick", u"BeforeButtonClick", u"OnChange", u"OnClick");
};

constinit const ClassTable CResourceSelector::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CResourceSelector",
         .type = ControlTypeEnum::ctResourceSelector,
         .typeText = u"resourceselector",
         .widgetIdentifier = u"CardwrightCtrl.ResourceSelector",
         .create = MakeControl<CResourceSelector>,
         .design = {.displayName = "File selector",
                    .surfaceColors = SurfaceColors::Back,
                    .defaultWidth = 208,
                    .defaultHeight = 24},
         .value = {.row = u"Path", .requiredRow = u"Path"}});

ResourceSelectorWidget& CResourceSelector::Selector() const { return BoundAs<ResourceSelectorWidget>(*this); }

// The widget may choose another height, so the grid and the handles are updated afterwards.
void CResourceSelector::MoveHeight(const Variant& height) {
  const bool differs = Selector().Height() != ToSingle(height);
  rows::MoveHeight(*this, height);
  if (differs) ReportHeight();
}

void CResourceSelector::ReadRegKey(const Text& key) {
  m_RegKey = key;
  const auto setting = SplitRegKey(key);
  if (setting && Module().desktop)
    Selector().SetStartFolder(
        Module().desktop->Settings().Get(setting->app, setting->section, setting->name, {}));
}

// While a project is being read, the control is not part of the form yet and cannot be selected.
void CResourceSelector::SelectOrRun(std::u16string_view event) {
  if (!Designer()) return RunScriptEvent(event);
  const bool isInForm = FindControl(Designer()->Controls(), m_UserName) == this;
  if (isInForm && !Module().designDragging) SelectInDesigner();
}

void CResourceSelector::OnGotFocus() {
  if (Input() && Input()->CanRunScripts() && Bound() && Selector().IsInputTextEnabled()) ShowScreenKeyboard();
  Control::OnGotFocus();
}

Text CResourceSelector::ChosenFolder() const {
  const Text path = Selector().Path();
  if (Selector().BrowseForFolder()) return FolderExists(path) ? path : Text();
  const std::size_t end = path.View().find(u'\0');
  const Text folder =
      end == std::u16string_view::npos ? GetParentFolderName(path) : Text(path.View().substr(0, end));
  return FolderExists(folder) ? folder : Text();
}

void CResourceSelector::OnLostFocus() {
  if (!Input() || !Bound() || !Module().desktop) return;
  const auto setting = SplitRegKey(m_RegKey);
  const Text folder = setting ? ChosenFolder() : Text();
  if (!folder.IsEmpty())
    Module().desktop->Settings().Save(setting->app, setting->section, setting->name, folder);
}

}  // namespace cardwright
