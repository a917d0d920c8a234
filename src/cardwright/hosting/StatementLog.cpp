// SPDX-License-Identifier: MIT
#include "cardwright/hosting/StatementLog.h"

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <string>

namespace cardwright {

SourceLines::SourceLines(const Text& source) : m_Source(source) {
  const std::u16string_view text = m_Source;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find_first_of(u"\r\n", at), text.size());
    m_Lines.push_back(text.substr(at, end - at));
    at = end + (text.substr(end, 2) == u"\r\n" ? 2 : 1);
  }
}

std::u16string_view SourceLines::Line(int number) const noexcept {
  if (number < 1 || static_cast<std::size_t>(number) > m_Lines.size()) return {};
  std::u16string_view line = m_Lines[static_cast<std::size_t>(number - 1)];
  line.remove_prefix(std::min(line.find_first_not_of(u" \t"), line.size()));
  return line.substr(0, line.find_last_not_of(u" \t") + 1);
}

void StatementLog::OnStatement(std::u16string_view, int line, int) {
  if (line < 1) return;
  if (m_Traces) Trace(line);
  if (!m_Profiles) return;
  Begin(line);
  ++m_Costs[m_Current].count;
}

void StatementLog::OnReturn(std::u16string_view, int line, int) {
  if (m_Profiles && line > 0) Begin(line);
}

void StatementLog::Begin(int line) {
  EndStatement(Clock::now());
  m_Current = static_cast<std::size_t>(line);
  if (m_Current >= m_Costs.size()) m_Costs.resize(m_Current + 1);
  m_Begin = Clock::now();
}

void StatementLog::Trace(int line) {
  const std::string number = std::to_string(line);
  Text text = m_File + u":";
  text += Text::FromUtf8(number) + u": ";
  m_Streams.WriteErrorLine(text + m_Lines.Line(line));
}

void StatementLog::EndStatement(Clock::time_point now) noexcept {
  if (m_Current != 0) m_Costs[m_Current].time += now - m_Begin;
}

void StatementLog::WriteProfile() {
  if (!m_Profiles) return;
  EndStatement(Clock::now());
  m_Current = 0;
  std::vector<std::size_t> order(m_Costs.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, std::ranges::greater{},
                           [&](std::size_t line) { return m_Costs[line].time; });
  m_Streams.WriteErrorLine(u"   time (ms)       count  line  source");
  for (const std::size_t line : order) {
    const Cost& cost = m_Costs[line];
    if (cost.count == 0) continue;
    char head[64];
    std::snprintf(head, sizeof head, "%12.3f %11llu %5zu  ",
                  std::chrono::duration<double, std::milli>(cost.time).count(),
                  static_cast<unsigned long long>(cost.count), line);
    m_Streams.WriteErrorLine(Text::FromUtf8(head) + m_Lines.Line(static_cast<int>(line)));
  }
}

}  // namespace cardwright
