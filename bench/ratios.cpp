#include "ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>

namespace {

/// Keeps the real time of every single repetition by name, and prints as usual.
class CollectingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
        times_[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
      }
    }
  }

  double Median(const std::string& name) const {
    const auto found = times_.find(name);
    if (found == times_.end()) return 0;
    std::vector<double> times = found->second;
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
  }

 private:
  std::map<std::string, std::vector<double>> times_;
};

}  // namespace

int RunAndPrintRatios(int argc, char** argv, const std::vector<RatioGoal>& goals) {
  std::vector<char*> arguments(argv, argv + argc);
  std::string repetitions = "--benchmark_repetitions=9";
  std::string interleaving = "--benchmark_enable_random_interleaving=true";
  std::string shortest = "--benchmark_min_time=0.05";
  for (std::string* text : {&repetitions, &interleaving, &shortest}) {
    arguments.insert(arguments.begin() + 1, text->data());
  }
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  CollectingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);

  std::printf("\n%-44s %14s %14s %8s %8s\n", "", "median (us)", "baseline (us)", "ratio", "goal");
  for (const RatioGoal& goal : goals) {
    const double subject = reporter.Median(goal.subject);
    const double baseline = reporter.Median(goal.baseline);
    if (subject == 0 || baseline == 0) continue;
    const std::string label = goal.subject + " : " + goal.baseline;
    std::printf("%-44s %14.2f %14.2f %8.3f ", label.c_str(), subject / 1000, baseline / 1000,
                subject / baseline);
    if (goal.goal > 0) std::printf("%8.2f", goal.goal);
    std::printf("\n");
  }
  return 0;
}
