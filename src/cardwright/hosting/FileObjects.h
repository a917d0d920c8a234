// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/hosting/FileOperations.h"

namespace cardwright {

class FolderObject;

/// A file or folder by its absolute path. Each call looks at the disk.
class FileEntry : public TableObject {
 public:
  explicit FileEntry(const Text& path) : m_Path(path) {}

  const Text& Path() const noexcept { return m_Path; }
  Text Name() const { return FileName(m_Path); }
  /// Renames it within its folder.
  void SetName(const Text& name);
  /// Null for the root.
  Ref<FolderObject> ParentFolder() const;
  Variant Size() const { return files::SizeOf(FilePath(m_Path)); }
  std::int32_t Attributes() const { return files::Attributes(FilePath(m_Path)); }
  void SetAttributes(std::int32_t attributes) { files::SetAttributes(FilePath(m_Path), attributes); }
  Date DateCreated() const { return files::TimeOf(FilePath(m_Path), files::FileTime::Created); }
  Date DateLastModified() const { return files::TimeOf(FilePath(m_Path), files::FileTime::Modified); }
  Date DateLastAccessed() const { return files::TimeOf(FilePath(m_Path), files::FileTime::Accessed); }
  void Copy(const Text& target, std::optional<bool> overwrite);
  /// The object follows its entry.
  void Move(const Text& target);
  void Delete(std::optional<bool> force);

 protected:
  virtual EntryKind Kind() const noexcept = 0;

 private:
  Text m_Path;
};

class FileObject final : public FileEntry {
 public:
  using FileEntry::FileEntry;
  Text TypeName() const override { return u"File"; }
  /// "CWF File" for "form.cwf".
  Text Type() const;
  Ref<TextStream> OpenAsTextStream(std::optional<std::int32_t> mode, std::optional<std::int32_t> format);

 protected:
  EntryKind Kind() const noexcept override { return EntryKind::File; }
  const MemberTable& Members() const override;
};

/// The files or the folders in a folder, by name. For Each visits those that exist when it begins.
class FileEntries final : public TableObject {
 public:
  FileEntries(const Text& folder, EntryKind kind) : m_Folder(folder), m_Kind(kind) {}
  Text TypeName() const override { return m_Kind == EntryKind::File ? u"Files" : u"Folders"; }
  std::int32_t Count() const;
  /// Error 53 or 76 where there is none of that name.
  Ref<Object> Item(const Text& name) const;
  /// Makes a folder; error 438 for files.
  Ref<FolderObject> Add(const Text& name);
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  std::vector<Text> Paths() const;

  const Text m_Folder;
  const EntryKind m_Kind;
};

class FolderObject final : public FileEntry {
 public:
  using FileEntry::FileEntry;
  Text TypeName() const override { return u"Folder"; }
  Text Type() const { return u"File Folder"; }
  bool IsRootFolder() const noexcept { return Path() == u"/"; }
  Ref<FileEntries> Files() const { return MakeRef<FileEntries>(Path(), EntryKind::File); }
  Ref<FileEntries> SubFolders() const { return MakeRef<FileEntries>(Path(), EntryKind::Folder); }
  Ref<TextStream> CreateTextFile(const Text& name, std::optional<bool> overwrite,
                                 std::optional<bool> unicode);

 protected:
  EntryKind Kind() const noexcept override { return EntryKind::Folder; }
  const MemberTable& Members() const override;
};

}  // namespace cardwright
