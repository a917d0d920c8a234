// SPDX-License-Identifier: MIT
#include "cardwright/shared/OrvClient.h"

#include <algorithm>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Split.h"
#include "cardwright/shared/CommandText.h"
#include "cardwright/shared/ConnectionByHandle.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

// More attributes than any store has columns: a host's reply must not keep the form asking for ever.
constexpr double kMostAttributes = 65535;
// First word of the reply to a command that a host refuses, before the reason. Some hosts give no reason.
constexpr std::u16string_view kRefusal = u"ERROR";

template <class... Others>
Text Fill(std::u16string_view pattern, const FeatureClass& features, Others... others) {
  const Placeholder placeholders[] = {
      {u"%%t%%", features.theme}, {u"%%ft%%", FeatureTypeText(features.type)}, others...};
  return FillTemplate(pattern, placeholders);
}

// Unlike by Fill, a theme's name that holds a placeholder is sent as it is.
Text InBars(const FeatureClass& features) {
  return Text(u"|") + features.theme + u"| |" + FeatureTypeText(features.type) + u"|";
}

// Nearly all numbers are a few digits, and a form reads three for each attribute of its theme whenever it
// opens a feature; others take the conversion of scripts.
std::int32_t NumberInField(std::u16string_view field) {
  const auto isDigit = [](char16_t c) { return c >= u'0' && c <= u'9'; };
  if (field.size() > 9 || !std::ranges::all_of(field, isDigit))
    return BestEffortOr(0, [&] { return ToLong(Variant(Val(field))); });
  std::int32_t number = 0;
  for (const char16_t digit : field) number = number * 10 + (digit - u'0');
  return number;
}

// Cuts the first field of a record off.
std::u16string_view TakeField(std::u16string_view& record) {
  const std::size_t end = std::min(record.find(u','), record.size());
  const std::u16string_view field = record.substr(0, end);
  record.remove_prefix(std::min(end + 1, record.size()));
  return field;
}

// "Name,AttribType,Length,Decs"
AttributeRecord ParseRecord(std::u16string_view record) {
  if (std::ranges::count(record, u',') != 3) return {};
  AttributeRecord attribute;
  attribute.name = TakeField(record);
  attribute.type = static_cast<AttributeTypeEnum>(NumberInField(TakeField(record)));
  attribute.length = NumberInField(TakeField(record));
  attribute.decimals = NumberInField(TakeField(record));
  return attribute;
}

Text SentValue(const AttributeRecord& attribute, const Text& value) {
  if (attribute.type == AttributeTypeEnum::atCharacter)
    return Text(u"|") + (value.IsEmpty() ? std::u16string_view(u" ") : value.View()) + u"|";
  return Replace(value, Module().decimalSeparator, u".");
}

bool CanBeSent(std::u16string_view name) {
  return !name.empty() &&
         std::ranges::none_of(name, [](char16_t c) { return c < u' ' || c == u',' || c == u'|'; });
}

}  // namespace

OrvClient OrvClient::Shared() { return OrvClient(SharedHost().Connection()); }
OrvClient OrvClient::At(std::int32_t handle) { return OrvClient(MakeRef<ConnectionByHandle>(handle)); }

double OrvClient::RequestNumber(const Text& command) { return Val(m_Host->Request(command)); }

Text OrvClient::RequestAttributeNames(const FeatureClass& features) {
  return m_Host->Request(Text(u"THEME_ATTRIBUTE_NAMES ") + InBars(features));
}

void OrvClient::SelectByValue(const FeatureClass& features, const Text& id) {
  m_Host->Execute(Fill(u"THEME_SELECTION_BYVALUE |%%t%%| |%%ft%%| OVTARVOUNIQUEID = %%id%% NEW", features,
                       Placeholder{u"%%id%%", id}));
}

double OrvClient::SelectedNumber(const FeatureClass& features) {
  return RequestNumber(Fill(u"THEME_SELECTED_NUMBER |%%t%%| |%%ft%%|", features));
}

void OrvClient::MoveFirst(const FeatureClass& features) {
  m_Host->Execute(Fill(u"THEME_MOVEFIRST |%%t%%| |%%ft%%|", features));
}

bool OrvClient::CurrentIsValid(const FeatureClass& features) {
  return RequestNumber(Fill(u"THEME_CURRENT_ISVALID |%%t%%| |%%ft%%|", features)) != 0;
}

void OrvClient::SelectNone(const FeatureClass& features) {
  m_Host->Execute(Fill(u"THEME_SELECTION_NONE |%%t%%| |%%ft%%|", features));
}

std::vector<AttributeRecord> OrvClient::Attributes(const FeatureClass& features) {
  const double count =
      std::min(RequestNumber(Fill(u"THEME_ATTRIBUTE_NUMBER |%%t%%| |%%ft%%|", features)), kMostAttributes);
  std::vector<AttributeRecord> attributes;
  for (int number = 1; number <= count; ++number)
    if (auto attribute = Attribute(features, number)) attributes.push_back(*std::move(attribute));
  return attributes;
}

std::optional<AttributeRecord> OrvClient::Attribute(const FeatureClass& features, int number) {
  const Text position = ToText(Variant(std::int32_t{number}));
  const Text reply = m_Host->Request(
      Fill(u"THEME_ATTRIBUTE |%%t%%| |%%ft%%| %%n%%", features, Placeholder{u"%%n%%", position}));
  if (reply.IsEmpty()) return std::nullopt;
  return ParseRecord(reply);
}

std::vector<Text> OrvClient::AttributeNames(const FeatureClass& features) {
  return Split(RequestAttributeNames(features), u',');
}

Text OrvClient::GetAttribute(const FeatureClass& features, const Text& name) {
  return m_Host->Request(
      Fill(u"THEME_GET_ATTRIBUTE |%%t%%| |%%ft%%| |%%na%%|", features, Placeholder{u"%%na%%", name}));
}

void OrvClient::SetAttribute(const FeatureClass& features, const AttributeRecord& attribute,
                             const Text& value) {
  const Text sent = SentValue(attribute, value);
  m_Host->Execute(Fill(u"THEME_SET_ATTRIBUTE |%%t%%| |%%ft%%| |%%na%%| %%v%%", features,
                       Placeholder{u"%%na%%", attribute.name}, Placeholder{u"%%v%%", sent}));
}

double OrvClient::ThemeNumber(const Text& theme) {
  return RequestNumber(Text(u"THEME_NUMBER |") + theme + u"|");
}

Text OrvClient::ActiveTheme() { return m_Host->Request(u"THEME_ACTIVE"); }

bool OrvClient::CreateTheme(const FeatureClass& features) {
  const FeatureClass created{Text(Trim(features.theme)), features.type};
  if (!CanBeSent(created.theme)) return false;
  const Text reply = m_Host->Execute(Text(u"THEME_CREATE ") + InBars(created));
  return !reply.View().starts_with(kRefusal) && ThemeNumber(created.theme) > 0;
}

void OrvClient::SuspendRedraw() { m_Host->Execute(u"APPLICATION_FLAGREDRAW OFF"); }
void OrvClient::ResumeRedraw() { m_Host->Execute(u"APPLICATION_FLAGREDRAW ON"); }
void OrvClient::Redraw() { m_Host->Execute(u"APPLICATION_REDRAW"); }

std::int32_t OrvClient::ConnectionHandle() { return ToLong(Variant(Val(m_Host->Execute(u"HWND_CONTROL")))); }

}  // namespace cardwright
