#pragma once

// Runs the registered benchmarks interleaved, in one process, and prints for every pair of names
// "subject/..." and "baseline/..." the ratio of their medians.

#include <string>
#include <vector>

struct RatioGoal {
  std::string subject;   ///< Name of a registered benchmark.
  std::string baseline;  ///< Name of the one it is compared with.
  double goal = 0;       ///< Greatest ratio aimed at; 0 where the ratio is only reported.
};

/// Returns an exit status: 0 when all benchmarks ran. Goals are printed, never enforced.
int RunAndPrintRatios(int argc, char** argv, const std::vector<RatioGoal>& goals);
