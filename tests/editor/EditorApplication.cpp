// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

/// One application for the whole program, made before the first test and gone before the program ends.
class EditorApplication final : public testing::Environment {
 public:
  void SetUp() override {
    m_Application = std::make_unique<QApplication>(m_Count, m_Arguments);
    QApplication::setQuitOnLastWindowClosed(false);
  }
  void TearDown() override { m_Application.reset(); }

 private:
  int m_Count = 1;
  char m_Name[13] = "editor_tests";
  char* m_Arguments[2] = {m_Name, nullptr};
  std::unique_ptr<QApplication> m_Application;
};

[[maybe_unused]] const auto* const kEditorApplication =
    testing::AddGlobalTestEnvironment(new EditorApplication);

}  // namespace
