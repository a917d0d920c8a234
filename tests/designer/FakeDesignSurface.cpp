// SPDX-License-Identifier: MIT
#include "designer/FakeDesignSurface.h"

#include <algorithm>

#include "platform/FakeSelectors.h"

namespace cardwright {
namespace {

using Make = Ref<Widget> (*)(std::u16string_view name);

template <class Fake, const auto& Type>
Ref<Widget> MakePlaced(std::u16string_view name) {
  return MakeRef<Placed<Fake>>(Type, name);
}
template <bool IsOption, const auto& Type>
Ref<Widget> MakeState(std::u16string_view name) {
  return MakeRef<Placed<FakeState>>(Type, name, IsOption);
}

constexpr std::u16string_view kLabel = u"Label", kFrame = u"Frame", kButton = u"CommandButton",
                              kCheck = u"CheckBox", kOption = u"OptionButton", kText = u"TextBox",
                              kMulti = u"MultilineTextBox", kCombo = u"ComboBox", kList = u"ListView",
                              kResource = u"ResourceSelector", kThemes = u"ThemeSelector",
                              kAttributes = u"AttributeSelector", kFonts = u"FontSelector",
                              kColors = u"ColorSelector", kViewer = u"DbTableViewer";

struct Maker {
  std::u16string_view identifier;
  Make make;
};
constexpr Maker kMakers[] = {
    {u"vb.label", &MakePlaced<FakeLabel, kLabel>},
    {u"vb.frame", &MakePlaced<FakeLabel, kFrame>},
    {u"vb.commandbutton", &MakePlaced<FakeLabel, kButton>},
    {u"vb.checkbox", &MakeState<false, kCheck>},
    {u"vb.optionbutton", &MakeState<true, kOption>},
    {u"vb.textbox", &MakePlaced<FakeTextBox, kText>},
    {u"cardwrightctrl.multilinetextbox", &MakePlaced<FakeTextBox, kMulti>},
    {u"vb.combobox", &MakePlaced<FakeCombo, kCombo>},
    {u"mscomctllib.listviewctrl.2", &MakePlaced<FakeList, kList>},
    {u"cardwrightctrl.resourceselector", &MakePlaced<FakeResource, kResource>},
    {u"cardwrightctrl.themeselector", &MakePlaced<FakeThemes, kThemes>},
    {u"cardwrightctrl.attributeselector", &MakePlaced<FakeAttributes, kAttributes>},
    {u"cardwrightctrl.fontselector", &MakePlaced<FakeFontSelector, kFonts>},
    {u"cardwrightctrl.colorselector", &MakePlaced<FakeColorSelector, kColors>},
    {u"cardwrightctrl.dbtableviewer", &MakePlaced<FakeLabel, kViewer>},
};

std::u16string KeyOf(std::u16string_view name) { return std::u16string(ToLower(name).View()); }

void Convert(Widget& widget, ScaleMode from, ScaleMode to) {
  auto converted = [&](float value) { return PixelsToScale(ScaleToPixels(value, from), to); };
  widget.Move(converted(widget.Left()), converted(widget.Top()), converted(widget.Width()),
              converted(widget.Height()));
}

std::string Corners(const ScreenRect& rect, ScreenPoint origin) {
  return std::to_string(rect.left - origin.x) + "," + std::to_string(rect.top - origin.y) + "," +
         std::to_string(rect.right - origin.x) + "," + std::to_string(rect.bottom - origin.y);
}

}  // namespace

FakeDesignSurface::FakeDesignSurface()
    : focusHolder(MakeRef<Placed<FakePicture>>(u"PictureBox", u"picInvisible")) {
  for (int i = 0; i < 9; ++i) handles.push_back(MakeRef<Placed<FakePicture>>(u"PictureBox", u"picResize"));
  focusHolder->Move(0, 0, 10, 10);
}

Ref<Widget> FakeDesignSurface::Add(std::u16string_view identifier, std::u16string_view name,
                                   Widget* container) {
  const std::u16string key = KeyOf(name);
  if (m_Widgets.contains(key) || reserved.contains(key)) Raise(ErrorNumber::ControlNameExists);
  for (const Maker& maker : kMakers) {
    if (!EqualsNoCase(maker.identifier, identifier)) continue;
    const Ref<Widget> widget = maker.make(name);
    if (container) {
      if (!EqualsNoCase(container->TypeName(), u"Frame")) Raise(ErrorNumber::InvalidCall);
      At(*widget).Reparent(Ref<Widget>(container));
    }
    m_Widgets[key] = widget;
    return widget;
  }
  Raise(ErrorNumber::CannotCreateObject);
}

void FakeDesignSurface::Remove(std::u16string_view name) {
  const auto found = m_Widgets.find(KeyOf(name));
  if (found == m_Widgets.end()) return;
  const Ref<Widget> widget = found->second;
  m_Widgets.erase(found);
  std::vector<Text> inside;
  for (const auto& [key, each] : m_Widgets)
    if (each->Container() == widget) inside.emplace_back(key);
  for (const Text& each : inside) Remove(each);
  At(*widget).isAlive = false;
}

Ref<Widget> FakeDesignSurface::Find(std::u16string_view name) const {
  const auto found = m_Widgets.find(KeyOf(name));
  return found == m_Widgets.end() ? nullptr : found->second;
}

void FakeDesignSurface::SetScale(ScaleMode mode) {
  const ScaleMode before = m_Scale;
  m_Scale = mode;
  m_Width = PixelsToScale(ScaleToPixels(m_Width, before), mode);
  m_Height = PixelsToScale(ScaleToPixels(m_Height, before), mode);
  for (const auto& [key, widget] : m_Widgets) Convert(*widget, before, mode);
  for (const auto& handle : handles) Convert(*handle, before, mode);
  Convert(*focusHolder, before, mode);
}

void FakeDesignSurface::Resize(float width, float height) {
  m_Width = width;
  m_Height = height;
  if (listener) listener->OnResize();
}

void FakeDesignSurface::SetScreenPointer(PointerShape shape) {
  screenPointers.push_back(static_cast<int>(shape));
}

void FakeDesignSurface::PaintPoints(const GridPoints& points) {
  painted.push_back("step " + std::to_string(points.step) + " columns " + std::to_string(points.firstColumn) +
                    "-" + std::to_string(points.lastColumn) + " rows " + std::to_string(points.firstRow) +
                    "-" + std::to_string(points.lastRow));
}

void FakeDesignSurface::PutHandlesInto(Widget* container) {
  if (container) At(*container);
  for (const auto& handle : handles) handle->container = Ref<Widget>(container);
}

ScreenRect FakeDesignSurface::WindowRect(const Widget* widget) const {
  auto pixels = [this](float value) {
    return static_cast<int>(std::clamp(ScaleToPixels(value, m_Scale), -100'000.0F, 100'000.0F));
  };
  if (!widget) return {origin.x, origin.y, origin.x + pixels(m_Width), origin.y + pixels(m_Height)};
  const Ref<Widget> container = widget->Container();
  const ScreenRect outer = WindowRect(container.get());
  const int left = outer.left + pixels(widget->Left());
  const int top = outer.top + pixels(widget->Top());
  return {left, top, left + pixels(widget->Width()), top + pixels(widget->Height())};
}

void FakeDesignSurface::Yield() {
  if (turns.empty()) {
    isButtonDown = false;
    return;
  }
  const std::function<void()> turn = std::move(turns.front());
  turns.pop_front();
  turn();
}

void FakeDesignSurface::ShowOutline(const std::optional<ScreenRect>& shown, int) {
  outline = shown;
  if (shown) outlines.push_back(Corners(*shown, origin));
}

void FakeDesignSurface::ShowTooltip(const Text& text, ScreenPoint place) {
  tooltip =
      text.ToUtf8() + "@" + std::to_string(place.x - origin.x) + "," + std::to_string(place.y - origin.y);
  tooltips.push_back(*tooltip);
}

Text FakeDesignSurface::ShowPopupMenu(std::span<const Ref<MenuItem>> items) {
  std::string line;
  for (const Ref<MenuItem>& item : items) {
    if (!item->m_Visible) continue;
    if (!line.empty()) line += ";";
    const std::string entry = std::string(item->m_Enabled ? "" : "!") + item->m_Name.ToUtf8() + "=" +
                              item->m_Caption.ToUtf8() + (item->m_Checked ? "*" : "");
    line += item->IsSeparator() ? "-" : entry;
  }
  menus.push_back(line);
  return onMenu ? onMenu(items) : Text();
}

}  // namespace cardwright
