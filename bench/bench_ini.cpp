// SPDX-License-Identifier: MIT
// Reading a large INI file key by key, as a form project is read, compared with GLib's GKeyFile. CIni goes to
// the file for each call, as its callers depend on; GKeyFile reads the file once and then answers from
// memory.

#include <glib.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Measure.h"
#include "cardwright/storage/CIni.h"

namespace {

constexpr int kSections = 500;
constexpr int kKeys = 20;

struct Names {
  std::vector<std::string> sections;
  std::vector<std::string> keys;
  std::vector<cardwright::Text> sectionTexts;
  std::vector<cardwright::Text> keyTexts;
};

Names MakeNames() {
  Names names;
  for (int i = 1; i <= kSections; ++i) names.sections.push_back("CONTROLS_" + std::to_string(i));
  for (int i = 1; i <= kKeys; ++i) names.keys.push_back("PropertyNumber" + std::to_string(i));
  for (const std::string& name : names.sections)
    names.sectionTexts.push_back(cardwright::Text::FromUtf8(name));
  for (const std::string& name : names.keys) names.keyTexts.push_back(cardwright::Text::FromUtf8(name));
  return names;
}

void WriteFile(const std::string& path, const Names& names) {
  std::ofstream file(path, std::ios::binary);
  for (const std::string& section : names.sections) {
    file << '[' << section << "]\r\n";
    for (const std::string& key : names.keys) file << key << "= " << 15 * key.size() << "\r\n";
  }
}

std::size_t ReadOurs(cardwright::CIni& ini, const Names& names) {
  std::size_t read = 0;
  for (const auto& section : names.sectionTexts)
    for (const auto& key : names.keyTexts) read += ini.GetValue(section, key).IsEmpty() ? 0 : 1;
  return read;
}

std::size_t ReadPeer(GKeyFile* file, const Names& names) {
  std::size_t read = 0;
  for (const auto& section : names.sections)
    for (const auto& key : names.keys) {
      gchar* value = g_key_file_get_string(file, section.c_str(), key.c_str(), nullptr);
      read += value ? 1 : 0;
      g_free(value);
    }
  return read;
}

void Require(std::size_t read) {
  if (read != kSections * kKeys) std::abort();
}

}  // namespace

int main() {
  const std::string path = std::string(CARDWRIGHT_BENCH_DATA) + "/large.ini";
  const Names names = MakeNames();
  WriteFile(path, names);
  const cardwright::Text pathText = cardwright::Text::FromUtf8(path);
  // A file that has just been written may change again within its time stamp; a form project seldom has.
  std::filesystem::last_write_time(path,
                                   std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));

  bench::Compare(
      "CIni: open and read 10,000 keys", "GKeyFile", 2.0, 15,
      [&] {
        auto ini = cardwright::MakeRef<cardwright::CIni>();
        ini->SetFileName(pathText);
        Require(ReadOurs(*ini, names));
      },
      [&] {
        GKeyFile* file = g_key_file_new();
        if (!g_key_file_load_from_file(file, path.c_str(), G_KEY_FILE_NONE, nullptr)) std::abort();
        Require(ReadPeer(file, names));
        g_key_file_free(file);
      });

  auto ini = cardwright::MakeRef<cardwright::CIni>();
  ini->SetFileName(pathText);
  GKeyFile* file = g_key_file_new();
  if (!g_key_file_load_from_file(file, path.c_str(), G_KEY_FILE_NONE, nullptr)) return 1;
  bench::Compare(
      "CIni: read 10,000 keys of an open file", "GKeyFile, in memory", 0, 15,
      [&] { Require(ReadOurs(*ini, names)); }, [&] { Require(ReadPeer(file, names)); });
  g_key_file_free(file);
  return 0;
}
