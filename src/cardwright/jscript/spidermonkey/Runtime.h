// SPDX-License-Identifier: MIT
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

class ScriptSession;

/// The JavaScript library's context on one thread. It is made with the first engine there and ends with the
/// thread.
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

  /// @name Sessions with a running call, the innermost last
  /// @{
  void Enter(ScriptSession& session) { m_Running.push_back(&session); }
  void Leave() noexcept { m_Running.pop_back(); }
  bool IsBusy() const noexcept { return !m_Running.empty(); }
  /// Limits scripts to that many bytes of the thread's stack, or to what is left of it.
  void UseStack(std::size_t bytes);
  /// @}

  /// The compiled prelude, which every session runs first; null until it was compiled.
  RefPtr<JS::Stencil>& Prelude() noexcept { return m_Prelude; }

  /// Runs the pending reactions of the scripts' promises.
  void RunJobs();

  /// Defers the release of a value whose script object was collected: releasing it may run any code, which
  /// must not happen during a collection.
  void DeferRelease(Variant value) { m_Deferred.push_back(std::move(value)); }
  /// Releases the deferred values. Call it where any code may run.
  void ReleaseDeferred();

  /// Properties that the engine keeps in script objects under symbols that scripts cannot get hold of.
  enum class HiddenProperty { Number, Source, Line, Column, Days, Instant, Count };
  JS::PropertyKey Key(HiddenProperty property) const;
  /// Makes the symbols; a realm must be entered. False where memory is short.
  bool MakeHiddenKeys();

  /// Has the running script check its flags soon. May be called from any thread.
  static void RequestInterrupt(void* context) noexcept;

 private:
  static bool OnInterrupt(JSContext* cx);
  bool MayContinue();
  bool HasMemory(ScriptSession& session);

  std::shared_ptr<void> m_Library;
  JSContext* m_Context = nullptr;
  std::vector<ScriptSession*> m_Running;
  RefPtr<JS::Stencil> m_Prelude;
  std::vector<Variant> m_Deferred;
  bool m_IsDraining = false;
  std::size_t m_StackRoom = 0, m_StackUsed = 0;
  std::vector<std::unique_ptr<JS::PersistentRooted<JS::Symbol*>>> m_HiddenKeys;
};

}  // namespace cardwright::jscript
