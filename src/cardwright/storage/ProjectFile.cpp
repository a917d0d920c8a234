// SPDX-License-Identifier: MIT
#include "cardwright/storage/ProjectFile.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/storage/ProjectReader.h"
#include "cardwright/storage/ProjectWriter.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kShowMenu = u"ShowMenu";
constexpr std::u16string_view kForm = u"FORM";

}  // namespace

Ref<Picture> GetFormImage(std::u16string_view fileName) {
  const auto project = ProjectReader::Open(fileName);
  return project ? project->Image() : nullptr;
}

bool GetShowMenu(std::u16string_view fileName) {
  const auto project = ProjectReader::Open(fileName);
  return project && Val(project->Section(kForm).GetText(kShowMenu, u"0")) != 0;
}

void SetShowMenu(std::u16string_view fileName, bool value) {
  ProjectWriter project = ProjectWriter::Edit(Text(fileName));
  project.Section(kForm).Write(kShowMenu, std::int32_t{value});
  project.Commit();
}

}  // namespace cardwright
