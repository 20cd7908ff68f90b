#include "bench/stopwatch.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace bench {
namespace {

double MedianOf(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

Pair MeasurePair(int runs, const std::function<double()>& ours, const std::function<double()>& reference) {
  std::vector<double> first;
  std::vector<double> second;
  for (int run = 0; run <= runs; ++run) {
    const double a = ours();
    const double b = reference();
    if (run == 0) continue;  // the first round warms up
    first.push_back(a);
    second.push_back(b);
  }
  return {MedianOf(first), MedianOf(second)};
}

double Median(int runs, const std::function<double()>& work) {
  std::vector<double> values;
  for (int run = 0; run < runs; ++run) values.push_back(work());
  return MedianOf(values);
}

double Time(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

ChildCost InChild(const std::function<void()>& work) {
  std::fflush(stdout);
  const pid_t child = fork();
  if (child == 0) {
    work();
    std::fflush(stdout);
    _exit(0);
  }
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) return {};
  const auto milliseconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
  };
  return {static_cast<double>(usage.ru_maxrss) / 1024, milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime)};
}

ChildCost OfProgram(const std::string& program, const std::string& commandLine) {
  return InChild([&] {
    const std::string command = "exec " + program + " " + commandLine;
    execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  });
}

void PrintHeading() {
  std::printf("| measurement | figure | limit | | detail |\n|---|---|---|---|---|\n");
}

void PrintRow(const std::string& what, double figure, double limit, const std::string& unit, const std::string& detail) {
  const char* verdict = figure < 0 ? "failed" : figure <= limit ? "holds" : "over";
  std::printf("| %s | %.2f %s | %.2f %s | %s | %s |\n", what.c_str(), figure, unit.c_str(), limit, unit.c_str(), verdict,
              detail.c_str());
  std::fflush(stdout);
}

}  // namespace bench
