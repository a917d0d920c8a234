#include "cardwright/hosting/Arguments.h"

namespace cardwright {
namespace {

constexpr Member kArgumentsMembers[] = {
    Property<&Arguments::Item>(u"Item"),
    Property<&Arguments::Count>(u"Count"),
    Property<&Arguments::Count>(u"Length"),
};

class Walk final : public Enumerator {
 public:
  explicit Walk(Arguments& words) : m_Words(&words) {}
  bool Next(Variant& value) override {
    if (m_Next == m_Words->Count()) return false;
    value = m_Words->Item(m_Next++);
    return true;
  }

 private:
  const Ref<Arguments> m_Words;
  std::int32_t m_Next = 0;
};

}  // namespace

Text Arguments::Item(std::int32_t index) const {
  if (index < 0 || index >= Count()) Raise(ErrorNumber::SubscriptOutOfRange);
  return m_Words[static_cast<std::size_t>(index)];
}

std::unique_ptr<Enumerator> Arguments::Enumerate() { return std::make_unique<Walk>(*this); }

const MemberTable& Arguments::Members() const {
  static const MemberTable table(kArgumentsMembers, u"Item");
  return table;
}

}  // namespace cardwright
