// SPDX-License-Identifier: MIT
#include "cardwright/orv/PendingEdits.h"

#include <algorithm>
#include <utility>

#include "cardwright/orv/CommandError.h"
#include "cardwright/orv/ErrorTrap.h"
#include "cardwright/orv/Sql.h"

namespace cardwright::orv {

namespace {

constexpr const char16_t* kFeatureDeleted = u"The store has no such feature any more.";

/// Updates the time of change in the GeoPackage's table of contents, as its standard asks of every writer.
std::string TouchStatement(OGRLayer& layer) {
  return "UPDATE gpkg_contents SET last_change = strftime('%Y-%m-%dT%H:%M:%fZ', 'now') WHERE "
         "lower(table_name) "
         "= lower(" +
         SqlLiteral(std::string(layer.GetName()), Column()) + ")";
}

/// A transaction of the library, where the driver has one. It is rolled back unless committed.
class DriverTransaction {
 public:
  explicit DriverTransaction(GDALDataset& data)
      : m_Data(data),
        m_IsOpen(data.TestCapability(ODsCTransactions) && data.StartTransaction() == OGRERR_NONE) {}
  ~DriverTransaction() { RollBack(); }
  DriverTransaction(const DriverTransaction&) = delete;
  DriverTransaction& operator=(const DriverTransaction&) = delete;

  /// False where nothing was rolled back, so that the caller must undo its work itself.
  bool RollBack() { return std::exchange(m_IsOpen, false) && m_Data.RollbackTransaction() == OGRERR_NONE; }
  bool Commit() { return !std::exchange(m_IsOpen, false) || m_Data.CommitTransaction() == OGRERR_NONE; }

 private:
  GDALDataset& m_Data;
  bool m_IsOpen;
};

}  // namespace

void PendingEdits::Begin(Theme& theme, std::int64_t id) noexcept {
  m_Theme = &theme;
  m_Id = id;
}

void PendingEdits::Set(const Attribute& attribute, FieldValue value) {
  const auto same = std::find_if(m_Edits.begin(), m_Edits.end(),
                                 [&](const Edit& edit) { return edit.attribute == &attribute; });
  if (same != m_Edits.end())
    same->value = std::move(value);
  else
    m_Edits.push_back({&attribute, std::move(value)});
}

void PendingEdits::Invalidate(Text message) {
  if (std::find(m_Errors.begin(), m_Errors.end(), message) == m_Errors.end())
    m_Errors.push_back(std::move(message));
}

void PendingEdits::Flush(Store& store) {
  const PendingEdits flushed = std::exchange(*this, PendingEdits());
  if (!flushed.IsOpen()) return;
  // The feature in memory has the new values, which may not get stored: it is read again.
  flushed.m_Theme->selection.Invalidate();
  if (!flushed.m_Errors.empty()) Fail(flushed.ErrorMessage(flushed.m_Errors));
  if (flushed.m_Edits.empty()) return;
  try {
    flushed.Write(store);
  } catch (const CommandError& error) {
    Fail(flushed.ErrorMessage({error.message}));
  }
}

Text PendingEdits::ErrorMessage(const std::vector<Text>& errors) const {
  Text text = u"Nothing was stored in feature " + Text::FromUtf8(std::to_string(m_Id)) + u" of " +
              Quoted(m_Theme->Name()) + u".";
  for (const Text& message : errors) text = text + u"\r\n" + message;
  return text;
}

void PendingEdits::Write(Store& store) const {
  if (store.HasSqliteSql())
    UpdateBySql(store);
  else
    ReplaceFeature(store);
}

void PendingEdits::UpdateBySql(Store& store) const {
  OGRLayer& layer = m_Theme->Layer();
  std::string update = "UPDATE " + SqlTable(layer) + " SET ";
  for (const Edit& edit : m_Edits) {
    if (&edit != &m_Edits.front()) update += ", ";
    update += SqlName(edit.attribute->column) + " = " + SqlLiteral(edit.value, edit.attribute->kind);
  }
  update += " WHERE " + SqlKey(layer) + " = " + std::to_string(m_Id);

  WriteTransaction transaction(store);
  store.Execute(update);
  if (store.QueryIntegers("SELECT changes()") != std::vector<std::int64_t>{1}) Fail(kFeatureDeleted);
  if (store.IsGeoPackage()) store.Execute(TouchStatement(layer));
  transaction.Commit();
}

void PendingEdits::ReplaceFeature(Store& store) const {
  // Such a driver replaces the whole feature, so the other columns and the geometry are read again first.
  OGRLayer& layer = m_Theme->Layer();
  const OGRFeatureUniquePtr before = store.ReadFeature(layer, m_Id);
  if (!before) Fail(kFeatureDeleted);
  const OGRFeatureUniquePtr changed(before->Clone());
  for (const Edit& edit : m_Edits)
    SetField(*changed, edit.attribute->field, edit.value, edit.attribute->kind);

  const ErrorTrap trap;
  DriverTransaction transaction(store.Data());
  try {
    SetAndVerify(store, *changed);
    const bool isSynced = layer.SyncToDisk() == OGRERR_NONE && transaction.Commit();
    if (!isSynced || trap.HasFailed()) Fail(trap.Reason());
  } catch (const CommandError&) {
    if (!transaction.RollBack() && layer.SetFeature(before.get()) == OGRERR_NONE) layer.SyncToDisk();
    throw;
  }
}

void PendingEdits::SetAndVerify(Store& store, OGRFeature& changed) const {
  OGRLayer& layer = m_Theme->Layer();
  const ErrorTrap trap;
  if (layer.SetFeature(&changed) != OGRERR_NONE) Fail(trap.Reason());
  const OGRFeatureUniquePtr stored = store.ReadFeature(layer, m_Id);
  if (!stored) Fail(kFeatureDeleted);
  for (const Edit& edit : m_Edits) {
    const Attribute& attribute = *edit.attribute;
    const Text wanted = FormatField(changed, attribute.field, attribute.kind);
    if (FormatField(*stored, attribute.field, attribute.kind) != wanted)
      Fail(attribute.name + u": " + Quoted(wanted) + u" does not fit into the column exactly.");
  }
}

}  // namespace cardwright::orv
