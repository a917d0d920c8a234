// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/Widget.h"

namespace cardwright {

/// A widget with which a user chooses a value of one kind: a path, a theme, an attribute, a font or a
/// colour. Events: the click; further ones are named at each kind.
class SelectorWidget : public Widget {
 public:
  /// A locked selector shows its value and lets nobody change it: it opens nothing and takes no typing, but
  /// fires its events as usual.
  virtual bool IsLocked() const = 0;
  virtual void SetLocked(bool locked) = 0;
};

/// An edit field for a path, with a button that opens a selection of files or of a folder. Its back colour is
/// that of the field. Events: change, before and after the button.
class ResourceSelectorWidget : public SelectorWidget {
 public:
  /// Several files are their folder and then their names, a NUL between.
  virtual Text Path() const = 0;
  virtual void SetPath(const Text& path) = 0;
  virtual OleColor BackColorBkg() const = 0;
  virtual void SetBackColorBkg(OleColor color) = 0;
  virtual bool BrowseForFolder() const = 0;
  /// With it a folder is chosen, whatever ShowSave and MultiSelect say.
  virtual void SetBrowseForFolder(bool folder) = 0;
  /// Pairs of a description and extensions, as "Texts (*.txt;*.csv)|*.txt;*.csv|All files (*.*)|*.*".
  virtual Text Filter() const = 0;
  virtual void SetFilter(const Text& filter) = 0;
  /// Whether the path can be typed.
  virtual bool IsInputTextEnabled() const = 0;
  virtual void SetInputTextEnabled(bool enabled) = 0;
  /// Whether a file to be written is chosen, not one that is there.
  virtual bool ShowSave() const = 0;
  virtual void SetShowSave(bool save) = 0;
  /// Of the selection's window.
  virtual Text Title() const = 0;
  virtual void SetTitle(const Text& title) = 0;
  virtual bool MultiSelect() const = 0;
  virtual void SetMultiSelect(bool several) = 0;
  /// Where the selection begins as long as there is no path; "" leaves it to the toolkit.
  virtual Text StartFolder() const = 0;
  virtual void SetStartFolder(const Text& folder) = 0;

  Text TypeName() const override { return u"ResourceSelector"; }
  Text DisplayText() const override { return Path(); }
  void SetDisplayText(const Text& text) override { SetPath(text); }

 protected:
  const MemberTable& Members() const override;
};

/// A list that the host fills and a user chooses from. It asks the host itself, over the connection that it
/// is given. Its height follows its font.
class HostListWidget : public SelectorWidget {
 public:
  virtual int ListCount() const = 0;
  /// Error 5 outside 0 to ListCount - 1.
  virtual Text ListText(int index) const = 0;
  virtual std::int32_t ItemData(int index) const = 0;
  /// -1 for no selection. Fires the click where the index changes; error 380 outside the list.
  virtual int ListIndex() const = 0;
  virtual void SetListIndex(int index) = 0;
  /// Handle of the connection; 0 for none, whose list is empty. Setting it asks for nothing yet.
  virtual std::int32_t ConnectionHandle() const = 0;
  virtual void SetConnectionHandle(std::int32_t handle) = 0;

  /// The chosen entry, "" without one.
  Text DisplayText() const override { return ListIndex() < 0 ? Text() : ListText(ListIndex()); }
  /// Chooses the entry of that text, whatever its case; none where there is no such entry.
  void SetDisplayText(const Text& text) override;
};

/// The themes of the connection. ItemData is the feature type of a theme as a number: 0 points, 1 arcs,
/// 2 polygons, -1 where it is another one or unknown.
class ThemeSelectorWidget : public HostListWidget {
 public:
  /// Caption of the row after the themes that creates one; "" for no such row. It does not count in the list.
  virtual Text CreateThemeText() const = 0;
  virtual void SetCreateThemeText(const Text& text) = 0;
  /// Asks the host for the themes. The chosen theme stays where it is still there.
  virtual void RefreshThemes() = 0;

  Text TypeName() const override { return u"ThemeSelector"; }

 protected:
  const MemberTable& Members() const override;
};

/// The attributes of the theme that a linked theme selector shows. ItemData is the attribute's number in the
/// host's list, from 1.
class AttributeSelectorWidget : public HostListWidget {
 public:
  /// 0 points, 1 arcs, 2 polygons, -1 none; any other number counts as none.
  virtual std::int32_t FeatureType() const = 0;
  virtual void SetFeatureType(std::int32_t type) = 0;
  /// Follows a theme selector: asks for the attributes again whenever its theme changes. Null unlinks; the
  /// list is then empty. The other widget may end before this one.
  virtual void LinkThemeSelector(Ref<ThemeSelectorWidget> themes) = 0;
  /// Follows a combo box whose entries are points, arcs and polygons: what is chosen there replaces
  /// FeatureType, which counts while nothing is chosen. Null unlinks.
  virtual void LinkFeatureSelector(Ref<ComboWidget> types) = 0;
  /// Asks the host for the attributes. The chosen attribute stays where the new list has it, whatever its
  /// case.
  virtual void RefreshAttributes() = 0;

  Text TypeName() const override { return u"AttributeSelector"; }

 protected:
  const MemberTable& Members() const override;
};

/// "Points", "Arcs", "Polygons" for 0 to 2; "" for any other number.
Text FeatureTypeToText(std::int32_t type);
/// The number of such a text, whatever its case, or of the host's word for it ("POINT"); -1 for any other.
std::int32_t FeatureTypeFromText(const Text& text);

/// A font shown by a sample, with a button that opens the choice. Its back colour is that of the sample, its
/// fore colour that of the font. Events: change, before and after the button, and resize where AutoSize gave
/// it another size.
class FontSelectorWidget : public SelectorWidget {
 public:
  virtual OleColor BackColorBkg() const = 0;
  virtual void SetBackColorBkg(OleColor color) = 0;
  virtual Text Title() const = 0;
  virtual void SetTitle(const Text& title) = 0;
  /// 1 for a border, 0 for none.
  virtual std::int32_t BorderStyle() const = 0;
  virtual void SetBorderStyle(std::int32_t style) = 0;
  /// Whether the height follows the font.
  virtual bool AutoSize() const = 0;
  virtual void SetAutoSize(bool on) = 0;
  /// The template with the font's values put in: FillFontTemplate.
  virtual Text Value(const Text& mask) const = 0;

  Text TypeName() const override { return u"FontSelector"; }
  /// A sample has no text of its own.
  Text DisplayText() const override { return {}; }
  void SetDisplayText(const Text&) override {}

 protected:
  const MemberTable& Members() const override;
};

/// A colour shown by a swatch that opens the choice. A click comes when the choice has been made or given up.
class ColorSelectorWidget : public SelectorWidget {
 public:
  /// As it was set, system colours included.
  virtual OleColor Color() const = 0;
  virtual void SetColor(OleColor color) = 0;
  virtual Text Title() const = 0;
  virtual void SetTitle(const Text& title) = 0;
  /// 1 for a border, 0 for none.
  virtual std::int32_t BorderStyle() const = 0;
  virtual void SetBorderStyle(std::int32_t style) = 0;
  /// The template with the colour's values put in: FillColorTemplate.
  virtual Text Value(const Text& mask) const = 0;

  Text TypeName() const override { return u"ColorSelector"; }
  /// A swatch has no text.
  Text DisplayText() const override { return {}; }
  void SetDisplayText(const Text&) override {}

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
