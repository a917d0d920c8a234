// SPDX-License-Identifier: MIT
// Damaged projects: any bytes are read without a crash or a hang.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <random>

#include "cardwright/model/CItems.h"
#include "model/Forms.h"
#include "model/ProjectTexts.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

constexpr auto kEndsSoon = std::chrono::seconds(10);  // with a sanitizer on a slow machine

/// Thousands of files are written: to a folder in memory, where there is one.
class DamagedProject : public testing::Test {
 protected:
  void SetUp() override {
    if (std::filesystem::is_directory("/dev/shm")) ::setenv("TMPDIR", "/dev/shm", 1);
  }
  void TearDown() override { m_Before ? ::setenv("TMPDIR", m_Before->c_str(), 1) : ::unsetenv("TMPDIR"); }

 private:
  std::optional<std::string> m_Before = [] {
    const char* before = std::getenv("TMPDIR");
    return before ? std::optional<std::string>(before) : std::nullopt;
  }();
};

/// Reads the bytes as a project in both kinds of owner, and saves what the designer got.
void ReadEverywhere(const TempFolder& folder, const std::string& bytes) {
  const Text file = folder.Put("a.frm", bytes);
  {
    InputForm on;
    EXPECT_TRUE(on.form->Read(file, {}));
    for (const Ref<IControl>& control : ControlsOf(on.owner->Controls()))
      BestEffort([&] { (void)control->Value(); });
  }
  DesignForm on;
  EXPECT_TRUE(on.form->Read(file, {}));
  EXPECT_TRUE(on.form->Save(file, {}));
}

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t bound) { return random() % bound; }

std::string Noise(Random& random, std::size_t length) {
  std::string bytes(length, ' ');
  for (char& c : bytes) c = static_cast<char>(random() % 256);
  return bytes;
}

/// Values that are unusual for numbers, colours, flags and names.
const std::string kOddValues[] = {"",
                                  "-1",
                                  "1e308",
                                  "-1e308",
                                  "1e-300",
                                  "99999999999999999999",
                                  "&HFFFFFFFF",
                                  "2147483648",
                                  "-32769",
                                  "NaN",
                                  "object_1",
                                  "object_3",
                                  "cmdOK",
                                  "True",
                                  "[FORM]",
                                  ";",
                                  std::string("\0x", 2),
                                  std::string(9000, '9')};

std::string Mutated(Random& random, std::string project) {
  const auto lineAt = [&](std::size_t at) { return project.rfind('\n', at) + 1; };
  for (std::size_t changes = 1 + Below(random, 6); changes > 0; --changes) {
    const std::size_t at = Below(random, project.size());
    const std::size_t line = lineAt(at), end = project.find('\n', at) + 1;
    const std::size_t equals = project.find('=', line);
    switch (Below(random, 7)) {
      case 0: project[at] = static_cast<char>(random() % 256); break;
      case 1: project.erase(at, Below(random, 40)); break;
      case 2: project.insert(at, Noise(random, Below(random, 40))); break;
      case 3: project.erase(line, end - line); break;
      case 4: project.insert(lineAt(Below(random, project.size())), project.substr(line, end - line)); break;
      case 5:
      default:
        if (equals == std::string::npos || equals + 3 > end) break;
        project.replace(equals + 1, end - equals - 3, kOddValues[Below(random, std::size(kOddValues))]);
    }
    if (project.size() < 10) return project;
  }
  return project;
}

}  // namespace

TEST_F(DamagedProject, OfRandomBytesIsRead) {
  const TempFolder folder;
  Random random(20240611);
  for (int i = 0; i < 500; ++i) ReadEverywhere(folder, Noise(random, Below(random, 3000)));
}

TEST_F(DamagedProject, WithRandomChangesIsRead) {
  const TempFolder folder;
  Random random(7);
  for (int i = 0; i < 1200; ++i) ReadEverywhere(folder, Mutated(random, Example()));
}

TEST_F(DamagedProject, WithRandomChangesInEveryClassIsRead) {
  const TempFolder folder;
  Random random(11);
  for (int i = 0; i < 500; ++i) ReadEverywhere(folder, Mutated(random, EveryClass(i % 2 ? 1 : 3)));
}

TEST_F(DamagedProject, WithOneUnusualValueIsRead) {
  const TempFolder folder;
  const std::string project = EveryClass(3);
  const std::string* value = std::begin(kOddValues);
  for (std::size_t at = 0; (at = project.find('=', at + 1)) != std::string::npos;) {
    const std::size_t end = project.find('\r', at);
    ReadEverywhere(folder, project.substr(0, at + 1) + *value + project.substr(end));
    if (++value == std::end(kOddValues)) value = std::begin(kOddValues);
  }
}

TEST_F(DamagedProject, OfValuesOfManyCharactersIsRead) {
  const TempFolder folder;
  const std::string value(100 * 1024, 'w');
  const std::string project = EveryClass(3);
  for (const std::string key : {"Text=", "UserName=", "Name=", "Type=", "Container=", "FontName=", "Left=",
                                "BackColor=", "Attribute=", "Selected=", "Text_Item_1="})
    ReadEverywhere(folder, Replaced(project, "\n" + key, "\n" + key + value));
}

TEST_F(DamagedProject, OfTooManyControlsIsReadQuickly) {
  const TempFolder folder;
  const auto begin = std::chrono::steady_clock::now();
  ReadEverywhere(folder, "[FORM]\r\nControlsNumber=32767\r\n");
  std::string frames = "[FORM]\r\nControlsNumber=32767\r\n";
  for (int i = 1; i <= 300; ++i)
    frames += "[CONTROLS_" + std::to_string(i) + "]\r\nType=Frame\r\nName=f" + std::to_string(i) +
              "\r\nUserName=f" + std::to_string(i) +
              "\r\nContainer=" + (i > 1 ? "f" + std::to_string(i - 1) : "") + "\r\n";
  ReadEverywhere(folder, frames);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, kEndsSoon);
}

TEST_F(DamagedProject, OfTooManyItemsIsReadQuickly) {
  const TempFolder folder;
  const auto begin = std::chrono::steady_clock::now();
  for (const std::string type : {"ComboBox", "ListBox"}) {
    for (const std::string number : {"2147483647", "1e300", "99999999999"}) {
      DesignForm on;
      EXPECT_TRUE(
          on.form->Read(folder.Put("a.frm", "[FORM]\r\nControlsNumber=1\r\n[CONTROLS_1]\r\nType=" + type +
                                                "\r\nUserName=a\r\nItemsNumber=" + number + "\r\n"),
                        {}));
      const Variant items = on.Find(u"a")->PropertyValue(u"Items");
      EXPECT_EQ(dynamic_cast<CItems&>(*items.ObjectPtr()).Count(), 32767);
    }
  }
  EXPECT_LT(std::chrono::steady_clock::now() - begin, kEndsSoon);
}

}  // namespace cardwright
