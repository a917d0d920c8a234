#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/hosting/FileOperations.h"

namespace cardwright {

class FolderObject;

/// A file or folder by its complete path, as the file system object hands it out. It is looked at anew with
/// each call.
class FileEntry : public TableObject {
 public:
  explicit FileEntry(const Text& path) : m_Path(path) {}

  const Text& Path() const noexcept { return m_Path; }
  Text Name() const { return FileName(m_Path); }
  /// Gives another name in the same folder.
  void SetName(const Text& name);
  /// Null for the root.
  Ref<FolderObject> ParentFolder() const;
  Variant Size() const { return files::SizeOf(FilePath(m_Path)); }
  std::int32_t Attributes() const { return files::Attributes(FilePath(m_Path)); }
  void SetAttributes(std::int32_t attributes) { files::SetAttributes(FilePath(m_Path), attributes); }
  Date DateCreated() const { return files::TimeOf(FilePath(m_Path), files::Moment::Created); }
  Date DateLastModified() const { return files::TimeOf(FilePath(m_Path), files::Moment::Changed); }
  Date DateLastAccessed() const { return files::TimeOf(FilePath(m_Path), files::Moment::Used); }
  void Copy(const Text& target, std::optional<bool> overwrite);
  /// The object then stands for the entry at its new place.
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

/// The files or the folders in a folder, by name. For Each meets those that were there when it began.
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
