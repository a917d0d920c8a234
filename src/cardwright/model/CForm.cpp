// SPDX-License-Identifier: MIT
#include "cardwright/model/CForm.h"

#include "cardwright/model/CommonFields.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/OrvClient.h"

namespace cardwright {

struct CForm::Tables {
  static constexpr std::u16string_view kStartModes[] = {u"OnNew", u"OnUpdate", u"Always"};

  static constexpr Field kText{[](const TableControl& c) -> Variant { return As<CForm>(c).Caption(); },
                               [](TableControl& c, const Variant& v) { As<CForm>(c).SetCaption(ToText(v)); }};
  static constexpr Field kBackColor{
      [](const TableControl& c) -> Variant { return As<CForm>(c).Canvas().BackColor(); },
      [](TableControl& c, const Variant& v) { c.SetBackColor(ToLong(v)); }};
  static constexpr Field kFont{
      [](const TableControl& c) -> Variant { return As<CForm>(c).Canvas().GetFont(); },
      [](TableControl& c, const Variant& v) {
        if (!c.Designer()) return;
        Variant held = v;
        const auto font = FromVariant<Ref<Font>>(held);
        if (font) As<CForm>(c).Canvas().GetFont()->Assign(font->Values());
      }};
  static constexpr Field kWidth{
      [](const TableControl& c) -> Variant {
        return As<CForm>(c).HostSize(&HostWindow::Width, &FormOwner::OuterWidth);
      },
      [](TableControl& c, const Variant& v) { As<CForm>(c).SetOuterWidth(ToSingle(v)); }};
  static constexpr Field kHeight{
      [](const TableControl& c) -> Variant {
        return As<CForm>(c).HostSize(&HostWindow::Height, &FormOwner::OuterHeight);
      },
      [](TableControl& c, const Variant& v) { As<CForm>(c).SetOuterHeight(ToSingle(v)); }};
  static constexpr Field kThemeName{[](const TableControl& c) -> Variant { return As<CForm>(c).m_ThemeName; },
                                    [](TableControl& c, const Variant& v) {
                                      As<CForm>(c).m_ThemeName = ToText(v);
                                      As<CForm>(c).RefreshAttributeList();
                                    }};
  static constexpr Field kFeatureType{
      [](const TableControl& c) -> Variant { return As<CForm>(c).m_FeatureType; },
      [](TableControl& c, const Variant& v) {
        As<CForm>(c).m_FeatureType = ToLong(v);
        As<CForm>(c).RefreshAttributeList();
      }};
  static constexpr Field kImage{[](const TableControl& c) -> Variant { return As<CForm>(c).m_Image; },
                                [](TableControl& c, const Variant& v) { As<CForm>(c).SetImage(v); }};
  static constexpr Field kShowMenu{
      [](const TableControl& c) -> Variant { return As<CForm>(c).m_ShowMenu; },
      [](TableControl& c, const Variant& v) { As<CForm>(c).m_ShowMenu = ToLong(v); }};

  using enum PropertyTypeEnum;
  static constexpr auto kRows = Rows(
      PropertyRow{u"Text", ptString, messages::FormTextHelp, kText},
      PropertyRow{u"BackColor", ptColor, messages::FormBackColorHelp, kBackColor},
      PropertyRow{u"Font", ptFont, messages::FormFontHelp, kFont},
      PropertyRow{u"Width", ptInteger, messages::FormWidthHelp, kWidth},
      PropertyRow{u"Height", ptInteger, messages::FormHeightHelp, kHeight},
      PropertyRow{u"ThemeName", ptThemes, messages::ThemeNameHelp, kThemeName},
      PropertyRow{u"FeatureType", ptFeatureType, messages::FormFeatureTypeHelp, kFeatureType},
      PropertyRow{u"StartMode", ptList, messages::StartModeHelp, Stored<&CForm::m_StartMode>, kStartModes},
      PropertyRow{.name = u"Image",
                  .type = ptImage,
                  .description = messages::ImageHelp,
                  .field = kImage,
                  .filter = messages::ImageFilter});
  static constexpr auto kHidden = Rows(PropertyRow{u"ShowMenu", ptNone, 0, kShowMenu});
  // The settings of the form are written by CFormFile.cpp: they are spread over several sections.
  static constexpr std::array<FileKey, 0> kKeys{};
  static constexpr auto kEvents = EventNames(u"AfterOkClick", u"BeforeCancelClick", u"BeforeOkClick",
                                             u"Initialize", u"AfterSetAttributes");
};

constinit const ClassTable CForm::kTable =
    DefineClass<Tables::kRows, Tables::kHidden, Tables::kKeys, Tables::kEvents>({.className = u"CForm"});

// The last form that was made or read on a thread owns the script, so a new form clears it.
CForm::CForm() : TableControl(kTable) {
  Module().scriptContent = Text();
  Module().scriptLanguage = Text();
}

Surface& CForm::Canvas() const {
  Surface* surface = OwnerSurface();
  if (!surface) Raise(ErrorNumber::ObjectNotSet);
  return *surface;
}

Collection& CForm::Elements() const {
  if (!Owner()) Raise(ErrorNumber::ObjectNotSet);
  return Owner()->Controls();
}

Ref<HostWindow> CForm::Host() const {
  Surface* surface = OwnerSurface();
  return surface ? surface->Host() : nullptr;
}

Text CForm::Caption() const {
  Text caption;
  const bool known = BestEffort([&] {
    const Ref<HostWindow> host = Host();
    if (!host) Raise(ErrorNumber::ObjectNotSet);
    caption = host->Caption();
  });
  return !known && Input() ? Input()->Caption() : caption;
}

void CForm::SetCaption(const Text& caption) {
  if (Designer()) {
    if (const Ref<HostWindow> host = Host()) host->SetCaption(caption);
  }
  if (Input()) Input()->SetCaption(caption);
}

float CForm::HostSize(float (HostWindow::*size)() const, float (FormOwner::*outer)() const) const {
  float value = 0;
  const bool known = BestEffort([&] {
    const Ref<HostWindow> host = Host();
    if (!host) Raise(ErrorNumber::ObjectNotSet);
    value = (host.get()->*size)();
    if (Designer() && Canvas().Scale() != ScaleMode::Twips) value /= kTwipsPerPixel;
  });
  return !known && Input() ? (Input()->*outer)() : value;
}

float CForm::Width() const { return Owner() ? Owner()->OuterWidth() : 0; }
float CForm::Height() const { return Owner() ? Owner()->OuterHeight() : 0; }

void CForm::SetOuterWidth(float width) {
  if (Designer()) Designer()->SetOuterSize(width, Designer()->OuterHeight());
}

void CForm::SetOuterHeight(float height) {
  if (Designer()) Designer()->SetOuterSize(Designer()->OuterWidth(), height);
}

void CForm::SetWidth(float value) {
  SetOuterWidth(value);
  RaisePropertyChanged(u"Width", value);
}

void CForm::SetHeight(float value) {
  SetOuterHeight(value);
  RaisePropertyChanged(u"Height", value);
}

OleColor CForm::BackColor() const { return OwnerSurface() ? OwnerSurface()->BackColor() : 0; }

void CForm::SetBackColor(OleColor color) {
  if (!Owner()) return;
  Canvas().SetBackColor(color);
  if (Designer()) Designer()->RepaintGrid();
}

Ref<Font> CForm::GetFont() const { return OwnerSurface() ? OwnerSurface()->GetFont() : nullptr; }

// An assignment without Set copies the default member of a font, its name, and not its size.
void CForm::SetFont(const Variant& font) {
  const Ref<Font> own = GetFont();
  if (!own) return;
  FontValues values = own->Values();
  values.name = ToText(DefaultValue(font));
  own->Assign(std::move(values));
}

Ref<Object> CForm::BoundObject() const { return Designer() ? ParentForm() : nullptr; }

std::vector<Text> CForm::PropertyList(const Variant&) const {
  return {std::begin(Tables::kStartModes), std::end(Tables::kStartModes)};
}

void CForm::SetImage(const Variant& picture) {
  Variant held = picture;
  m_Image = held.IsEmpty() ? nullptr : FromVariant<Ref<Picture>>(held);
}

void CForm::RefreshAttributeList() {
  if (!Designer()) return;
  std::vector<Text> names;
  if (!m_ThemeName.IsEmpty()) {
    IControl* root = AsControl(Elements().Item(Variant(1)));
    if (!root) Raise(ErrorNumber::ObjectNotSet);
    const auto type = static_cast<FeatureTypeEnum>(ToLong(root->PropertyValue(u"FeatureType")));
    names = OrvClient::Shared().AttributeNames({m_ThemeName, type});
  }
  Designer()->RaiseAttribsList(std::move(names));
}

void CForm::OnDesignerResized() {
  if (!Designer() || Designer()->CurrentControl() != this) return;
  RaisePropertyChanged(u"Width", Width());
  RaisePropertyChanged(u"Height", Height());
}

}  // namespace cardwright
