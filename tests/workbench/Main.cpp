// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <memory>

#include "cardwright/hosting/FormScripts.h"
#include "cardwright/vbscript/VbScriptEngine.h"

namespace {

/// One application for all tests, created before the first and destroyed before the program ends. Settings of
/// the user who runs the tests are neither read nor changed.
class Application final : public testing::Environment {
 public:
  void SetUp() override {
    m_Home = std::make_unique<QTemporaryDir>();
    for (const char* place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
      qputenv(place, m_Home->path().toLocal8Bit());
    m_Application = std::make_unique<QApplication>(m_Count, m_Arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    cardwright::ProvideFormScripts({cardwright::vbscript::Language()});
  }
  void TearDown() override { m_Application.reset(); }

 private:
  std::unique_ptr<QTemporaryDir> m_Home;
  int m_Count = 1;
  char m_Name[16] = "workbench_tests";
  char* m_Arguments[2] = {m_Name, nullptr};
  std::unique_ptr<QApplication> m_Application;
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::AddGlobalTestEnvironment(new Application);
  return RUN_ALL_TESTS();
}
