// SPDX-License-Identifier: MIT
#include "cardwright/hosting/FileObjects.h"

#include <algorithm>
#include <array>

#include "cardwright/platform/Files.h"

namespace cardwright {
namespace {

namespace fs = std::filesystem;

// The rows that files and folders share; each class has its own further ones.
constexpr std::size_t kSharedCount = 11;
constexpr std::array<Member, kSharedCount> kShared = {
    Property<&FileEntry::Path>(u"Path"),
    Property<&FileEntry::Name, &FileEntry::SetName>(u"Name"),
    Property<&FileEntry::ParentFolder>(u"ParentFolder"),
    Property<&FileEntry::Size>(u"Size"),
    Property<&FileEntry::Attributes, &FileEntry::SetAttributes>(u"Attributes"),
    Property<&FileEntry::DateCreated>(u"DateCreated"),
    Property<&FileEntry::DateLastModified>(u"DateLastModified"),
    Property<&FileEntry::DateLastAccessed>(u"DateLastAccessed"),
    Method<&FileEntry::Copy>(u"Copy"),
    Method<&FileEntry::Move>(u"Move"),
    Method<&FileEntry::Delete>(u"Delete"),
};

template <std::size_t N>
constexpr std::array<Member, kSharedCount + N> WithShared(const std::array<Member, N>& own) {
  std::array<Member, kSharedCount + N> all;
  std::copy(kShared.begin(), kShared.end(), all.begin());
  std::copy(own.begin(), own.end(), all.begin() + kSharedCount);
  return all;
}

constexpr auto kFileMembers = WithShared(std::to_array<Member>({
    Property<&FileObject::Type>(u"Type"),
    Method<&FileObject::OpenAsTextStream>(u"OpenAsTextStream"),
}));
constexpr auto kFolderMembers = WithShared(std::to_array<Member>({
    Property<&FolderObject::Type>(u"Type"),
    Property<&FolderObject::IsRootFolder>(u"IsRootFolder"),
    Property<&FolderObject::Files>(u"Files"),
    Property<&FolderObject::SubFolders>(u"SubFolders"),
    Method<&FolderObject::CreateTextFile>(u"CreateTextFile"),
}));
constexpr Member kEntriesMembers[] = {
    Property<&FileEntries::Count>(u"Count"),
    Property<&FileEntries::Item>(u"Item"),
    Method<&FileEntries::Add>(u"Add"),
};

Ref<FileEntry> MakeEntry(const Text& path, EntryKind kind) {
  if (kind == EntryKind::File) return MakeRef<FileObject>(path);
  return MakeRef<FolderObject>(path);
}

class EntryEnumerator final : public Enumerator {
 public:
  EntryEnumerator(std::vector<Text> paths, EntryKind kind) : m_Paths(std::move(paths)), m_Kind(kind) {}
  bool Next(Variant& value) override {
    if (m_Next == m_Paths.size()) return false;
    value = MakeEntry(m_Paths[m_Next++], m_Kind);
    return true;
  }

 private:
  const std::vector<Text> m_Paths;
  const EntryKind m_Kind;
  std::size_t m_Next = 0;
};

}  // namespace

void FileEntry::SetName(const Text& name) {
  if (name.IsEmpty() || name.View().find_first_of(u"/\\") != std::u16string_view::npos)
    Raise(ErrorNumber::InvalidCall);
  const Text path = JoinPath(ParentName(m_Path), name);
  if (path == m_Path) return;
  files::Move(m_Path, path, Kind());
  m_Path = path;
}

Ref<FolderObject> FileEntry::ParentFolder() const {
  const Text parent = ParentName(m_Path);
  return parent.IsEmpty() ? nullptr : MakeRef<FolderObject>(parent);
}

void FileEntry::Copy(const Text& target, std::optional<bool> overwrite) {
  files::Copy(m_Path, target, Kind(),
              overwrite.value_or(true) ? files::IfExists::Overwrite : files::IfExists::Fail);
}

void FileEntry::Move(const Text& target) {
  files::Move(m_Path, target, Kind());
  m_Path = AbsolutePath(EndsWithSeparator(target) ? JoinPath(target, Name()) : target);
}

void FileEntry::Delete(std::optional<bool> force) {
  files::Delete(m_Path, Kind(),
                force.value_or(false) ? files::ReadOnlyFiles::Delete : files::ReadOnlyFiles::Keep);
}

Text FileObject::Type() const {
  const Text extension = ExtensionName(Path());
  return extension.IsEmpty() ? Text(u"File") : ToUpper(extension) + u" File";
}

Ref<TextStream> FileObject::OpenAsTextStream(std::optional<std::int32_t> mode,
                                             std::optional<std::int32_t> format) {
  return files::Open(FilePath(Path()), files::ModeOf(mode.value_or(1)), files::IfMissing::Fail,
                     files::EncodingOf(format.value_or(0)));
}

const MemberTable& FileObject::Members() const {
  static const MemberTable table(kFileMembers, u"Path");
  return table;
}

std::vector<Text> FileEntries::Paths() const {
  std::vector<fs::path> found;
  std::error_code error;
  const fs::path folder = FilePath(m_Folder);
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_directory(ignored) == (m_Kind == EntryKind::Folder)) found.push_back(entry->path());
  }
  if (error == std::errc::no_such_file_or_directory) Raise(ErrorNumber::PathNotFound);
  if (error) RaiseFileError(error, folder);
  std::ranges::sort(found);
  std::vector<Text> paths;
  for (const fs::path& path : found) paths.push_back(FromPath(path));
  return paths;
}

std::int32_t FileEntries::Count() const { return static_cast<std::int32_t>(Paths().size()); }

Ref<Object> FileEntries::Item(const Text& name) const {
  const Text path = JoinPath(m_Folder, name);
  const bool isThere = m_Kind == EntryKind::File ? FileExists(path) : FolderExists(path);
  if (!isThere) Raise(m_Kind == EntryKind::File ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound);
  return MakeEntry(path, m_Kind);
}

Ref<FolderObject> FileEntries::Add(const Text& name) {
  if (m_Kind == EntryKind::File) Raise(ErrorNumber::NotSupported);
  const Text path = JoinPath(m_Folder, name);
  files::CreateFolder(FilePath(path));
  return MakeRef<FolderObject>(path);
}

std::unique_ptr<Enumerator> FileEntries::Enumerate() {
  return std::make_unique<EntryEnumerator>(Paths(), m_Kind);
}

const MemberTable& FileEntries::Members() const {
  static const MemberTable table(kEntriesMembers, u"Item");
  return table;
}

Ref<TextStream> FolderObject::CreateTextFile(const Text& name, std::optional<bool> overwrite,
                                             std::optional<bool> unicode) {
  return files::Create(FilePath(JoinPath(Path(), name)),
                       overwrite.value_or(true) ? files::IfExists::Overwrite : files::IfExists::Fail,
                       unicode.value_or(false) ? TextEncoding::Utf16 : TextEncoding::CodePage);
}

const MemberTable& FolderObject::Members() const {
  static const MemberTable table(kFolderMembers, u"Path");
  return table;
}

}  // namespace cardwright
