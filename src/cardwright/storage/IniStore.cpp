// SPDX-License-Identifier: MIT
#include "cardwright/storage/IniStore.h"

#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <map>
#include <system_error>

namespace cardwright {
namespace {

// Images that a thread keeps at hand, besides those in use. A form and what it was copied from are two.
constexpr std::size_t kKeptStores = 16;

}  // namespace

Ref<IniStore> IniStore::Open(std::u16string_view fileName) {
  thread_local std::map<std::filesystem::path, Ref<IniStore>> stores;

  std::error_code error;
  const std::filesystem::path named = ToPath(fileName);
  if (named.empty()) return nullptr;
  std::filesystem::path path = std::filesystem::absolute(named, error);
  if (error) return nullptr;

  const auto found = stores.find(path);
  if (found != stores.end()) return found->second;
  if (stores.size() >= kKeptStores)
    std::erase_if(stores, [](const auto& entry) { return entry.second->IsUnique(); });
  Ref<IniStore> store = MakeRef<IniStore>(path);
  stores.emplace(std::move(path), store);
  return store;
}

Ref<IniStore> IniStore::OpenOrCreate(const Text& fileName) {
  if (Trim(fileName).empty()) return nullptr;
  if (!FileExists(fileName)) {
    std::ofstream created(ToPath(fileName), std::ios::app);
    if (!created) return nullptr;
  }
  return Open(fileName);
}

const IniFile& IniStore::Image() {
  Refresh();
  return *m_Image;
}

std::shared_ptr<IniFile> IniStore::Snapshot() {
  Refresh();
  return m_Image;
}

bool IniStore::Change(const std::function<bool(IniFile&)>& change) {
  Refresh();
  if (!IsWritable()) return false;
  if (m_Image.use_count() > 1) m_Image = std::make_shared<IniFile>(*m_Image);  // somebody holds a snapshot
  return !change(*m_Image) || Write(m_Image->Bytes(), Durability::Crash);
}

bool IniStore::Replace(std::string_view bytes, Durability durability) {
  if (!IsWritable() || !Write(bytes, durability)) return false;
  Forget();
  return true;
}

bool IniStore::IsWritable() const {
  const auto stamp = FileStamp::Of(m_Path);
  if (!stamp || !S_ISREG(stamp->mode)) return false;
  // The mode is asked too, as a privileged user may write to anything.
  return (stamp->mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0 && ::access(m_Path.c_str(), W_OK) == 0;
}

void IniStore::RemoveIfEmpty() {
  const auto stamp = FileStamp::Of(m_Path);
  if (!stamp || !S_ISREG(stamp->mode) || stamp->size != 0) return;
  std::error_code ignored;
  std::filesystem::remove(m_Path, ignored);
}

void IniStore::Refresh() {
  const auto stamp = FileStamp::Of(m_Path);
  if (!m_IsLoaded || stamp != m_Stamp || (stamp && !m_IsSettled)) Load();
  if (&m_Image->Page() != &CodePage::Current()) m_Image = std::make_shared<IniFile>(m_Image->Bytes());
}

// The stamp is taken before the bytes are read: if the file changes in between, the next stamp differs. Until
// the stamp is old enough to be reliable, the file is read and compared at each use.
void IniStore::Load() {
  const std::int64_t now = FileStamp::Now();
  m_Stamp = FileStamp::Of(m_Path);
  m_IsSettled = m_Stamp && m_Stamp->IsSettledAt(now);
  std::optional<std::string> bytes;
  if (m_Stamp && S_ISREG(m_Stamp->mode)) bytes = ReadFile(m_Path);
  if (!bytes) bytes.emplace();
  if (!m_IsLoaded || *bytes != m_Image->Bytes()) m_Image = std::make_shared<IniFile>(std::move(*bytes));
  m_IsLoaded = true;
}

bool IniStore::Write(std::string_view bytes, Durability durability) {
  if (!IsWritable() || !ReplaceFile(m_Path, bytes, durability)) {
    Forget();
    return false;
  }
  m_Stamp = FileStamp::Of(m_Path);
  m_IsSettled = false;
  return true;
}

void IniStore::Forget() {
  m_IsLoaded = false;
  m_Image = std::make_shared<IniFile>();
}

}  // namespace cardwright
