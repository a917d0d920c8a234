// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cardwright/platform/Picture.h"
#include "cardwright/storage/IniStore.h"
#include "cardwright/storage/ProjectReader.h"

namespace cardwright {

class SectionWriter;

/// Composes a form project in memory; Commit puts it in the file's place in one step. Without a Commit the
/// file stays as it was. What others write to it meanwhile is overwritten.
class ProjectWriter {
 public:
  /// A project written from its beginning. The file is created where it is missing; where it cannot be,
  /// nothing is ever written. A temporary save is one that the host discards again.
  static ProjectWriter Create(const Text& fileName, bool isTemporary = false);
  /// What a file holds, to be changed; nothing is written to a missing one.
  static ProjectWriter Edit(const Text& fileName);
  ~ProjectWriter();
  ProjectWriter(const ProjectWriter&) = delete;
  ProjectWriter& operator=(const ProjectWriter&) = delete;

  bool IsTemporary() const noexcept { return m_IsTemporary; }

  SectionWriter Section(std::u16string_view name);
  /// Replaces the icon; null removes it.
  void WriteImage(const Picture* picture);
  /// Adds the script at the end of the file, after all sections. It ends in one line break more than the
  /// content has, which a reader gives back: a script grows by it with each reading and saving.
  void WriteScript(const ProjectScript& script);

  /// False where the file is gone or cannot be written; it is then unchanged.
  bool Commit(Durability durability = Durability::PowerLoss);

 private:
  friend class SectionWriter;
  enum class FileOrigin { Found, Created };
  ProjectWriter(Ref<IniStore> store, FileOrigin origin, bool isTemporary);
  explicit ProjectWriter(Ref<IniStore> store);

  Ref<IniStore> m_Store;  // null where there is no file to write, and after the end
  FileOrigin m_Origin = FileOrigin::Found;
  IniFile m_File;
  std::string m_Tail;
  bool m_IsTemporary = false;
  bool m_IsChanged = false;
};

/// One section of a project that is being written.
class SectionWriter {
 public:
  SectionWriter(ProjectWriter& project, std::u16string_view name) : m_Project(project), m_Name(name) {}

  const ProjectWriter& Project() const noexcept { return m_Project; }
  /// Never fails: an empty key, an Empty value and a value without a text are ignored.
  void Write(std::u16string_view key, const Variant& value);

 private:
  ProjectWriter& m_Project;
  Text m_Name;
};

}  // namespace cardwright
