// SPDX-License-Identifier: MIT
#include "cardwright/hosting/FileSystemObject.h"

#include <unistd.h>

#include <random>

#include "cardwright/platform/Files.h"

namespace cardwright {
namespace {

using Self = FileSystemObject;
using Flag = std::optional<bool>;
using Number = std::optional<std::int32_t>;

files::IfExists IfExistsOf(Flag overwrite) {
  return overwrite.value_or(true) ? files::IfExists::Overwrite : files::IfExists::Fail;
}
files::ReadOnlyFiles ReadOnlyOf(Flag force) {
  return force.value_or(false) ? files::ReadOnlyFiles::Delete : files::ReadOnlyFiles::Keep;
}

bool FileIsThere(Self&, const Text& path) { return FileExists(WithSlashes(path)); }
bool FolderIsThere(Self&, const Text& path) { return FolderExists(WithSlashes(path)); }
bool DriveIsThere(Self&, const Text&) { return false; }
Text DriveName(Self&, const Text&) { return {}; }

Text Joined(Self&, const Text& folder, const Text& name) { return JoinPath(folder, name); }
Text Parent(Self&, const Text& path) { return ParentName(path); }
Text Name(Self&, const Text& path) { return FileName(path); }
Text Base(Self&, const Text& path) { return BaseName(path); }
Text Extension(Self&, const Text& path) { return ExtensionName(path); }
Text Absolute(Self&, const Text& path) { return AbsolutePath(path); }

Ref<FileObject> File(Self&, const Text& path) {
  return MakeRef<FileObject>(AbsolutePath(FromPath(MatchingEntries(path, EntryKind::File).front())));
}
Ref<FolderObject> Folder(Self&, const Text& path) {
  return MakeRef<FolderObject>(AbsolutePath(FromPath(MatchingEntries(path, EntryKind::Folder).front())));
}

Ref<FolderObject> SpecialFolder(Self&, std::int32_t which) {
  constexpr std::int32_t kSystem = 0, kLibraries = 1, kTemporary = 2;
  switch (which) {
    case kSystem: return MakeRef<FolderObject>(u"/usr");
    case kLibraries: return MakeRef<FolderObject>(u"/usr/lib");
    case kTemporary: {
      std::error_code error;
      const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
      if (error) Raise(ErrorNumber::PathNotFound);
      return MakeRef<FolderObject>(AbsolutePath(FromPath(folder)));
    }
    default: Raise(ErrorNumber::InvalidCall);
  }
}

// A random name; no file is created.
Text TempName(Self&) {
  constexpr char16_t kDigits[] = u"0123456789ABCDEF";
  static std::mt19937 random{std::random_device{}()};
  Text name(u"rad");
  for (int i = 0; i < 5; ++i) name += std::u16string_view(&kDigits[random() % 16], 1);
  return name + u".tmp";
}

Ref<FolderObject> NewFolder(Self& self, const Text& path) {
  files::CreateFolder(FilePath(path));
  return Folder(self, path);
}

void DeleteFile(Self&, const Text& path, Flag force) {
  files::Delete(path, EntryKind::File, ReadOnlyOf(force));
}
void DeleteFolder(Self&, const Text& path, Flag force) {
  files::Delete(path, EntryKind::Folder, ReadOnlyOf(force));
}
void CopyFile(Self&, const Text& source, const Text& target, Flag overwrite) {
  files::Copy(source, target, EntryKind::File, IfExistsOf(overwrite));
}
void CopyFolder(Self&, const Text& source, const Text& target, Flag overwrite) {
  files::Copy(source, target, EntryKind::Folder, IfExistsOf(overwrite));
}
void MoveFile(Self&, const Text& source, const Text& target) { files::Move(source, target, EntryKind::File); }
void MoveFolder(Self&, const Text& source, const Text& target) {
  files::Move(source, target, EntryKind::Folder);
}

Ref<TextStream> OpenTextFile(Self&, const Text& path, Number mode, Flag create, Number format) {
  return files::Open(FilePath(path), files::ModeOf(mode.value_or(1)),
                     create.value_or(false) ? files::IfMissing::Create : files::IfMissing::Fail,
                     files::EncodingOf(format.value_or(0)));
}

Ref<TextStream> CreateTextFile(Self&, const Text& path, Flag overwrite, Flag unicode) {
  return files::Create(FilePath(path), IfExistsOf(overwrite),
                       unicode.value_or(false) ? TextEncoding::Utf16 : TextEncoding::CodePage);
}

constexpr Member kFileSystemMembers[] = {
    Method<&Joined>(u"BuildPath"),
    Method<&CopyFile>(u"CopyFile"),
    Method<&CopyFolder>(u"CopyFolder"),
    Method<&NewFolder>(u"CreateFolder"),
    Method<&CreateTextFile>(u"CreateTextFile"),
    Method<&DeleteFile>(u"DeleteFile"),
    Method<&DeleteFolder>(u"DeleteFolder"),
    Method<&DriveIsThere>(u"DriveExists"),
    Method<&FileIsThere>(u"FileExists"),
    Method<&FolderIsThere>(u"FolderExists"),
    Method<&Absolute>(u"GetAbsolutePathName"),
    Method<&Base>(u"GetBaseName"),
    Method<&DriveName>(u"GetDriveName"),
    Method<&Extension>(u"GetExtensionName"),
    Method<&File>(u"GetFile"),
    Method<&Name>(u"GetFileName"),
    Method<&Folder>(u"GetFolder"),
    Method<&Parent>(u"GetParentFolderName"),
    Method<&SpecialFolder>(u"GetSpecialFolder"),
    Method<&TempName>(u"GetTempName"),
    Method<&MoveFile>(u"MoveFile"),
    Method<&MoveFolder>(u"MoveFolder"),
    Method<&OpenTextFile>(u"OpenTextFile"),
};

}  // namespace

const MemberTable& FileSystemObject::Members() const {
  static const MemberTable table(kFileSystemMembers);
  return table;
}

}  // namespace cardwright
