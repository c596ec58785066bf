#include "measured_process.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>

namespace zkp::bench {

namespace {

double peakBytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            return std::strtod(line.c_str() + 6, nullptr) * 1024;
    return 0;
}

double inSeconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Becomes this program again; its output, which is its peak memory, goes to `output`.
[[noreturn]] void becomeMeasured(const Words& words, int output) {
    dup2(output, STDOUT_FILENO);
    std::vector<std::string> arguments{program_invocation_short_name, "--measure"};
    arguments.insert(arguments.end(), words.begin(), words.end());
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    execv("/proc/self/exe", pointers.data());
    _exit(127);
}

double median(const std::vector<Sample>& samples, double Sample::*value) {
    std::vector<double> values;
    for (const Sample& each : samples)
        values.push_back(each.*value);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

int option(int argc, char** argv, const char* name, int standard) {
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], name) == 0)
            return std::atoi(argv[i + 1]);
    return standard;
}

} // namespace

Sample measure(const Words& words) {
    int ends[2];
    if (pipe(ends) != 0)
        std::exit(1);
    std::fflush(stdout);
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        becomeMeasured(words, ends[1]);
    }
    close(ends[1]);
    char peak[64] = {};
    const ssize_t length = read(ends[0], peak, sizeof peak - 1);
    close(ends[0]);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    if (status != 0 || length <= 0) {
        std::fprintf(stderr, "%s: the measurement %s failed\n", program_invocation_short_name,
                     words.front().c_str());
        std::exit(1);
    }
    return {elapsed.count(), inSeconds(usage.ru_utime) + inSeconds(usage.ru_stime),
            std::strtod(peak, nullptr)};
}

Sample medians(const std::vector<Sample>& samples) {
    return {median(samples, &Sample::seconds), median(samples, &Sample::processor),
            median(samples, &Sample::peak)};
}

Ratio operator/(const Sample& sample, const Sample& yardstick) {
    return {sample.seconds / yardstick.seconds, sample.processor / yardstick.processor};
}

Ratio operator/(const Ratio& ratio, const Ratio& other) {
    return {ratio.seconds / other.seconds, ratio.processor / other.processor};
}

int benchMain(int argc, char** argv, const std::function<int(const Words&)>& work,
              const std::function<void(int rows, int runs)>& measureAll) {
    if (argc > 2 && std::strcmp(argv[1], "--measure") == 0) {
        const int failed = work(Words(argv + 2, argv + argc));
        std::printf("%.0f\n", peakBytes());
        return failed;
    }
    measureAll(std::max(10, option(argc, argv, "--rows", 1'000'000)),
               std::max(1, option(argc, argv, "--runs", 5)));
    return 0;
}

} // namespace zkp::bench
