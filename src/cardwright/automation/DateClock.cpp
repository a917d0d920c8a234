// SPDX-License-Identifier: MIT
#include "cardwright/automation/DateClock.h"

#include <array>

namespace cardwright {

namespace {

using Kind = DateToken::Kind;
using Tokens = std::vector<DateToken>;

bool IsMarker(const DateToken& token) noexcept { return token.kind == Kind::Am || token.kind == Kind::Pm; }
bool IsColon(const DateToken& token) noexcept { return token.kind == Kind::Colon; }
bool IsPoint(const DateToken& token) noexcept { return token.IsPoint(); }

// Numbers with a separator between them, optionally followed by AM or PM: tokens from `begin` up to `end`.
struct Run {
  std::size_t begin = 0, end = 0;
  std::array<int, 3> parts{};
  std::size_t count = 0;
  bool hasMarker = false;
};

template <class Mark>
Run ReadRun(const Tokens& tokens, std::size_t at, Mark isMark, std::size_t maxParts) noexcept {
  Run run{at, at + 1, {tokens[at].value}, 1};
  while (run.count < maxParts && run.end + 1 < tokens.size() && isMark(tokens[run.end]) &&
         tokens[run.end + 1].IsNumber()) {
    if (run.count < run.parts.size()) run.parts[run.count] = tokens[run.end + 1].value;
    ++run.count;
    run.end += 2;
  }
  run.hasMarker = run.end < tokens.size() && IsMarker(tokens[run.end]);
  if (run.hasMarker) ++run.end;
  return run;
}

std::optional<DateClock> ClockOf(const Tokens& tokens, const Run& run) {
  auto [hour, minute, second] = run.parts;
  if (run.hasMarker && hour <= 12) {
    hour = hour % 12 + (tokens[run.end - 1].kind == Kind::Pm ? 12 : 0);
  } else if (run.hasMarker && run.count == 1) {
    return std::nullopt;  // "13:55 PM" is accepted, "13 PM" is not a time
  }
  if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
  DateClock clock{(hour * 60 + minute) * 60 + second, tokens};
  clock.rest.erase(clock.rest.begin() + static_cast<std::ptrdiff_t>(run.begin),
                   clock.rest.begin() + static_cast<std::ptrdiff_t>(run.end));
  return clock;
}

std::optional<Run> FindRun(const Tokens& tokens) noexcept {
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (!tokens[i].IsNumber()) continue;
    const Run run = ReadRun(tokens, i, IsColon, 3);
    if (run.count > 1 || run.hasMarker) return run;
  }
  return std::nullopt;
}

bool IsMark(const Tokens& tokens, std::size_t at) noexcept {
  return at < tokens.size() && (tokens[at].kind == Kind::Separator || tokens[at].kind == Kind::Colon);
}

}  // namespace

bool HasClock(const Tokens& tokens) noexcept { return FindRun(tokens).has_value(); }

std::optional<DateClock> TakeClock(const Tokens& tokens) {
  const auto run = FindRun(tokens);
  return run ? ClockOf(tokens, *run) : std::nullopt;
}

std::optional<DateClock> TakeDottedClock(const Tokens& tokens) {
  std::optional<DateClock> last;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (!tokens[i].IsNumber()) continue;
    const Run run = ReadRun(tokens, i, IsPoint, tokens.size());
    const bool standsAlone = (i == 0 || !IsMark(tokens, i - 1)) && !IsMark(tokens, run.end);
    if (standsAlone && (run.count == 2 || run.count == 3)) {
      if (auto clock = ClockOf(tokens, run)) last = std::move(clock);
    }
    i = run.end - 1;
  }
  return last;
}

}  // namespace cardwright
