// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/platform/ScriptControl.h"

namespace cardwright {

/// A script engine that understands no language: it writes down what it is told, keeps the objects and the
/// code, and runs the procedures that a test gives it.
class RecordingEngine final : public ScriptControl {
 public:
  Text Language() const override { return m_Language; }
  void SetLanguage(std::u16string_view language) override {
    m_Language = language;
    Note("Language " + Text(language).ToUtf8());
  }
  void SetSiteWindow(std::int32_t handle) override {
    site = handle;
    Note("SitehWnd");
  }
  void Reset() override {
    objects.clear();
    Note("Reset");
  }
  void SetTimeout(std::int32_t milliseconds) override { Note("Timeout " + std::to_string(milliseconds)); }
  void SetAllowUI(bool allowed) override { Note(allowed ? "AllowUI" : "AllowUI off"); }
  void AddObject(std::u16string_view name, Ref<Object> object, bool addMembers) override {
    objects[Text(name).ToUtf8()] = object;
    Note("AddObject " + Text(name).ToUtf8() + (addMembers ? " global" : ""));
  }
  void AddCode(std::u16string_view text) override {
    code = text;
    Note("AddCode");
  }
  Ref<ScriptModule> AddModule(std::u16string_view name) override {
    Note("Add " + Text(name).ToUtf8());
    return MakeRef<Module>(*this, Text(name).ToUtf8());
  }
  std::vector<Ref<ScriptModule>> Modules() const override { return {}; }
  void Interrupt() noexcept override {}
  Variant Run(std::u16string_view procedure, Args) override {
    const std::string name = Text(procedure).ToUtf8();
    const Ref<RecordingEngine> keepAlive(this);
    Note("Run " + name);
    const auto found = procedures.find(name);
    if (found != procedures.end()) std::function<void()>(found->second)();
    return {};
  }
  ScriptError LastError() const override { return error; }

  std::vector<std::string> Take() { return std::exchange(log, {}); }
  bool HasRun(const std::string& procedure) const {
    return std::find(log.begin(), log.end(), "Run " + procedure) != log.end();
  }
  void SetResponse(bool response) { LetProperty(*objects.at("FrmCtrls"), u"Response", Variant(response)); }

  std::vector<std::string> log;
  std::function<void(const std::string& line)> onLine;
  std::map<std::string, Ref<Object>> objects;
  std::map<std::string, std::function<void()>> procedures;
  Text code;
  Text initCode;
  std::int32_t site = 0;
  ScriptError error;
  std::map<std::string, int> failures;  ///< line of the log and the error that it ends with

 private:
  class Module final : public ScriptModule {
   public:
    Module(RecordingEngine& engine, std::string name) : m_Engine(&engine), m_Name(std::move(name)) {}
    Text Name() const override { return Text::FromUtf8(m_Name); }
    std::vector<ScriptProcedure> Procedures() const override { return {}; }
    void AddCode(std::u16string_view text) override {
      m_Engine->initCode = text;
      m_Engine->Note("AddCode in " + m_Name);
    }
    Variant Run(std::u16string_view procedure, Args args) override {
      m_Engine->Note("in " + m_Name);
      return m_Engine->Run(procedure, args);
    }

   private:
    Ref<RecordingEngine> m_Engine;
    std::string m_Name;
  };

  void Note(const std::string& line) {
    log.push_back(line);
    if (onLine) onLine(line);
    const auto found = failures.find(line);
    if (found != failures.end()) Raise(found->second);
  }

  Text m_Language;
};

}  // namespace cardwright
