// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

/// One application for the whole program: real widgets without a screen.
class Application final : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    m_Application = std::make_unique<QApplication>(m_Count, m_Arguments);
    QApplication::setQuitOnLastWindowClosed(false);
  }
  void TearDown() override { m_Application.reset(); }

 private:
  int m_Count = 1;
  char m_Name[12] = "model_tests";
  char* m_Arguments[2] = {m_Name, nullptr};
  std::unique_ptr<QApplication> m_Application;
};

[[maybe_unused]] const auto* const kApplication = testing::AddGlobalTestEnvironment(new Application);

}  // namespace
