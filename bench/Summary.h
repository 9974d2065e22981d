#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace tessaly::bench {

/// What a ratio of two times is to keep to, or without others a time in nanoseconds. Benchmarks are named in
/// full; of several others the quickest counts.
struct Goal {
  std::string what;
  std::string row;
  std::vector<std::string> others;
  double atMost = 1;
};

/// Prints one table at the end: each benchmark's median and least time over all repetitions, and how many
/// times its group's limit that is; then which goals were reached. A benchmark is named "group/name", the
/// limit "group/limit: name". Times are processor times, but for benchmarks that ask for another.
/// One that has counters measured several at once: each counter is a time in nanoseconds of a benchmark by
/// its name.
class Summary : public benchmark::BenchmarkReporter {
 public:
  explicit Summary(std::vector<Goal> goals = {}) : goals_(std::move(goals)) {}

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  struct Row {
    std::string name;
    double median = 0;
    double least = 0;
  };

  static Row rowOf(const std::string& name, std::vector<double> times);
  void print(const std::string& group, std::vector<Row> rows);
  void printGoals();
  double baseOf(const Goal& goal) const;

  std::vector<Goal> goals_;
  std::map<std::string, std::map<std::string, std::vector<double>>> timesByGroup_;
  std::map<std::string, double> medians_;
};

}  // namespace tessaly::bench
