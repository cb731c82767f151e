// The spread per roll of the line bets, checked against the textbook figure
// for a Markov chain of the table's states (come-out, or a point on): the
// asymptotic variance of the running result per roll, from the Poisson
// equation. It shares nothing with the cycle model it checks.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <utility>

#include "engine/test_support.h"
#include "stats/advantage.h"
#include "stats/roll_nets.h"

namespace {

constexpr int kStates = 7;  // 0 the come-out, 1..6 the points 4..10
using Matrix = std::array<std::array<double, kStates + 1>, kStates>;  // with the right-hand side
using Vector = std::array<double, kStates>;

int StateOf(int point) { return point == 0 ? 0 : 1 + bet::NumberIndex(point); }
int PointOf(int state) { return state == 0 ? 0 : bet::NumberAt(state - 1); }
double Ways(int total) { return 6 - std::abs(7 - total); }

// Gaussian elimination with partial pivoting.
Vector Solve(Matrix m) {
  for (int col = 0; col < kStates; ++col) {
    int pivot = col;
    for (int r = col + 1; r < kStates; ++r)
      if (std::fabs(m[r][col]) > std::fabs(m[pivot][col])) pivot = r;
    std::swap(m[col], m[pivot]);
    for (int r = 0; r < kStates; ++r) {
      if (r == col) continue;
      const double f = m[r][col] / m[col][col];
      for (int c = col; c <= kStates; ++c) m[r][c] -= f * m[col][c];
    }
  }
  Vector x{};
  for (int r = 0; r < kStates; ++r) x[r] = m[r][kStates] / m[r][r];
  return x;
}

// One throw of a line bet from a state: its net and the state after it.
struct Step {
  double net;
  int next;
};
Step Throw(const Game& g, bool pass, int state, int total) {
  const int point = PointOf(state);
  if (point == 0) {
    if (bet::IsPointNumber(total)) return {0, StateOf(total)};
    const bool natural = total == 7 || total == 11;
    if (pass) return {natural ? RatioOf(g.Payoff[bet::kCome]) : -1, 0};
    if (natural) return {-1, 0};
    return {total == g.BarNumber ? 0 : RatioOf(g.Payoff[bet::kDontCome]), 0};
  }
  if (total == point) return {pass ? RatioOf(g.Payoff[bet::Come(point)]) : -1, 0};
  if (total == 7) return {pass ? -1 : RatioOf(g.Payoff[bet::DontCome(point)]), 0};
  return {0, state};
}

struct ChainFigures {
  double mean, variance;
};
ChainFigures Chain(const Game& g, bool pass) {
  // Stationary law: pi P = pi, with the first equation replaced by sum 1.
  Matrix m{};
  for (int x = 0; x < kStates; ++x)
    for (int t = 2; t <= 12; ++t) m[Throw(g, pass, x, t).next][x] += Ways(t) / 36;
  for (int y = 0; y < kStates; ++y) m[y][y] -= 1;
  for (int x = 0; x < kStates; ++x) m[0][x] = 1;
  m[0][kStates] = 1;
  const Vector pi = Solve(m);

  double mean = 0;
  Vector expected{};
  for (int x = 0; x < kStates; ++x)
    for (int t = 2; t <= 12; ++t) expected[x] += Ways(t) / 36 * Throw(g, pass, x, t).net;
  for (int x = 0; x < kStates; ++x) mean += pi[x] * expected[x];

  // Poisson equation (I - P) h = r - mean, pinned by h(come-out) = 0.
  Matrix p{};
  for (int x = 0; x < kStates; ++x) {
    p[x][x] += 1;
    for (int t = 2; t <= 12; ++t) p[x][Throw(g, pass, x, t).next] -= Ways(t) / 36;
    p[x][kStates] = expected[x] - mean;
  }
  p[0] = {};
  p[0][0] = 1;
  const Vector h = Solve(p);

  double variance = 0;
  for (int x = 0; x < kStates; ++x)
    for (int t = 2; t <= 12; ++t) {
      const Step s = Throw(g, pass, x, t);
      const double d = s.net - mean + h[s.next] - h[x];
      variance += pi[x] * Ways(t) / 36 * d * d;
    }
  return {mean, variance};
}

TEST(AdvantageSpread, LineBetsPerRollAgreeWithTheMarkovChain) {
  for (bool odd : {false, true}) {
    Table t;
    if (odd) {
      t.g.Payoff[bet::Come(5)] = {8, -1, 5};
      t.g.Payoff[bet::DontCome(10)] = {3, -1, 4};
      t.g.Payoff[bet::kCome] = {11, -1, 10};
      t.g.BarNumber = 2;
    }
    for (int id : {bet::kPassLine, bet::kDontPass}) {
      const ChainFigures chain = Chain(t.g, id == bet::kPassLine);
      const Advantage a = FigureAdvantage(t.g, id);
      EXPECT_NEAR(a.EvPerRoll, chain.mean, 1e-12) << id << (odd ? " odd payoffs" : "");
      EXPECT_NEAR(a.VarPerRoll, chain.variance, 1e-12) << id << (odd ? " odd payoffs" : "");
    }
  }
}

}  // namespace
