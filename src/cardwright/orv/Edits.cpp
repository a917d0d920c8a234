#include "cardwright/orv/Edits.h"

#include <algorithm>
#include <utility>

#include "cardwright/orv/ErrorTrap.h"
#include "cardwright/orv/Refusal.h"

namespace cardwright::orv {

namespace {

constexpr const char16_t* kGone = u"The store has no such feature any more.";

/// Says in the GeoPackage's own list that the table has changed, as every writer should.
std::string TouchStatement(OGRLayer& layer) {
  return "UPDATE gpkg_contents SET last_change = strftime('%Y-%m-%dT%H:%M:%fZ', 'now') WHERE "
         "lower(table_name) "
         "= lower(" +
         SqlLiteral(std::string(layer.GetName()), Column()) + ")";
}

/// A transaction of the library's own where the driver has one; rolled back unless committed.
class DriverTransaction {
 public:
  explicit DriverTransaction(GDALDataset& data)
      : m_Data(data),
        m_IsOpen(data.TestCapability(ODsCTransactions) && data.StartTransaction() == OGRERR_NONE) {}
  ~DriverTransaction() { RollBack(); }
  DriverTransaction(const DriverTransaction&) = delete;
  DriverTransaction& operator=(const DriverTransaction&) = delete;

  /// False where there is none, so that the caller has to undo its work itself.
  bool RollBack() { return std::exchange(m_IsOpen, false) && m_Data.RollbackTransaction() == OGRERR_NONE; }
  bool Commit() { return !std::exchange(m_IsOpen, false) || m_Data.CommitTransaction() == OGRERR_NONE; }

 private:
  GDALDataset& m_Data;
  bool m_IsOpen;
};

}  // namespace

void Edits::Begin(Theme& theme, std::int64_t id) noexcept {
  m_Theme = &theme;
  m_Id = id;
}

void Edits::Keep(const Attribute& attribute, FieldValue value) {
  const auto same = std::find_if(m_Edits.begin(), m_Edits.end(),
                                 [&](const Edit& edit) { return edit.attribute == &attribute; });
  if (same != m_Edits.end())
    same->value = std::move(value);
  else
    m_Edits.push_back({&attribute, std::move(value)});
}

void Edits::Spoil(Text reason) {
  if (std::find(m_Refused.begin(), m_Refused.end(), reason) == m_Refused.end())
    m_Refused.push_back(std::move(reason));
}

void Edits::Finish(Store& store) {
  const Edits finished = std::exchange(*this, Edits());
  if (!finished.IsOpen()) return;
  // What the commands have put into the feature in memory is stored from now on, or it is not.
  finished.m_Theme->selection.Forget();
  if (!finished.m_Refused.empty()) Refuse(finished.RefusalText(finished.m_Refused));
  if (finished.m_Edits.empty()) return;
  try {
    finished.Write(store);
  } catch (const Refusal& refusal) {
    Refuse(finished.RefusalText({refusal.reason}));
  }
}

Text Edits::RefusalText(const std::vector<Text>& reasons) const {
  Text text = u"Nothing was stored in feature " + Text::FromUtf8(std::to_string(m_Id)) + u" of " +
              Quoted(m_Theme->Name()) + u".";
  for (const Text& reason : reasons) text = text + u"\r\n" + reason;
  return text;
}

void Edits::Write(Store& store) const {
  if (store.SpeaksSqlite())
    UpdateBySql(store);
  else
    ReplaceFeature(store);
}

void Edits::UpdateBySql(Store& store) const {
  OGRLayer& layer = m_Theme->Layer();
  std::string update = "UPDATE " + SqlTable(layer) + " SET ";
  for (const Edit& edit : m_Edits) {
    if (&edit != &m_Edits.front()) update += ", ";
    update += SqlName(edit.attribute->column) + " = " + SqlLiteral(edit.value, edit.attribute->kind);
  }
  update += " WHERE " + SqlKey(layer) + " = " + std::to_string(m_Id);

  WriteTransaction transaction(store);
  store.Run(update);
  if (store.Numbers("SELECT changes()") != std::vector<std::int64_t>{1}) Refuse(kGone);
  if (store.IsGeoPackage()) store.Run(TouchStatement(layer));
  transaction.Commit();
}

void Edits::ReplaceFeature(Store& store) const {
  // Such a driver replaces the whole feature: all other columns and the geometry come from a fresh reading.
  OGRLayer& layer = m_Theme->Layer();
  const OGRFeatureUniquePtr before = store.ReadFeature(layer, m_Id);
  if (!before) Refuse(kGone);
  const OGRFeatureUniquePtr changed(before->Clone());
  for (const Edit& edit : m_Edits)
    PutField(*changed, edit.attribute->field, edit.value, edit.attribute->kind);

  const ErrorTrap trap;
  DriverTransaction transaction(store.Data());
  try {
    SetAndVerify(store, *changed);
    const bool isSynced = layer.SyncToDisk() == OGRERR_NONE && transaction.Commit();
    if (!isSynced || trap.HasFailed()) Refuse(trap.Reason());
  } catch (const Refusal&) {
    if (!transaction.RollBack() && layer.SetFeature(before.get()) == OGRERR_NONE) layer.SyncToDisk();
    throw;
  }
}

void Edits::SetAndVerify(Store& store, OGRFeature& changed) const {
  OGRLayer& layer = m_Theme->Layer();
  const ErrorTrap trap;
  if (layer.SetFeature(&changed) != OGRERR_NONE) Refuse(trap.Reason());
  const OGRFeatureUniquePtr stored = store.ReadFeature(layer, m_Id);
  if (!stored) Refuse(kGone);
  for (const Edit& edit : m_Edits) {
    const Attribute& attribute = *edit.attribute;
    const Text wanted = ReadField(changed, attribute.field, attribute.kind);
    if (ReadField(*stored, attribute.field, attribute.kind) != wanted)
      Refuse(attribute.name + u": " + Quoted(wanted) + u" does not fit into the column exactly.");
  }
}

}  // namespace cardwright::orv
