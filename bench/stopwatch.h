#pragma once

#include <functional>
#include <string>

namespace bench {

/// Medians of several runs of a piece of work and of what it is measured against, run in turn so that a drifting machine meets
/// both.
struct Pair {
  double ours = 0;       ///< milliseconds
  double reference = 0;  ///< milliseconds
  double Ratio() const { return ours / reference; }
};

/// Each function returns the milliseconds of the part that counts.
Pair MeasurePair(int runs, const std::function<double()>& ours, const std::function<double()>& reference);
double Median(int runs, const std::function<double()>& work);

/// Milliseconds of wall time that the work takes.
double Time(const std::function<void()>& work);

/// Runs the work in a child process; its peak resident memory in megabytes and its processor time in milliseconds. Negative when
/// it failed.
struct ChildCost {
  double peakMegabytes = -1;
  double processorMilliseconds = -1;
};
ChildCost InChild(const std::function<void()>& work);
ChildCost OfProgram(const std::string& program, const std::string& commandLine);

/// One row of the table: what, the figure with its unit, the limit, and whether it holds.
void PrintHeading();
void PrintRow(const std::string& what, double figure, double limit, const std::string& unit, const std::string& detail);

}  // namespace bench
