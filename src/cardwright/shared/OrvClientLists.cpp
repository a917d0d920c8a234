// SPDX-License-Identifier: MIT
// The lists of a host's themes and attributes that people choose from.

#include <unordered_set>

#include "cardwright/automation/Errors.h"
#include "cardwright/shared/OrvClient.h"

namespace cardwright {
namespace {

// More names than any project has: a host's reply must not fill the memory with rows of a list.
constexpr std::size_t kMostNames = 65535;

/// The parts of a reply between its commas, one after the other.
class ReplyParts {
 public:
  explicit ReplyParts(const Text& reply) : m_Reply(reply), m_Rest(m_Reply) {}
  ReplyParts(const ReplyParts&) = delete;
  ReplyParts& operator=(const ReplyParts&) = delete;

  bool AtEnd() const noexcept { return m_AtEnd; }
  /// "" beyond the end.
  std::u16string_view Next() noexcept {
    const std::size_t comma = m_Rest.find(u',');
    const auto part = Trim(m_Rest.substr(0, comma));
    m_AtEnd = comma == m_Rest.npos;
    m_Rest = m_AtEnd ? std::u16string_view() : m_Rest.substr(comma + 1);
    return part;
  }

 private:
  Text m_Reply;  // holds the characters of the parts
  std::u16string_view m_Rest;
  bool m_AtEnd = false;
};

/// Calls `add` with each name worth listing and its number in the reply, from 1; `skip` for all others.
template <class Add, class Skip>
void ForEachName(ReplyParts& names, Add&& add, Skip&& skip) {
  std::unordered_set<std::u16string_view> seen;
  for (int number = 1; !names.AtEnd() && seen.size() < kMostNames; ++number) {
    const std::u16string_view name = names.Next();
    if (!name.empty() && seen.insert(name).second) {
      add(name, number);
    } else {
      skip();
    }
  }
}

FeatureTypeEnum FeatureTypeOf(std::u16string_view word) {
  using enum FeatureTypeEnum;
  for (const FeatureTypeEnum type : {ftPoint, ftArc, ftPolygon})
    if (EqualsNoCase(word, FeatureTypeText(type))) return type;
  return ftNone;
}

}  // namespace

std::vector<ListedTheme> OrvClient::ListThemes() {
  std::vector<ListedTheme> themes;
  const Text reply = m_Host->Request(u"THEME_NAMES");
  if (reply.IsEmpty()) return themes;
  ReplyParts names(reply);
  // Names are listed even by a host that does not know this request and fails it.
  ReplyParts types(BestEffortOr(Text(), [&] { return m_Host->Request(u"THEME_FEATURE_TYPES"); }));
  ForEachName(
      names,
      [&](std::u16string_view name, int) {
        themes.push_back({name, FeatureTypeOf(types.Next())});
      },
      [&] { types.Next(); });
  return themes;
}

std::vector<ListedAttribute> OrvClient::ListAttributes(const FeatureClass& features) {
  std::vector<ListedAttribute> attributes;
  if (features.theme.IsEmpty()) return attributes;
  ReplyParts names(RequestAttributeNames(features));
  ForEachName(
      names,
      [&](std::u16string_view name, int number) {
        attributes.push_back({name, number});
      },
      [] {});
  return attributes;
}

std::optional<AttributeRecord> OrvClient::Describe(const FeatureClass& features,
                                                   const ListedAttribute& attribute) {
  const auto record = Attribute(features, attribute.number);
  return record && EqualsNoCase(record->name, attribute.name) ? record : std::nullopt;
}

}  // namespace cardwright
