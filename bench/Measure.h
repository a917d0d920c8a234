// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace bench {

/// Milliseconds that a call takes.
template <class Work>
double Time(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
  return times[times.size() / 2];
}

inline const char* Verdict(double value, double target) { return value <= target ? "kept" : "MISSED"; }

/// Prints one row without a comparison. A target of 0 means none.
inline void Report(const std::string& what, double value, const std::string& unit, double target) {
  std::printf("%-50s %10.1f %s", what.c_str(), value, unit.c_str());
  if (target > 0) std::printf(" | target <= %.0f: %s", target, Verdict(value, target));
  std::printf("\n");
}

/// Runs both sides in turn, so that a busy machine slows both, and prints one row: medians in milliseconds,
/// their ratio, and the ratio that is to be kept. A target of 0 means none.
template <class Ours, class Peer>
void Compare(const std::string& what, const std::string& peerName, double target, int rounds, Ours&& ours,
             Peer&& peer) {
  std::vector<double> oursTimes;
  std::vector<double> peerTimes;
  ours();
  peer();
  for (int round = 0; round < rounds; ++round) {
    oursTimes.push_back(Time(ours));
    peerTimes.push_back(Time(peer));
  }
  const double oursMedian = Median(std::move(oursTimes));
  const double peerMedian = Median(std::move(peerTimes));
  const double ratio = oursMedian / peerMedian;
  std::printf("%-46s %9.3f ms | %-24s %9.3f ms | ratio %5.2f", what.c_str(), oursMedian, peerName.c_str(),
              peerMedian, ratio);
  if (target > 0) std::printf(" | target <= %.1f: %s", target, Verdict(ratio, target));
  std::printf("\n");
}

}  // namespace bench
