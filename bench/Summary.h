#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace tessaly::bench {

/// Prints one table at the end: each benchmark's median and least processor time over all repetitions, and
/// how many times its group's limit that is. A benchmark is named "group/name", the limit "group/limit:
/// name".
class Summary : public benchmark::BenchmarkReporter {
 public:
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

  std::map<std::string, std::map<std::string, std::vector<double>>> timesByGroup_;
};

}  // namespace tessaly::bench
