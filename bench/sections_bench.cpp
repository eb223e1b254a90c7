// Speed of the section checks: one check as a multiple of its bare arithmetic, and a sweep of a
// million random sections.
//
// The bare arithmetic of a check is the number of additions, subtractions, multiplications and
// divisions of its search, counted below as the formulas are written, times the time of one of them
// when none waits for another, the least that the machine takes. The counter `times_bare` is
// measured time over that figure; it is to stay below 3.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <iterator>
#include <random>
#include <vector>

#include "structures/solvers/section_circular.h"
#include "structures/solvers/section_t.h"

namespace orm {
namespace {

using Clock = std::chrono::steady_clock;

double Seconds(Clock::time_point since) {
  return std::chrono::duration<double>(Clock::now() - since).count();
}

// Time of one operation: multiplications and additions in sixteen chains side by side, so that the
// units of the processor always have work at hand; one number at a time (this file is compiled
// without vector instructions, the checks as usual).
double SecondsPerOperation() {
  static const double measured = [] {
    constexpr int kRounds = 4'000'000;
    std::array<double, 16> chains{};
    const auto start = Clock::now();
    for (int i = 0; i < kRounds; ++i)
      for (double& value : chains) value = value * 0.9999 + 1e-4;
    const double seconds = Seconds(start);
    benchmark::DoNotOptimize(chains);
    return seconds / (2.0 * kRounds * static_cast<double>(chains.size()));
  }();
  return measured;
}

double SecondsPerSineAndCosine() {
  static const double measured = [] {
    constexpr int kRounds = 2'000'000;
    double angle = 1, sum = 0;
    const auto start = Clock::now();
    for (int i = 0; i < kRounds; ++i) {
      sum += std::sin(angle) + std::cos(angle);
      angle = 0.5 + sum * 1e-12 + i * 1e-6;
      benchmark::DoNotOptimize(sum);
    }
    return Seconds(start) / kRounds;
  }();
  return measured;
}

// Halvings until the interval is not above the tolerance, and the value at its first end.
double Evaluations(double interval, double tolerance) {
  return 2 + std::ceil(std::log2(interval / tolerance));
}

// One evaluation: 14 for the concrete in the web's range, 5 for each of 8 layers, 5 for the
// halving.
double OperationsT(const DatiSezione& dati) {
  return Evaluations(dati.H, 0.001) * (14 + 8 * 5 + 5);
}

std::vector<DatiSezione> SectionsT(int count) {
  std::mt19937 random(1);
  const auto between = [&](double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(random);
  };
  std::vector<DatiSezione> sections(static_cast<std::size_t>(count));
  for (DatiSezione& dati : sections) {
    const double H = between(20, 150), b = between(15, 50);
    const bool upper = random() % 2 == 0, lower = random() % 2 == 0;
    dati.B = upper ? between(b, 200) : b;
    dati.b = b;
    dati.Bi = lower ? between(b, 200) : b;
    dati.H = H;
    dati.s = upper ? between(4, H * 0.4) : 0;
    dati.si = lower ? between(4, H * 0.4) : 0;
    const std::size_t layers = 1 + random() % 8;
    for (std::size_t i = 0; i < layers; ++i) dati.strati[i] = {between(0.5, 30), between(2, H - 2)};
    dati.M = between(1e4, 5e6) * (random() % 2 == 0 ? 1 : -1);
  }
  return sections;
}

std::vector<DatiCircolare> SectionsC(int count) {
  std::mt19937 random(2);
  const auto between = [&](double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(random);
  };
  std::vector<DatiCircolare> sections(static_cast<std::size_t>(count));
  for (DatiCircolare& dati : sections) {
    const double D = between(30, 200);
    const double Di = random() % 2 == 0 ? 0 : between(0.3, 0.6) * D;
    dati = {.D = D,
            .Di = Di,
            .Ad1 = between(5, 60),
            .Dd1 = D - 8,
            .Ac1 = between(1, 8),
            .d1 = 4,
            .Ac2 = between(1, 8),
            .d2 = D - 4,
            .M = between(1e5, 5e6)};
  }
  return sections;
}

void VerifyT(benchmark::State& state) {
  const auto sections = SectionsT(1000);
  double bare = 0;
  for (const auto& dati : sections) bare += OperationsT(dati) * SecondsPerOperation();
  const auto start = Clock::now();
  for (auto _ : state)
    for (const auto& dati : sections) {
      RisultatiSezione risultati;
      VerificaSezioneT(dati, risultati);
      benchmark::DoNotOptimize(risultati);
    }
  const auto checks = static_cast<double>(state.iterations());
  state.counters["times_bare"] = Seconds(start) / (bare * checks);
  state.counters["ns_per_operation"] = 1e9 * SecondsPerOperation();
  state.counters["ns_per_check"] = 1e9 * Seconds(start) / (checks * 1000);
}
BENCHMARK(VerifyT);

void VerifyCircular(benchmark::State& state) {
  const auto sections = SectionsC(1000);
  double bare = 0;
  for (const auto& dati : sections) {
    // A segment of 13 operations and a sine and cosine of its own, a second one where there is a
    // hole with 12 more for its angle (whose arc tangent counts as a sine and cosine), steel 24.
    const bool hole = dati.Di > 0;
    bare += Evaluations(3.1416, 3.1416 / 64800) *
            ((13 + 24 + 5 + (hole ? 26 : 0)) * SecondsPerOperation() +
             (hole ? 3.5 : 1.5) * SecondsPerSineAndCosine());
  }
  const auto start = Clock::now();
  for (auto _ : state)
    for (const auto& dati : sections) {
      RisultatiCircolare risultati;
      VerificaSezioneCircolare(dati, risultati);
      benchmark::DoNotOptimize(risultati);
    }
  const auto checks = static_cast<double>(state.iterations());
  state.counters["times_bare"] = Seconds(start) / (bare * checks);
  state.counters["ns_per_check"] = 1e9 * Seconds(start) / (checks * 1000);
}
BENCHMARK(VerifyCircular);

// One core, nothing allocated for a section.
void SweepOfAMillionSections(benchmark::State& state) {
  const auto sections = SectionsT(1'000'000);
  for (auto _ : state) {
    double sum = 0;
    for (const auto& dati : sections) {
      RisultatiSezione risultati;
      VerificaSezioneT(dati, risultati);
      sum += risultati.asse;
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(SweepOfAMillionSections)->Unit(benchmark::kSecond)->Iterations(3);

}  // namespace
}  // namespace orm
