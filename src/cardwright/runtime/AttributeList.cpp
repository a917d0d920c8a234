#include "cardwright/runtime/AttributeList.h"

#include <algorithm>

#include "cardwright/automation/Split.h"
#include "cardwright/shared/HostExecutor.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

// More attributes than any store has columns: a host's reply must not keep the form asking for ever.
constexpr double kMostAttributes = 65535;

std::int32_t NumberIn(const Text& field) {
  return AttemptOr(0, [&] { return ToLong(Variant(Val(field))); });
}

std::vector<Text> RequestRecords(const FeaturePlace& place) {
  HostExecutor& host = SharedHost();
  const double count = std::min(Val(host.ORVRequest(commands::AttributeNumber(place))), kMostAttributes);
  std::vector<Text> records;
  for (int number = 1; number <= count; ++number) {
    Text record = host.ORVRequest(commands::Attribute(place, number));
    if (!record.IsEmpty()) records.push_back(std::move(record));
  }
  return records;
}

}  // namespace

Ref<CAttrib> ParseAttributeRecord(const Text& record) {
  auto attrib = MakeRef<CAttrib>();
  const std::vector<Text> fields = Split(record, u',');
  if (fields.size() != 4) return attrib;
  attrib->m_Name = fields[0];
  attrib->m_AttribType = static_cast<AttributeTypeEnum>(NumberIn(fields[1]));
  attrib->m_Length = NumberIn(fields[2]);
  attrib->m_Decs = NumberIn(fields[3]);
  return attrib;
}

Ref<CAttribs> AttributeList::Read(const FeaturePlace& place) {
  std::vector<Text> records = RequestRecords(place);
  if (!m_Attribs || records != m_Records) {
    auto attribs = MakeRef<CAttribs>();
    for (const Text& record : records) attribs->Add(ParseAttributeRecord(record));
    m_Records = std::move(records);
    m_Attribs = attribs;
  }
  return m_Attribs;
}

}  // namespace cardwright
