#include "model/CItem.h"

namespace cardwright {
namespace {

template <auto Field, class T>
T Get(CItem& item) {
  return item.*Field;
}
template <auto Field, class T>
void Let(CItem& item, T value) {
  item.*Field = std::move(value);
}

constexpr Member kMembers[] = {
    Property<&Get<&CItem::m_Value, Text>, &Let<&CItem::m_Value, Text>>(u"Value"),
    Property<&Get<&CItem::m_Text, Text>, &Let<&CItem::m_Text, Text>>(u"Text"),
    Property<&Get<&CItem::m_Checked, bool>, &Let<&CItem::m_Checked, bool>>(u"Checked"),
};

}  // namespace

const MemberTable& CItem::Members() const {
  static const MemberTable table(kMembers);
  return table;
}

}  // namespace cardwright
