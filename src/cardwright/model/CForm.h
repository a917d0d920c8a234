// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/TableControl.h"
#include "cardwright/platform/Picture.h"

namespace cardwright {

class ProjectReader;
class ProjectWriter;
class BestEffortSteps;

/// The root of a form, and its project file: always the first object of its owner's collection. It has no
/// widget; its size, colours and title are those of its owner and of the owner's host window.
class CForm final : public TableControl {
 public:
  /// The rows, keys and events of the form.
  static const ClassTable kTable;
  /// A form without an owner.
  CForm();

  float Width() const override;
  void SetWidth(float value) override;
  float Height() const override;
  void SetHeight(float value) override;
  OleColor BackColor() const override;
  void SetBackColor(OleColor color) override;
  Ref<cardwright::Font> GetFont() const override;
  /// Copies the default member of `font`, its name, to the form's font.
  void SetFont(const Variant& font) override;
  /// The designer, where the form is being designed.
  Ref<Object> BoundObject() const override;

  /// The form itself has no z-order.
  void SetZOrder(std::int16_t) override {}
  /// The start modes, for any row.
  std::vector<Text> PropertyList(const Variant& index) const override;

  /// Loads a form project into the owner: the form's settings, every control, the stacking, the script and,
  /// when filling in, the buttons. It adds to what is there. False without an owner or a file.
  bool Read(const Text& filePath, const Text& sectionName) override;
  /// Writes the project, replacing the file in one step. A form without controls has no file: it is deleted.
  /// False without an owner or a folder.
  bool Save(const Text& filePath, const Text& /*sectionName*/) override {
    return SaveProject(filePath, false);
  }
  /// The same; a temporary save is one that the host discards again, which the elements can see.
  bool SaveProject(const Text& filePath, bool isTemporary);

  /// To be called after the design surface was resized: raises PropertyChanged if the form is selected.
  void OnDesignerResized();

 private:
  struct Tables;
  Ref<HostWindow> Host() const;
  /// The surface of whichever owner there is; error 91 without one.
  Surface& Canvas() const;
  /// All objects of the owner; error 91 without one. An owner can end while its form is read, in an event
  /// handler or a request to the host.
  Collection& Elements() const;
  Text Caption() const;
  void SetCaption(const Text& caption);
  float HostSize(float (HostWindow::*size)() const, float (FormOwner::*outer)() const) const;
  void SetOuterWidth(float width);
  void SetOuterHeight(float height);
  void SetImage(const Variant& picture);
  void RefreshAttributeList();

  void ReadProject(const ProjectReader& project, BestEffortSteps& step);
  void ReadAppearance(const SectionReader& form);
  void ReadTitle(const SectionReader& form);
  void ReadTheme(const SectionReader& form);
  void ReadControl(const SectionReader& section, int number);
  void ReadStacking(const SectionReader& stacking);
  void FinishRead();
  void WriteProject(ProjectWriter& project) const;
  void WriteSettings(SectionWriter& form) const;
  void WriteStacking(SectionWriter& stacking) const;

  Text m_ThemeName;
  std::int32_t m_FeatureType = static_cast<std::int32_t>(FeatureTypeEnum::ftNone);
  Text m_StartMode = u"Always";
  std::int32_t m_ShowMenu = 0;
  Ref<Picture> m_Image;
};

}  // namespace cardwright
