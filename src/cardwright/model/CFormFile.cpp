// The form's road to and from its project file.

#include <filesystem>

#include "cardwright/model/CForm.h"
#include "cardwright/model/ControlClasses.h"
#include "cardwright/model/FileKeys.h"
#include "cardwright/model/Steps.h"
#include "cardwright/platform/Files.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/OrvClient.h"
#include "cardwright/storage/IniBatch.h"
#include "cardwright/storage/IniSnapshot.h"
#include "cardwright/storage/ProjectFile.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kForm = u"FORM";
constexpr std::u16string_view kStacking = u"ZORDER";

Text ControlSection(std::int32_t number) { return Text(u"CONTROLS_") + ToText(Variant(number)); }

double ReadNumber(const CIni& ini, std::u16string_view key, const Variant& fallback) {
  return Val(ToText(ini.GetValue(kForm, key, fallback)));
}

// Creates the widget of a section; none where its type has no class or its container is not there yet.
Ref<Widget> AddWidget(Surface& surface, std::u16string_view identifier, std::u16string_view name,
                      std::u16string_view containerName) {
  Ref<Widget> container;
  if (!containerName.empty()) {
    container = surface.Find(containerName);
    if (!container) return nullptr;
  }
  return surface.Add(identifier, name, container.get());
}

}  // namespace

bool CForm::Read(const Text& filePath, const Text&) {
  if (!Owner() || !FileExists(filePath)) return false;
  CIni ini;
  ini.SetFileName(filePath);
  Module().scriptContent = Text();
  Module().scriptLanguage = Text();
  Steps step;
  {
    const IniSnapshot asOfNow(filePath);
    ReadProject(filePath, ini, step);
  }
  step([&] { FinishRead(); });
  return step.Result();
}

void CForm::ReadProject(const Text& filePath, const CIni& ini, Steps& step) {
  step([&] { Module().formScaleMode = ScaleMode::Twips; });
  step([&] {
    Module().formScaleMode =
        static_cast<ScaleMode>(ToLong(Variant(ReadNumber(ini, u"ScaleMode", Variant(1)))));
  });
  step([&] { ReadAppearance(ini); });
  step([&] { ReadTheme(ini); });
  step([&] { m_FeatureType = ToLong(Variant(ReadNumber(ini, u"FeatureType", Variant(m_FeatureType)))); });
  step([&] { m_StartMode = ToText(ini.GetValue(kForm, u"StartMode", Variant(u"Always"))); });
  step([&] { m_ShowMenu = ToLong(Variant(ReadNumber(ini, u"ShowMenu", Variant(u"0")))); });
  step([&] { m_Image = GetFormImage(filePath); });
  std::int16_t count = 0;
  step([&] { count = ToInteger(Variant(ReadNumber(ini, u"ControlsNumber", Variant(u"0")))); });
  for (int i = 1; i <= count; ++i) Attempt([&] { ReadControl(filePath, ini, i); });
  step([&] { ReadStacking(ini); });
  step([&] { ReadScript(filePath); });
}

void CForm::ReadAppearance(const CIni& ini) {
  Steps step;
  Surface& surface = Canvas();
  if (Designer()) {
    step([&] { Designer()->ApplyScaleAndGrid(); });
    Designer()->SuspendEvents(true);
  } else {
    step([&] { surface.SetScale(Module().formScaleMode); });
  }
  step([&] { SetBackColor(ToLong(ini.GetValue(kForm, u"BackColor", Variant(surface.BackColor())))); });
  step([&] {
    const Ref<Font> font = surface.GetFont();
    font->Assign(ReadFontKeys(font->Values(), ini, kForm));
  });
  step([&] {
    const double width = ReadNumber(ini, u"Width", Variant(Width()));
    const double height = ReadNumber(ini, u"Height", Variant(Height()));
    Owner()->SetOuterSize(ToSingle(Variant(width)), ToSingle(Variant(height)));
  });
  step([&] { ReadTitle(ini); });
  if (!Designer()) return;
  Designer()->SuspendEvents(false);
  const ScaleMode scale = surface.Scale();
  Designer()->RaiseNeedResize(ScaleToTwips(Width(), scale), ScaleToTwips(Height(), scale));
}

// The window's own title where the host's window takes one; only a window that refuses it leaves the title to
// the host.
void CForm::ReadTitle(const CIni& ini) {
  const Text title = ToText(ini.GetValue(kForm, u"Text", Variant(Caption())));
  const bool shown = Attempt([&] {
    const Ref<HostWindow> host = Host();
    if (!host) Raise(ErrorNumber::ObjectNotSet);
    host->SetCaption(title);
  });
  if (!shown && Input()) Input()->SetCaption(title);
}

// A theme that the host's project does not have is replaced by the active one; forms are carried between
// projects so.
void CForm::ReadTheme(const CIni& ini) {
  m_ThemeName = ToText(ini.GetValue(kForm, u"ThemeName", Variant(u"")));
  if (m_ThemeName.IsEmpty() || !SharedHost().IsConnected()) return;
  OrvClient host = OrvClient::Shared();
  if (host.ThemeNumber(m_ThemeName) == 0) m_ThemeName = host.ActiveTheme();
}

void CForm::ReadControl(const Text& filePath, const CIni& ini, int number) {
  const Text section = ControlSection(number);
  const ClassTable* controlClass = FindControlClass(ToText(ini.GetValue(section, u"Type", Variant(u""))));
  if (!controlClass) return;
  const Text containerName = ToText(ini.GetValue(section, u"Container", Variant(u"")));
  const Text defaultName = Text(u"object_") + ToText(Variant(number + 1));
  const Text name = ToText(ini.GetValue(section, u"Name", Variant(defaultName)));
  const Ref<Widget> widget = AddWidget(Canvas(), controlClass->widgetIdentifier, name, containerName);
  if (!widget) return;

  const Ref<Control> control = controlClass->create();
  Attempt([&] { control->BindObject(widget); });
  Attempt([&] { control->SetParentForm(ParentForm()); });
  Attempt([&] { control->SetName(widget->Name()); });
  if (control->Read(filePath, section))
    Elements().Add(Variant(Ref<Object>(control)), Variant(ToLower(control->UserName())));
}

void CForm::ReadStacking(const CIni& ini) {
  if (Designer()) Designer()->ResetZList();
  const Ref<Collection> names = ini.Keys(kStacking);
  for (std::int32_t i = 1; i <= names->Count(); ++i) {
    const Text name = ToText(names->Item(Variant(i)));
    const Ref<IControl> control(FindControl(Elements(), name));
    if (!control) continue;
    Attempt([&] {
      const auto position = ToInteger(Variant(Val(ToText(ini.GetValue(kStacking, name, Variant(u"0"))))));
      control->SetZOrder(position);
      // A widget knows two positions only and stays where it is for any other.
      auto* widget = dynamic_cast<Widget*>(control->BoundObject().get());
      if (widget && (position == 0 || position == 1)) widget->SetZOrder(static_cast<StackPosition>(position));
    });
    if (Designer()) Designer()->AppendToZList(control);
  }
}

void CForm::ReadScript(const Text& filePath) {
  Text language;
  Module().scriptContent = SplitFirstLine(ReadScriptSection(filePath), language);
  Module().scriptLanguage = language;
}

void CForm::FinishRead() {
  if (Input()) {
    for (const Ref<IControl>& control : ControlsOf(Elements()))
      Attempt([&] { control->AttachControls(Elements()); });
    if (Input()) Input()->LayOut();
  }
  if (Designer()) Designer()->RaiseRefreshPropertyList();
}

bool CForm::Save(const Text& filePath, const Text&) {
  const Text folder = GetParentFolderName(filePath);
  if (!Owner() || (!folder.IsEmpty() && !FolderExists(folder))) return false;
  Steps step;
  step([&] {
    if (Elements().Count() <= 1) {
      std::error_code ignored;
      if (!IsReadOnly(filePath)) std::filesystem::remove(ToPath(filePath), ignored);
      return;
    }
    CIni ini;
    ini.SetFileName(filePath);
    IniBatch batch(filePath);
    WriteProject(filePath, ini);
    batch.Commit();
  });
  return step.Result();
}

void CForm::WriteProject(const Text& filePath, CIni& ini) {
  Steps step;
  ini.Reset();
  step([&] { WriteSettings(ini); });
  if (Designer()) step([&] { SaveFormImage(filePath, m_Image.get()); });
  const std::vector<Ref<IControl>> controls = ControlsOf(Elements());
  step([&] {
    ini.WriteValue(kForm, u"ControlsNumber", Variant(static_cast<std::int32_t>(controls.size()) - 1));
  });
  for (std::size_t i = 1; i < controls.size(); ++i)
    step([&] { controls[i]->Save(filePath, ControlSection(static_cast<std::int32_t>(i))); });
  if (Designer()) step([&] { WriteStacking(ini); });
  step([&] { WriteScriptSection(filePath, Module().scriptLanguage, Module().scriptContent); });
}

void CForm::WriteSettings(CIni& ini) const {
  Steps step;
  const Surface& surface = Canvas();
  step([&] {
    ini.WriteValue(kForm, u"ScaleMode", Variant(static_cast<std::int32_t>(Module().formScaleMode)));
  });
  step([&] { ini.WriteValue(kForm, u"BackColor", Variant(surface.BackColor())); });
  step([&] { WriteFontKeys(surface.GetFont()->Values(), ini, kForm); });
  step([&] { ini.WriteValue(kForm, u"Text", Variant(Caption())); });
  step([&] { ini.WriteValue(kForm, u"Width", Variant(Width())); });
  step([&] { ini.WriteValue(kForm, u"Height", Variant(Height())); });
  step([&] { ini.WriteValue(kForm, u"ThemeName", Variant(m_ThemeName)); });
  step([&] { ini.WriteValue(kForm, u"FeatureType", Variant(m_FeatureType)); });
  step([&] { ini.WriteValue(kForm, u"StartMode", Variant(m_StartMode)); });
  step([&] { ini.WriteValue(kForm, u"ShowMenu", Variant(m_ShowMenu)); });
}

void CForm::WriteStacking(CIni& ini) const {
  if (!ini.DeleteSection(kStacking)) return;
  for (const Ref<IControl>& control : Designer()->ZList())
    ini.WriteValue(kStacking, control->UserName(), Variant(control->ZOrder()));
}

}  // namespace cardwright
