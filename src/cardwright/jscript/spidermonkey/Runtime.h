#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>
#include <js/Value.h>
#include <js/experimental/JSStencil.h>

#include <atomic>
#include <cstddef>
#include <memory>
#include <vector>

#include "cardwright/automation/Variant.h"

namespace cardwright::jscript {

class Session;

/// The JavaScript library on one thread: made with the first engine there, gone with the thread.
class Runtime {
 public:
  /// Error 48 where the library cannot be started.
  static std::shared_ptr<Runtime> OfThread();
  static Runtime& Of(JSContext* cx);
  explicit Runtime(std::shared_ptr<void> library);
  ~Runtime();
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;

  JSContext* Context() const noexcept { return m_Context; }

  /// @name Sessions with a call under way, the innermost last
  /// @{
  void Enter(Session& session) { m_Running.push_back(&session); }
  void Leave() noexcept { m_Running.pop_back(); }
  bool IsBusy() const noexcept { return !m_Running.empty(); }
  /// Allows scripts that many bytes of the thread's stack, or as many as it has to spare.
  void UseStack(std::size_t bytes);
  /// @}

  /// What every session runs first, once compiled.
  RefPtr<JS::Stencil>& Prelude() noexcept { return m_Prelude; }

  /// Runs what the scripts' promises wait for.
  void RunJobs();

  /// Keeps what a collected script object held: it must not be released while the collector works, as that
  /// may run anything.
  void Bury(Variant value) { m_Dead.push_back(std::move(value)); }
  /// Releases what was buried. To be called where anything may run.
  void ReleaseDead();

  /// The keys under which the engine notes things in script objects, unseen by scripts.
  enum class Note { Number, Source, Line, Column, Days, Instant, Count };
  JS::PropertyKey Key(Note note) const;
  /// Makes the keys, within some realm; false where memory is short.
  bool MakeKeys();

  /// Asks the running script to look at its flags; from any thread.
  static void Nudge(void* context) noexcept;

 private:
  static bool OnInterrupt(JSContext* cx);
  bool LooksGood();
  bool HasMemory(Session& session);

  std::shared_ptr<void> m_Library;
  JSContext* m_Context = nullptr;
  std::vector<Session*> m_Running;
  RefPtr<JS::Stencil> m_Prelude;
  std::vector<Variant> m_Dead;
  bool m_IsDraining = false;
  std::size_t m_StackRoom = 0, m_StackUsed = 0;
  std::vector<std::unique_ptr<JS::PersistentRooted<JS::Symbol*>>> m_Notes;
};

}  // namespace cardwright::jscript
