// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/selectors/EntryList.h"
#include "cardwright/qt/selectors/QtSelector.h"
#include "cardwright/qt/selectors/SelectorCombo.h"
#include "cardwright/qt/widgets/ChoiceNotice.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

/// What theme and attribute selectors have in common: a drop-down list whose entries the host gives. A new
/// list keeps the chosen name if it is still in it, and fires no click.
template <class Interface>
class QtHostList : public QtSelector<Interface> {
 public:
  QWidget* Part(std::u16string_view name) const override {
    // The list opens wherever the box is pressed.
    return EqualsNoCase(name, u"button") ? this->Native() : nullptr;
  }
  int ListCount() const override { return this->Live(m_Combo)->Entries().Count(); }
  Text ListText(int index) const override { return EntryAt(index).name; }
  std::int32_t ItemData(int index) const override { return EntryAt(index).data; }
  int ListIndex() const override { return this->Live(m_ListIndex); }
  void SetListIndex(int index) override {
    if (index < -1 || index >= ListCount()) Raise(ErrorNumber::InvalidPropertyValue);
    if (index == m_ListIndex) return;
    const Ref<Widget> keepAlive(&this->Self());
    Show(index);
    SetChosen(index);
    if (this->Native()) this->NotifyClick();
  }
  std::int32_t ConnectionHandle() const override { return this->Live(m_Handle); }
  void SetConnectionHandle(std::int32_t handle) override { this->Live(m_Handle) = handle; }

  /// Signals that another name is chosen.
  const ChoiceNotice& Choice() const noexcept { return m_Choice; }

 protected:
  QtHostList(const WidgetKind& kind, WidgetPlace place)
      : QtSelector<Interface>(kind, place), m_Combo(new SelectorCombo(place.parent)) {
    this->Adopt(*m_Combo);
    QObject::connect(m_Combo, &QComboBox::activated, this, [this](int row) {
      // A handler may remove the widget.
      const WidgetCore::HandlerScope scope(*this);
      OnActivated(row);
    });
  }

  /// A user chose a row of the open list, or by the keys of the closed one.
  virtual void OnActivated(int row) {
    SetChosen(row);
    if (this->Native()) this->NotifyClick();
  }

  void SetEntries(std::vector<ListEntry> entries) {
    const Text chosen = m_ListIndex < 0 ? Text() : ListText(m_ListIndex);
    const bool wasChosen = m_ListIndex >= 0;
    ChangeList([&] { List().SetEntries(std::move(entries)); });
    const int index = wasChosen ? List().Find(chosen) : -1;
    m_ListIndex = index;
    Show(index);
    if (wasChosen && index < 0) Q_EMIT m_Choice.Changed();
  }

  /// The toolkit resets the current row when the list changes, and signals it.
  template <class Change>
  void ChangeList(Change&& change) {
    const QSignalBlocker silence(m_Combo);
    change();
  }

  /// The row that the closed box shows.
  void Show(int index) {
    const QSignalBlocker silence(m_Combo);
    m_Combo->setCurrentIndex(index);
  }

  EntryList& List() const { return m_Combo->Entries(); }
  SelectorCombo& Combo() const { return *m_Combo; }

 private:
  const ListEntry& EntryAt(int index) const {
    if (index < 0 || index >= ListCount()) Raise(ErrorNumber::InvalidCall);
    return List().Entries()[static_cast<std::size_t>(index)];
  }
  void SetChosen(int index) {
    if (index == m_ListIndex) return;
    m_ListIndex = index;
    Q_EMIT m_Choice.Changed();
  }

  float HeightFor(float /*height*/) const override {
    return PixelsToScale(static_cast<float>(m_Combo->sizeHint().height()), this->Scale());
  }
  void OnFontApplied() override {
    this->m_State.height = HeightFor(0);
    this->ApplyGeometry();
  }
  bool TakesWheel() const override { return !this->m_IsLocked && m_Combo->hasFocus(); }

  SelectorCombo* m_Combo;
  ChoiceNotice m_Choice;
  int m_ListIndex = -1;
  std::int32_t m_Handle = 0;
};

}  // namespace cardwright::qt
