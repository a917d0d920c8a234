// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/ScriptControl.h"

namespace cardwright {

/// A script engine that lists the procedures of its code and runs none. Code with the word "broken" in it
/// does not compile.
class ListingEngine final : public ScriptControl {
 public:
  Text Language() const override { return m_Language; }
  void SetLanguage(std::u16string_view language) override { m_Language = language; }
  void SetSiteWindow(std::int32_t /*handle*/) override {}
  void Reset() override { m_Procedures.clear(); }
  void SetTimeout(std::int32_t /*milliseconds*/) override {}
  void SetAllowUI(bool /*allowed*/) override {}
  void AddObject(std::u16string_view /*name*/, Ref<Object> /*object*/, bool /*addMembers*/) override {}
  void AddCode(std::u16string_view code) override {
    if (FindNoCase(code, u"broken") != code.npos) Raise(1002);
    for (std::size_t at = 0; at < code.size();) {
      const std::size_t end = std::min(code.find(u'\n', at), code.size());
      AddLine(code.substr(at, end - at));
      at = end + 1;
    }
  }
  Ref<ScriptModule> AddModule(std::u16string_view /*name*/) override { return MakeRef<Module>(m_Procedures); }
  std::vector<Ref<ScriptModule>> Modules() const override { return {MakeRef<Module>(m_Procedures)}; }
  Variant Run(std::u16string_view /*procedure*/, Args /*args*/) override { return {}; }
  ScriptError LastError() const override { return {}; }
  void Interrupt() noexcept override {}

 private:
  class Module final : public ScriptModule {
   public:
    explicit Module(std::vector<ScriptProcedure> procedures) : m_Procedures(std::move(procedures)) {}
    Text Name() const override { return u"Global"; }
    void AddCode(std::u16string_view /*code*/) override {}
    Variant Run(std::u16string_view /*procedure*/, Args /*args*/) override { return {}; }
    std::vector<ScriptProcedure> Procedures() const override { return m_Procedures; }

   private:
    const std::vector<ScriptProcedure> m_Procedures;
  };

  void AddLine(std::u16string_view line) {
    for (const std::u16string_view word : {u"sub ", u"function "}) {
      if (!EqualsNoCase(line.substr(0, word.size()), word)) continue;
      const std::size_t end = line.find(u'(');
      ScriptProcedure procedure;
      procedure.name = line.substr(word.size(), end - word.size());
      m_Procedures.push_back(procedure);
    }
  }

  Text m_Language;
  std::vector<ScriptProcedure> m_Procedures;
};

}  // namespace cardwright
