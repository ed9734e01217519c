#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <vector>

namespace calvero::bench {

template <typename Body>
double secondsOf(Body&& body) {
  const auto start = std::chrono::steady_clock::now();
  body();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values) {
  std::ranges::sort(values);
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

/// Times two bodies in turn, A B, B A, A B ..., so that a drifting machine meets both alike, and prints the median of
/// the ratios A/B, pair by pair, with the medians of both times. Each body returns the seconds that count.
template <typename A, typename B>
double printMedianRatio(const char* what, int pairs, A&& a, B&& b) {
  std::vector<double> ratios;
  std::vector<double> timesA;
  std::vector<double> timesB;
  a();  // warm both up
  b();
  for (int pair = 0; pair < pairs; ++pair) {
    double timeA = 0;
    double timeB = 0;
    if (pair % 2 == 0) {
      timeA = a();
      timeB = b();
    } else {
      timeB = b();
      timeA = a();
    }
    timesA.push_back(timeA);
    timesB.push_back(timeB);
    ratios.push_back(timeA / timeB);
  }
  const double ratio = median(ratios);
  std::printf("%s: ratio %.3f (%.3f s against %.3f s, medians of %d pairs)\n", what, ratio, median(timesA),
              median(timesB), pairs);
  return ratio;
}

}  // namespace calvero::bench
