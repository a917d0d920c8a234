// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "cardwright/platform/ScriptControl.h"
#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright {

/// The script control over the engines of this program.
class EngineControl final : public ScriptControl {
 public:
  using HostMaker = std::function<std::unique_ptr<ScriptHost>()>;

  /// `makeHost` gives each engine what its scripts may ask of the machine. `isOwner` tells whether a handle
  /// is a window or a connection.
  EngineControl(ScriptLanguages languages, HostMaker makeHost, std::function<bool(std::int32_t)> isOwner);
  ~EngineControl() override;

  Text Language() const override { return m_Language; }
  void SetLanguage(std::u16string_view language) override;
  void SetSiteWindow(std::int32_t handle) override;
  void Reset() override;
  void SetTimeout(std::int32_t milliseconds) override;
  void SetAllowUI(bool allowed) override;
  void AddObject(std::u16string_view name, Ref<Object> object, bool addMembers) override;
  void AddCode(std::u16string_view code) override;
  Ref<ScriptModule> AddModule(std::u16string_view name) override;
  std::vector<Ref<ScriptModule>> Modules() const override { return m_Modules; }
  Variant Run(std::u16string_view procedure, Args args) override;
  ScriptError LastError() const override { return m_Error; }
  void Interrupt() noexcept override;

 private:
  class Module;
  class Call;
  struct HostedEngine;

  void Start();
  ScriptEngine& Engine() const;

  const ScriptLanguages m_Languages;
  const HostMaker m_MakeHost;
  const std::function<bool(std::int32_t)> m_IsOwner;
  Text m_Language;
  std::shared_ptr<ScriptEngine> m_Engine;
  ScriptHost* m_Host = nullptr;  // of the engine, which keeps it
  std::vector<Ref<ScriptModule>> m_Modules;
  std::vector<ScriptEngine*> m_Running;  // one for each call that has not returned
  bool m_IsUsed = false;                 // something was put into the engine
  std::int32_t m_Timeout = -1;
  bool m_AllowUI = true;
  ScriptError m_Error;
};

}  // namespace cardwright
