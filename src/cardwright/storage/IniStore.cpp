#include "cardwright/storage/IniStore.h"

#include <sys/stat.h>
#include <unistd.h>

#include <map>
#include <system_error>

namespace cardwright {
namespace {

// Images that a thread keeps at hand, beside those in use. A form and what it was copied from are two.
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

const IniFile& IniStore::Image() {
  Refresh();
  return m_Image;
}

const std::string& IniStore::Bytes() {
  Refresh();
  return m_Image.Bytes();
}

bool IniStore::Change(const std::function<bool(IniFile&)>& change) {
  RefreshFromDisk();
  if (!IsWritable()) return false;
  if (!change(m_Image)) return true;
  m_IsChanged = true;
  return m_BatchDepth > 0 || Save(Durability::Crash);
}

bool IniStore::IsWritable() const {
  const auto stamp = FileStamp::Of(m_Path);
  if (!stamp || !S_ISREG(stamp->mode)) return false;
  // The mode is asked too, as a privileged user may write to anything.
  return (stamp->mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0 && ::access(m_Path.c_str(), W_OK) == 0;
}

void IniStore::BeginBatch() {
  if (m_BatchDepth == 0) {
    Refresh();
    m_WasThere = m_Stamp.has_value();
  }
  ++m_BatchDepth;
}

bool IniStore::CommitBatch() {
  if (--m_BatchDepth > 0) return true;
  return !m_IsChanged || Save(Durability::PowerLoss);
}

void IniStore::DropBatch() {
  if (--m_BatchDepth > 0) return;
  if (m_IsChanged) Forget();
  // Naming the file has created it; nothing has gone into it, unless by somebody else.
  const auto stamp = FileStamp::Of(m_Path);
  if (!m_WasThere && stamp && S_ISREG(stamp->mode) && stamp->size == 0) {
    std::error_code ignored;
    std::filesystem::remove(m_Path, ignored);
  }
}

void IniStore::BeginSnapshot() {
  Refresh();
  ++m_SnapshotDepth;
}

void IniStore::Refresh() {
  if (m_SnapshotDepth == 0 || !m_IsLoaded) RefreshFromDisk();
}

void IniStore::RefreshFromDisk() {
  if (m_BatchDepth == 0) {
    const auto stamp = FileStamp::Of(m_Path);
    if (!m_IsLoaded || stamp != m_Stamp || (stamp && !m_IsSettled)) Load();
  }
  if (&m_Image.Page() != &CodePage::Current()) m_Image = IniFile(m_Image.Bytes());
}

// The stamp is taken before the bytes: should the file change in between, the next stamp differs from it, as
// long as it was settled by then. An image that is not is held against the bytes at each use until it is.
void IniStore::Load() {
  const std::int64_t now = FileStamp::Now();
  m_Stamp = FileStamp::Of(m_Path);
  m_IsSettled = m_Stamp && m_Stamp->IsSettledAt(now);
  std::optional<std::string> bytes;
  if (m_Stamp && S_ISREG(m_Stamp->mode)) bytes = ReadFile(m_Path);
  if (!bytes) bytes.emplace();
  if (!m_IsLoaded || *bytes != m_Image.Bytes()) m_Image = IniFile(std::move(*bytes));
  m_IsLoaded = true;
}

bool IniStore::Save(Durability durability) {
  m_IsChanged = false;
  if (!IsWritable() || !ReplaceFile(m_Path, m_Image.Bytes(), durability)) {
    Forget();
    return false;
  }
  m_Stamp = FileStamp::Of(m_Path);
  m_IsSettled = false;
  return true;
}

void IniStore::Forget() {
  m_IsLoaded = false;
  m_IsChanged = false;
  m_Image = IniFile();
}

}  // namespace cardwright
