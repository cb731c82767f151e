#include "sim/batch.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>

int BatchThreads(const RunOptions& options) {
  int threads = options.Threads > 0 ? options.Threads : static_cast<int>(std::thread::hardware_concurrency());
  return std::clamp(threads, 1, std::max(1, options.Games));
}

BatchResult RunBatch(const RunOptions& options, const Script& script, RunControl& control) {
  const auto started = std::chrono::steady_clock::now();
  std::vector<std::optional<GameResult>> slots(static_cast<size_t>(options.Games));
  std::atomic<int> next{0};
  std::mutex failureLock;
  std::exception_ptr failure;

  auto worker = [&] {
    for (int i = next++; i < options.Games && !control.Stop.load(); i = next++) {
      try {
        slots[static_cast<size_t>(i)] = RunGame(options, script, options.FirstGame + i, control);
      } catch (...) {
        std::lock_guard<std::mutex> hold(failureLock);
        if (!failure) failure = std::current_exception();
        control.Stop = true;
      }
    }
  };
  std::vector<std::thread> threads;
  for (int t = 1; t < BatchThreads(options); ++t) threads.emplace_back(worker);
  worker();
  for (std::thread& t : threads) t.join();
  if (failure) std::rethrow_exception(failure);

  BatchResult batch;
  for (auto& slot : slots)
    if (slot) batch.Games.push_back(std::move(*slot));
  batch.Interrupted = control.Stop.load();
  batch.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
  return batch;
}

double Quantile(const std::vector<double>& sorted, double p) {
  if (sorted.empty()) return 0;
  const double at = p * static_cast<double>(sorted.size() - 1);
  const size_t below = static_cast<size_t>(std::floor(at));
  const size_t above = std::min(below + 1, sorted.size() - 1);
  return sorted[below] + (sorted[above] - sorted[below]) * (at - static_cast<double>(below));
}

BatchSummary Summarize(const std::vector<GameResult>& games) {
  BatchSummary s;
  s.Games = static_cast<int>(games.size());
  std::vector<double> nets;
  int ruined = 0;
  for (const GameResult& r : games) {
    s.Rolls += r.Rolls;
    s.Hands += r.Hands;
    s.BetsWon += r.BetsWon;
    s.BetsLost += r.BetsLost;
    s.AmountWagered += r.AmountWagered;
    s.AmountWon += r.AmountWon;
    s.AmountLost += r.AmountLost;
    nets.push_back(r.Net.ToDouble());
    ruined += r.Ruined ? 1 : 0;
  }
  if (games.empty()) return s;
  const double n = static_cast<double>(games.size());
  double sum = 0;
  for (double v : nets) sum += v;
  s.MeanNet = sum / n;
  if (games.size() > 1) {
    double squares = 0;
    for (double v : nets) squares += (v - s.MeanNet) * (v - s.MeanNet);
    s.NetStandardError = std::sqrt(squares / (n - 1)) / std::sqrt(n);  // sample deviation over root n
  }
  std::sort(nets.begin(), nets.end());
  s.NetP10 = Quantile(nets, 0.10);
  s.NetP50 = Quantile(nets, 0.50);
  s.NetP90 = Quantile(nets, 0.90);
  s.RiskOfRuin = ruined / n;
  return s;
}
