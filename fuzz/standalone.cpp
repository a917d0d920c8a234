// SPDX-License-Identifier: MIT
// Runs a fuzz target without libFuzzer: the seeds as they are, then seeded mutations of them for a number of
// seconds.
//   PROGRAM SECONDS SEED...
// An input that ends the program stays behind as PROGRAM.last.

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t bound) { return bound == 0 ? 0 : random() % bound; }

void Mutate(std::string& bytes, Random& random) {
  static const std::vector<std::string> kWords = {"=",
                                                  "\r\n",
                                                  "[",
                                                  "]",
                                                  "-1",
                                                  "1e999",
                                                  "32767",
                                                  "-",
                                                  "object_1",
                                                  "[FORM]\r\n",
                                                  "\0",
                                                  "2147483648 ",
                                                  "|",
                                                  "[SCRIPT]\r\n",
                                                  "Container=object_1\r\n",
                                                  ";",
                                                  "True",
                                                  "0.5,5",
                                                  "\xff\xfe",
                                                  "999999999999"};
  const std::size_t at = Below(random, bytes.size() + 1);
  const std::size_t length = Below(random, 40);
  switch (random() % 5) {
    case 0:
      if (at < bytes.size()) bytes[at] = static_cast<char>(random());
      break;
    case 1: bytes.erase(at, length); break;
    case 2: bytes.insert(at, kWords[Below(random, kWords.size())]); break;
    case 3: bytes.insert(Below(random, bytes.size() + 1), bytes.substr(at, length)); break;
    default: bytes.insert(at, length, static_cast<char>(random())); break;
  }
}

void Run(const char* program, const std::string& bytes) {
  std::ofstream(std::string(program) + ".last", std::ios::binary) << bytes;
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s SECONDS [SEED...]\n", argv[0]);
    return 2;
  }
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(std::atoi(argv[1]));
  std::vector<std::string> seeds;
  for (int i = 2; i < argc; ++i) {
    std::ifstream file(argv[i], std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  if (seeds.empty()) seeds.emplace_back("[FORM]\r\nControlsNumber=1\r\n");
  for (const std::string& seed : seeds) Run(argv[0], seed);
  Random random(1);
  long count = 0;
  for (; std::chrono::steady_clock::now() < end; ++count) {
    std::string bytes = seeds[Below(random, seeds.size())];
    for (std::size_t changes = 1 + Below(random, 12); changes > 0; --changes) Mutate(bytes, random);
    Run(argv[0], bytes);
  }
  std::printf("%ld inputs\n", count + static_cast<long>(seeds.size()));
  std::remove((std::string(argv[0]) + ".last").c_str());
  return 0;
}
