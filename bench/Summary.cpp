#include "bench/Summary.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <limits>
#include <ostream>

namespace tessaly::bench {
namespace {

constexpr int kNameWidth = 60;
constexpr int kColumnWidth = 12;

bool isLimit(const std::string& name) { return name.rfind("limit: ", 0) == 0; }

/// Processor time, unless the benchmark takes its times itself or asks for real time.
double timeOf(const benchmark::BenchmarkReporter::Run& run) {
  return run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime();
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
      auto& timesByName = timesByGroup_[name.substr(0, slash)];
      if (run.counters.empty()) timesByName[name.substr(slash + 1)].push_back(timeOf(run));
      for (const auto& [counter, time] : run.counters) timesByName[counter].push_back(time);
    }
  }
}

void Summary::Finalize() {
  for (const auto& [group, timesByName] : timesByGroup_) {
    std::vector<Row> rows;
    for (const auto& [name, times] : timesByName) rows.push_back(rowOf(name, times));
    for (const Row& row : rows) medians_[group + '/' + row.name] = row.median;
    print(group, std::move(rows));
  }
  if (!goals_.empty()) printGoals();
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

/// A goal whose benchmarks did not run is left out.
void Summary::printGoals() {
  std::ostream& out = GetOutputStream();
  out << '\n' << std::left << std::setw(kNameWidth) << "goal" << std::right;
  out << std::setw(kColumnWidth) << "ratio" << std::setw(kColumnWidth) << "at most" << '\n';
  for (const Goal& goal : goals_) {
    const double base = baseOf(goal);
    const auto row = medians_.find(goal.row);
    if (row == medians_.end() || !std::isfinite(base)) continue;
    const double ratio = row->second / base;
    out << "  " << std::left << std::setw(kNameWidth - 2) << goal.what << std::right << std::setprecision(3);
    out << std::setw(kColumnWidth) << ratio << std::setw(kColumnWidth) << goal.atMost;
    out << (ratio <= goal.atMost ? "   reached\n" : "   missed\n");
  }
}

double Summary::baseOf(const Goal& goal) const {
  if (goal.others.empty()) return 1;
  double base = std::numeric_limits<double>::infinity();
  for (const std::string& other : goal.others) {
    if (const auto found = medians_.find(other); found != medians_.end())
      base = std::min(base, found->second);
  }
  return base;
}

}  // namespace tessaly::bench
