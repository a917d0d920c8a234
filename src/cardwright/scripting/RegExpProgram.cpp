// SPDX-License-Identifier: MIT
#define PCRE2_CODE_UNIT_WIDTH 16
#include "cardwright/scripting/RegExpProgram.h"

#include <pcre2.h>

#include <algorithm>
#include <new>

#include "cardwright/automation/Errors.h"

namespace cardwright::scripting {

namespace {

static_assert(kUnsetGroup == PCRE2_UNSET);

// Turns of a pattern's loops from one start: some 50 ms of machine code. What takes long without many turns,
// or at many starts, meets the time limit of the budget.
constexpr std::uint32_t kMaxBacktracking = 10'000'000;
// Memory of a search: what is kept for the next one, and what a second attempt may take and gives back.
// Machine code has a stack, in bytes; without it there is a heap, in KiB.
constexpr std::size_t kFirstStack = std::size_t{32} << 10;
constexpr std::size_t kKeptStack = std::size_t{1} << 20;
constexpr std::size_t kMaxStack = std::size_t{128} << 20;
constexpr std::uint32_t kKeptHeap = 1 << 10;
constexpr std::uint32_t kMaxHeap = 64 << 10;
// Units to be searched before machine code pays. Making it takes as long as searching some thousands.
constexpr std::size_t kUnitsWorthCompiling = 2000;
constexpr std::size_t kUnitsOfCall = 64;

struct FreeStack {
  void operator()(pcre2_jit_stack* stack) const noexcept { pcre2_jit_stack_free(stack); }
};
using Stack = std::unique_ptr<pcre2_jit_stack, FreeStack>;

Stack NewStack(std::size_t most) noexcept {
  return Stack(pcre2_jit_stack_create(kFirstStack, most, nullptr));
}

struct FreeContext {
  void operator()(pcre2_match_context* context) const noexcept { pcre2_match_context_free(context); }
};

int AtCheckpoint(pcre2_callout_block*, void* budget) {
  return static_cast<SearchBudget*>(budget)->HasTimeLeft() ? 0 : PCRE2_ERROR_CALLOUT;
}

/// Limits of all searches of a thread, and the stack that they use one after the other.
class MatchEnvironment {
 public:
  static MatchEnvironment& OfThread() {
    static thread_local MatchEnvironment environment;
    return environment;
  }

  pcre2_match_context* Context(SearchBudget& budget) noexcept {
    return Context(budget, m_Stack.get(), kKeptHeap);
  }
  /// Where there is no such stack, machine code has to do with what the library gives it.
  pcre2_match_context* Context(SearchBudget& budget, pcre2_jit_stack* stack, std::uint32_t heap) noexcept {
    pcre2_set_callout(m_Context.get(), &AtCheckpoint, &budget);
    pcre2_jit_stack_assign(m_Context.get(), nullptr, stack);
    pcre2_set_heap_limit(m_Context.get(), heap);
    return m_Context.get();
  }

 private:
  MatchEnvironment() : m_Context(pcre2_match_context_create(nullptr)), m_Stack(NewStack(kKeptStack)) {
    if (!m_Context) throw std::bad_alloc();
    pcre2_set_match_limit(m_Context.get(), kMaxBacktracking);
  }

  std::unique_ptr<pcre2_match_context, FreeContext> m_Context;
  Stack m_Stack;
};

PCRE2_SPTR Units(std::u16string_view text) noexcept {
  return reinterpret_cast<PCRE2_SPTR>(text.empty() ? u"" : text.data());
}

std::uint32_t Options(const LibraryPattern& pattern) noexcept {
  std::uint32_t options =
      PCRE2_DOTALL | PCRE2_MATCH_UNSET_BACKREF | PCRE2_NEVER_UTF | PCRE2_NEVER_BACKSLASH_C;
  if (pattern.isCaseless) options |= PCRE2_CASELESS;
  if (pattern.foldsReferences) options |= PCRE2_UCP;
  return options;
}

std::size_t Size(const pcre2_code& code, std::uint32_t what) noexcept {
  std::size_t size = 0;
  pcre2_pattern_info(&code, what, &size);
  return size;
}

}  // namespace

void RegExpProgram::Free::operator()(pcre2_real_code_16* code) const noexcept { pcre2_code_free(code); }
void RegExpProgram::Free::operator()(pcre2_real_match_data_16* data) const noexcept {
  pcre2_match_data_free(data);
}

RegExpProgram::RegExpProgram(std::u16string_view pattern, RegExpFlags flags) {
  const LibraryPattern translated = TranslatePattern(pattern, flags);
  int error = 0;
  PCRE2_SIZE place = 0;
  m_Code.reset(pcre2_compile(Units(translated.text), translated.text.size(), Options(translated), &error,
                             &place, nullptr));
  // The translation holds no mistakes, so all that can be wrong with it is its size.
  if (!m_Code) Raise(ErrorNumber::OutOfMemory);
  m_Memory.Grow(Size(*m_Code, PCRE2_INFO_SIZE));
  m_Data = NewMatchData();
  m_Groups = translated.groups;
}

RegExpProgram::MatchData RegExpProgram::NewMatchData() const {
  MatchData data(pcre2_match_data_create_from_pattern(m_Code.get(), nullptr));
  if (!data) throw std::bad_alloc();
  return data;
}

void RegExpProgram::CompileIfWorthwhile(std::size_t textUnits) {
  m_Searched += textUnits + kUnitsOfCall;
  if (m_IsCompiled || m_Searched < kUnitsWorthCompiling) return;
  m_IsCompiled = true;
  pcre2_jit_compile(m_Code.get(), PCRE2_JIT_COMPLETE);  // where it cannot be done, searches are slower
  m_Memory.Grow(Size(*m_Code, PCRE2_INFO_JITSIZE));
}

std::span<const std::size_t> RegExpProgram::Search(std::u16string_view text, std::size_t from,
                                                   SearchBudget& budget) {
  CompileIfWorthwhile(text.size() - from);
  int found = pcre2_match(m_Code.get(), Units(text), text.size(), from, 0, m_Data.get(),
                          MatchEnvironment::OfThread().Context(budget));
  if (found == PCRE2_ERROR_JIT_STACKLIMIT || found == PCRE2_ERROR_HEAPLIMIT)
    found = SearchWithMoreMemory(text, from, budget);
  if (found == PCRE2_ERROR_NOMATCH) return {};
  if (found < 0) Raise(ErrorNumber::CannotPerform);
  return {pcre2_get_ovector_pointer(m_Data.get()), (m_Groups + 1) * 2};
}

// The memory of this search goes with it.
int RegExpProgram::SearchWithMoreMemory(std::u16string_view text, std::size_t from, SearchBudget& budget) {
  const MatchData data = NewMatchData();
  const Stack stack = NewStack(kMaxStack);
  const int found = pcre2_match(m_Code.get(), Units(text), text.size(), from, 0, data.get(),
                                MatchEnvironment::OfThread().Context(budget, stack.get(), kMaxHeap));
  if (found > 0) {
    std::copy_n(pcre2_get_ovector_pointer(data.get()), (m_Groups + 1) * 2,
                pcre2_get_ovector_pointer(m_Data.get()));
  }
  return found;
}

}  // namespace cardwright::scripting
