// SPDX-License-Identifier: MIT
// Reads and saves the project of a form.

#include <filesystem>

#include "cardwright/model/BestEffortSteps.h"
#include "cardwright/model/CForm.h"
#include "cardwright/model/ControlClasses.h"
#include "cardwright/model/FileKeys.h"
#include "cardwright/platform/Files.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/OrvClient.h"
#include "cardwright/storage/ProjectWriter.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kForm = u"FORM";
constexpr std::u16string_view kStacking = u"ZORDER";

Text ControlSection(std::int32_t number) { return Text(u"CONTROLS_") + ToText(Variant(number)); }

double ReadNumber(const SectionReader& form, std::u16string_view key, const Variant& fallback) {
  return Val(ToText(form.GetValue(key, fallback)));
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
  if (!Owner()) return false;
  const auto project = ProjectReader::Open(filePath);
  if (!project) return false;
  Module().scriptContent = Text();
  Module().scriptLanguage = Text();
  BestEffortSteps step;
  ReadProject(*project, step);
  step([&] { FinishRead(); });
  return step.Result();
}

void CForm::ReadProject(const ProjectReader& project, BestEffortSteps& step) {
  const SectionReader form = project.Section(kForm);
  // What holds if the key cannot be read as a number.
  step([&] { Module().formScaleMode = ScaleMode::Twips; });
  step([&] {
    Module().formScaleMode =
        static_cast<ScaleMode>(ToLong(Variant(ReadNumber(form, u"ScaleMode", Variant(1)))));
  });
  step([&] { ReadAppearance(form); });
  step([&] { ReadTheme(form); });
  step([&] { m_FeatureType = ToLong(Variant(ReadNumber(form, u"FeatureType", Variant(m_FeatureType)))); });
  step([&] { m_StartMode = ToText(form.GetValue(u"StartMode", Variant(u"Always"))); });
  step([&] { m_ShowMenu = ToLong(Variant(ReadNumber(form, u"ShowMenu", Variant(u"0")))); });
  step([&] { m_Image = project.Image(); });
  std::int16_t count = 0;
  step([&] { count = ToInteger(Variant(ReadNumber(form, u"ControlsNumber", Variant(u"0")))); });
  for (int i = 1; i <= count; ++i) BestEffort([&] { ReadControl(project.Section(ControlSection(i)), i); });
  step([&] { ReadStacking(project.Section(kStacking)); });
  step([&] {
    ProjectScript script = project.Script();
    Module().scriptContent = std::move(script.content);
    Module().scriptLanguage = std::move(script.language);
  });
}

void CForm::ReadAppearance(const SectionReader& form) {
  Surface& surface = Canvas();
  if (Designer()) {
    BestEffort([&] { Designer()->ApplyScaleAndGrid(); });
    Designer()->SuspendEvents(true);
  } else {
    BestEffort([&] { surface.SetScale(Module().formScaleMode); });
  }
  BestEffort([&] { SetBackColor(ToLong(form.GetValue(u"BackColor", Variant(surface.BackColor())))); });
  BestEffort([&] {
    const Ref<Font> font = surface.GetFont();
    font->Assign(ReadFontKeys(font->Values(), form));
  });
  BestEffort([&] {
    const double width = ReadNumber(form, u"Width", Variant(Width()));
    const double height = ReadNumber(form, u"Height", Variant(Height()));
    Owner()->SetOuterSize(ToSingle(Variant(width)), ToSingle(Variant(height)));
  });
  BestEffort([&] { ReadTitle(form); });
  if (!Designer()) return;
  Designer()->SuspendEvents(false);
  const ScaleMode scale = surface.Scale();
  Designer()->RaiseNeedResize(ScaleToTwips(Width(), scale), ScaleToTwips(Height(), scale));
}

// The window's own title where the host's window takes one; only a window that refuses it leaves the title to
// the host.
void CForm::ReadTitle(const SectionReader& form) {
  const Text title = ToText(form.GetValue(u"Text", Variant(Caption())));
  const bool shown = BestEffort([&] {
    const Ref<HostWindow> host = Host();
    if (!host) Raise(ErrorNumber::ObjectNotSet);
    host->SetCaption(title);
  });
  if (!shown && Input()) Input()->SetCaption(title);
}

// A theme that the host's project does not have is replaced by the active one; forms are carried between
// projects so.
void CForm::ReadTheme(const SectionReader& form) {
  m_ThemeName = ToText(form.GetValue(u"ThemeName", Variant(u"")));
  if (m_ThemeName.IsEmpty() || !SharedHost().IsConnected()) return;
  OrvClient host = OrvClient::Shared();
  if (host.ThemeNumber(m_ThemeName) == 0) m_ThemeName = host.ActiveTheme();
}

void CForm::ReadControl(const SectionReader& section, int number) {
  const ClassTable* controlClass = FindControlClass(ToText(section.GetValue(u"Type", Variant(u""))));
  if (!controlClass) return;
  const Text containerName = ToText(section.GetValue(u"Container", Variant(u"")));
  const Text defaultName = Text(u"object_") + ToText(Variant(number + 1));
  const Text name = ToText(section.GetValue(u"Name", Variant(defaultName)));
  const Ref<Widget> widget = AddWidget(Canvas(), controlClass->widgetIdentifier, name, containerName);
  if (!widget) return;

  const Ref<Control> control = controlClass->create();
  BestEffort([&] { control->BindObject(widget); });
  BestEffort([&] { control->SetParentForm(ParentForm()); });
  BestEffort([&] { control->SetName(widget->Name()); });
  if (control->ReadFrom(section))
    Elements().Add(Variant(Ref<Object>(control)), Variant(ToLower(control->UserName())));
}

void CForm::ReadStacking(const SectionReader& stacking) {
  if (Designer()) Designer()->ResetZList();
  for (const Text& name : stacking.Keys()) {
    const Ref<IControl> control(FindControl(Elements(), name));
    if (!control) continue;
    BestEffort([&] {
      const auto position = ToInteger(Variant(Val(ToText(stacking.GetValue(name, Variant(u"0"))))));
      control->SetZOrder(position);
      // A widget knows two positions only and stays where it is for any other.
      auto* widget = dynamic_cast<Widget*>(control->BoundObject().get());
      if (widget && (position == 0 || position == 1)) widget->SetZOrder(static_cast<StackPosition>(position));
    });
    if (Designer()) Designer()->AppendToZList(control);
  }
}

void CForm::FinishRead() {
  if (Input()) {
    for (const Ref<IControl>& control : ControlsOf(Elements()))
      BestEffort([&] { control->AttachControls(Elements()); });
    if (Input()) Input()->LayOut();
  }
  if (Designer()) Designer()->RaiseRefreshPropertyList();
}

bool CForm::SaveProject(const Text& filePath, bool isTemporary) {
  const Text folder = GetParentFolderName(filePath);
  if (!Owner() || (!folder.IsEmpty() && !FolderExists(folder))) return false;
  BestEffortSteps step;
  step([&] {
    if (Elements().Count() <= 1) {
      std::error_code ignored;
      if (!IsReadOnly(filePath)) std::filesystem::remove(ToPath(filePath), ignored);
      return;
    }
    ProjectWriter project = ProjectWriter::Create(filePath, isTemporary);
    WriteProject(project);
    project.Commit();
  });
  return step.Result();
}

void CForm::WriteProject(ProjectWriter& project) const {
  SectionWriter form = project.Section(kForm);
  BestEffort([&] { WriteSettings(form); });
  if (Designer()) BestEffort([&] { project.WriteImage(m_Image.get()); });
  const std::vector<Ref<IControl>> controls = ControlsOf(Elements());
  BestEffort([&] { form.Write(u"ControlsNumber", Variant(static_cast<std::int32_t>(controls.size()) - 1)); });
  for (std::size_t i = 1; i < controls.size(); ++i) {
    SectionWriter section = project.Section(ControlSection(static_cast<std::int32_t>(i)));
    BestEffort([&] { controls[i]->SaveTo(section); });
  }
  SectionWriter stacking = project.Section(kStacking);
  if (Designer()) BestEffort([&] { WriteStacking(stacking); });
  BestEffort(
      [&] { project.WriteScript({.language = Module().scriptLanguage, .content = Module().scriptContent}); });
}

void CForm::WriteSettings(SectionWriter& form) const {
  const Surface& surface = Canvas();
  BestEffort([&] { form.Write(u"ScaleMode", Variant(static_cast<std::int32_t>(Module().formScaleMode))); });
  BestEffort([&] { form.Write(u"BackColor", Variant(surface.BackColor())); });
  BestEffort([&] { WriteFontKeys(surface.GetFont()->Values(), form); });
  BestEffort([&] { form.Write(u"Text", Variant(Caption())); });
  BestEffort([&] { form.Write(u"Width", Variant(Width())); });
  BestEffort([&] { form.Write(u"Height", Variant(Height())); });
  BestEffort([&] { form.Write(u"ThemeName", Variant(m_ThemeName)); });
  BestEffort([&] { form.Write(u"FeatureType", Variant(m_FeatureType)); });
  BestEffort([&] { form.Write(u"StartMode", Variant(m_StartMode)); });
  BestEffort([&] { form.Write(u"ShowMenu", Variant(m_ShowMenu)); });
}

void CForm::WriteStacking(SectionWriter& stacking) const {
  for (const Ref<IControl>& control : Designer()->ZList())
    stacking.Write(control->UserName(), Variant(control->ZOrder()));
}

}  // namespace cardwright
