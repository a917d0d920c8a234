// SPDX-License-Identifier: MIT
#include "cardwright/storage/ProjectWriter.h"

#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/storage/ProjectNames.h"

namespace cardwright {

ProjectWriter::ProjectWriter(Ref<IniStore> store, FileOrigin origin, bool isTemporary)
    : m_Store(std::move(store)), m_Origin(origin), m_IsTemporary(isTemporary), m_IsChanged(true) {}

ProjectWriter::ProjectWriter(Ref<IniStore> store) : m_Store(std::move(store)) {
  if (m_Store) m_File = *m_Store->Snapshot();
}

ProjectWriter ProjectWriter::Create(const Text& fileName, bool isTemporary) {
  const FileOrigin origin = FileExists(fileName) ? FileOrigin::Found : FileOrigin::Created;
  return ProjectWriter(IniStore::OpenOrCreate(fileName), origin, isTemporary);
}

ProjectWriter ProjectWriter::Edit(const Text& fileName) {
  return ProjectWriter(FileExists(fileName) ? IniStore::Open(fileName) : nullptr);
}

ProjectWriter::~ProjectWriter() {
  if (m_Store && m_Origin == FileOrigin::Created) m_Store->RemoveIfEmpty();
}

SectionWriter ProjectWriter::Section(std::u16string_view name) { return {*this, name}; }

void ProjectWriter::WriteImage(const Picture* picture) {
  m_IsChanged |= m_File.DeleteSection(kImageSection);
  if (!picture) return;
  SectionWriter section = Section(kImageSection);
  const std::vector<OleColor>& pixels = picture->Pixels();
  for (std::size_t i = 0; i < pixels.size(); ++i) section.Write(PixelKey(i), pixels[i]);
}

void ProjectWriter::WriteScript(const ProjectScript& script) {
  const CodePage& page = m_File.Page();
  m_Tail += kScriptMarker;
  m_Tail += page.Encode(script.language) + "\r\n";
  m_Tail += page.Encode(script.content) + "\r\n";
  m_IsChanged = true;
}

bool ProjectWriter::Commit(Durability durability) {
  const Ref<IniStore> store = std::exchange(m_Store, nullptr);
  if (!store) return false;
  return !m_IsChanged || store->Replace(m_File.Bytes() + m_Tail, durability);
}

void SectionWriter::Write(std::u16string_view key, const Variant& value) {
  BestEffort([&] {
    const Variant& held = value.Deref();
    if (!key.empty() && !held.IsEmpty())
      m_Project.m_IsChanged |= m_Project.m_File.Set(m_Name, key, StoredIniText(held));
  });
}

}  // namespace cardwright
