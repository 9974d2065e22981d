#include "bench/Summary.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

namespace tessaly::bench {
namespace {

constexpr int kNameWidth = 44;
constexpr int kColumnWidth = 12;

bool isLimit(const std::string& name) { return name.rfind("limit: ", 0) == 0; }

/// Processor time; a benchmark that takes its times itself reports them as real time.
double timeOf(const benchmark::BenchmarkReporter::Run& run) {
  return run.run_name.time_type == "manual_time" ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
}

}  // namespace

bool Summary::ReportContext(const Context& context) {
  PrintBasicContext(&GetErrorStream(), context);
  return true;
}

void Summary::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.error_occurred) {
      GetErrorStream() << run.benchmark_name() << ": " << run.error_message << '\n';
    } else if (run.run_type == Run::RT_Iteration) {
      const std::string& name = run.run_name.function_name;
      const auto slash = name.find('/');
      timesByGroup_[name.substr(0, slash)][name.substr(slash + 1)].push_back(timeOf(run));
    }
  }
}

void Summary::Finalize() {
  for (const auto& [group, timesByName] : timesByGroup_) {
    std::vector<Row> rows;
    for (const auto& [name, times] : timesByName) rows.push_back(rowOf(name, times));
    print(group, std::move(rows));
  }
}

Summary::Row Summary::rowOf(const std::string& name, std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return {name, times[times.size() / 2], times.front()};
}

void Summary::print(const std::string& group, std::vector<Row> rows) {
  std::sort(rows.begin(), rows.end(), [](const Row& left, const Row& right) {
    if (isLimit(left.name) != isLimit(right.name)) return isLimit(left.name);
    return left.median < right.median;
  });
  const Row& limit = rows.front();
  std::ostream& out = GetOutputStream();
  const auto column = [](std::ostream& to) -> std::ostream& { return to << std::setw(kColumnWidth); };
  out << '\n' << std::left << std::setw(kNameWidth) << group << std::right << std::fixed;
  out << column << "median ns" << column << "least ns" << column << "of medians" << column << "of least\n";
  for (const Row& row : rows) {
    out << "  " << std::left << std::setw(kNameWidth - 2) << row.name << std::right << std::setprecision(1);
    out << column << row.median << column << row.least << std::setprecision(2);
    out << column << row.median / limit.median << column << row.least / limit.least << '\n';
  }
}

}  // namespace tessaly::bench
