#include "cardwright/runtime/HostLists.h"

#include <algorithm>
#include <unordered_set>

#include "cardwright/runtime/AttributeList.h"
#include "cardwright/runtime/HostCommands.h"
#include "cardwright/shared/HostExecutor.h"

namespace cardwright {
namespace {

// More names than any project has: a host's reply must not fill the memory with rows of a list.
constexpr std::size_t kMostNames = 65535;
// How the reply of a host begins that tells why it refuses; others answer nothing.
constexpr std::u16string_view kRefusal = u"ERROR";

// An executor of its own, as the connection may be another one than the form's.
Ref<HostExecutor> HostAt(std::int32_t connection) {
  auto host = MakeRef<HostExecutor>();
  host->SetHandle(connection);
  return host;
}

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
  for (std::int32_t number = 1; !names.AtEnd() && seen.size() < kMostNames; ++number) {
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

bool CanBeSent(std::u16string_view name) {
  return !name.empty() &&
         std::ranges::none_of(name, [](char16_t c) { return c < u' ' || c == u',' || c == u'|'; });
}

}  // namespace

std::vector<ListedTheme> ListThemes(std::int32_t connection) {
  const Ref<HostExecutor> host = HostAt(connection);
  std::vector<ListedTheme> themes;
  const Text reply = host->ORVRequest(Text(commands::kThemeNames));
  if (reply.IsEmpty()) return themes;
  ReplyParts names(reply);
  // Names are listed even by a host that does not know this request and fails it.
  ReplyParts types(AttemptOr(Text(), [&] { return host->ORVRequest(Text(commands::kThemeFeatureTypes)); }));
  ForEachName(
      names,
      [&](std::u16string_view name, std::int32_t) {
        themes.push_back({name, FeatureTypeOf(types.Next())});
      },
      [&] { types.Next(); });
  return themes;
}

std::vector<ListedAttribute> ListAttributes(std::int32_t connection, const Text& theme,
                                            FeatureTypeEnum featureType) {
  std::vector<ListedAttribute> attributes;
  if (theme.IsEmpty()) return attributes;
  const FeaturePlace place{theme, FeatureTypeText(featureType)};
  ReplyParts names(HostAt(connection)->ORVRequest(commands::AttributeNames(place)));
  ForEachName(
      names,
      [&](std::u16string_view name, std::int32_t number) {
        attributes.push_back({name, number});
      },
      [] {});
  return attributes;
}

Ref<CAttrib> DescribeAttribute(std::int32_t connection, const Text& theme, FeatureTypeEnum featureType,
                               const ListedAttribute& attribute) {
  const FeaturePlace place{theme, FeatureTypeText(featureType)};
  const Text record = HostAt(connection)->ORVRequest(commands::Attribute(place, attribute.number));
  const Ref<CAttrib> described = ParseAttributeRecord(record);
  return EqualsNoCase(described->m_Name, attribute.name) ? described : nullptr;
}

bool CreateTheme(std::int32_t connection, const Text& name, FeatureTypeEnum featureType) {
  const Text trimmed(Trim(name));
  if (!CanBeSent(trimmed)) return false;
  const Ref<HostExecutor> host = HostAt(connection);
  const Text reply = host->ORVExecute(commands::CreateTheme({trimmed, FeatureTypeText(featureType)}));
  const bool isRefused = reply.View().starts_with(kRefusal);
  return !isRefused && Val(host->ORVRequest(commands::ThemeNumber(trimmed))) > 0;
}

}  // namespace cardwright
