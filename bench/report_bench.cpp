// The whole road of a plain report: `Fill` and `refresh` of a table of ten columns against a raw loop
// that steps through the same statement and touches every value. Each measurement is a process of its
// own, timed from its start to its end; its peak memory is counted above that of a process that does
// nothing.
//
//   report_bench [--rows N] [--runs N]

#include "report_data.h"

#include "ado/connection.h"
#include "zkp_grid.h"

#include <QLocale>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

namespace zkp::bench {

namespace {

constexpr int kColumns = 10;
constexpr const char* kFields[kColumns] = {"POLICYNO", "CUSTOMER", "BRANCH", "PRODUCT", "CITY",
                                           "AGENT",    "NET",      "TAX",    "PREMIUM", "INSTALMENTS"};
const std::string kPlain = "SELECT * FROM POLICIES";
const std::string kOrdered = "SELECT * FROM POLICIES ORDER BY BRANCH, CUSTOMER";

// What a measured process does.

int refreshReport(const std::string& file, const std::string& statement) {
    const auto connection = std::make_shared<ado::Connection>();
    connection->Open(QStringLiteral("sqlite:") + QString::fromStdString(file));
    ZkpGrid grid;
    grid.setLocale(QLocale(QLocale::Greek, QLocale::Greece));
    grid.setCommandTimeout(0);
    grid.setCols(kColumns);
    for (int c = 0; c < kColumns; ++c)
        grid.setColDataField(c, QLatin1String(kFields[c]));
    grid.Fill(connection, QString::fromStdString(statement), ZKP_SQLStatement);
    grid.refresh();
    // Something of the last row is looked at, so that a load that read nothing can't pass for a fast one.
    const int last = grid.Rows() - 1;
    const bool isRead = last == static_cast<int>(grid.RecCount()) && !grid.TextMatrix(last, 0).isEmpty() &&
                        !grid.TextMatrix(last, kColumns - 1).isEmpty();
    if (!isRead)
        std::fprintf(stderr, "report_bench: the report was not read\n");
    return isRead ? 0 : 1;
}

double peakBytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            return std::strtod(line.c_str() + 6, nullptr) * 1024;
    return 0;
}

int measuredProcess(const std::string& what, const std::string& file, const std::string& statement) {
    int failed = 0;
    if (what == "raw")
        failed = readEveryValue(file, statement) == 0;
    else if (what == "grid")
        failed = refreshReport(file, statement);
    std::printf("%.0f\n", peakBytes());
    return failed;
}

// What the measuring process does.

struct Sample {
    double seconds = 0;
    double processor = 0; ///< seconds of processor time, which other programs disturb less
    double peak = 0;      ///< bytes
};

double inSeconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

Sample sample(const char* what, const std::string& file = {}, const std::string& statement = {}) {
    int ends[2];
    if (pipe(ends) != 0)
        std::exit(1);
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        execl("/proc/self/exe", "report_bench", "--measure", what, file.c_str(), statement.c_str(), nullptr);
        _exit(127);
    }
    close(ends[1]);
    char words[64] = {};
    const ssize_t length = read(ends[0], words, sizeof words - 1);
    close(ends[0]);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    if (status != 0 || length <= 0) {
        std::fprintf(stderr, "report_bench: the measurement %s failed\n", what);
        std::exit(1);
    }
    return {elapsed.count(), inSeconds(usage.ru_utime) + inSeconds(usage.ru_stime),
            std::strtod(words, nullptr)};
}

double median(const std::vector<Sample>& samples, double Sample::*value) {
    std::vector<double> values;
    for (const Sample& each : samples)
        values.push_back(each.*value);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Medians of the raw loop and of the report over one file, measured in turn.
struct Pair {
    Sample raw;
    Sample grid;
};

Sample medians(const std::vector<Sample>& samples) {
    return {median(samples, &Sample::seconds), median(samples, &Sample::processor),
            median(samples, &Sample::peak)};
}

Pair measure(const std::string& file, const std::string& statement, int runs) {
    std::vector<Sample> raw;
    std::vector<Sample> grid;
    for (int run = 0; run < runs; ++run) {
        raw.push_back(sample("raw", file, statement));
        grid.push_back(sample("grid", file, statement));
    }
    return {medians(raw), medians(grid)};
}

void report(const char* title, const Pair& small, const Pair& large, double emptyPeak, int rows) {
    const auto ratio = [&](double Sample::*value) { return large.grid.*value / (large.raw.*value); };
    const auto growth = [&](double Sample::*value) {
        return (large.grid.*value / (small.grid.*value)) / (large.raw.*value / (small.raw.*value));
    };
    std::printf("%s\n", title);
    std::printf("  raw loop %.3f s (processor %.3f), report %.3f s (processor %.3f)\n", large.raw.seconds,
                large.raw.processor, large.grid.seconds, large.grid.processor);
    std::printf("  report / raw loop: %.2f (processor %.2f)\n", ratio(&Sample::seconds),
                ratio(&Sample::processor));
    std::printf("  growth from %d rows, report / raw loop: %.2f (processor %.2f)\n", rows / 10,
                growth(&Sample::seconds), growth(&Sample::processor));
    std::printf("  peak memory above an empty process: %.1f bytes a cell\n",
                (large.grid.peak - emptyPeak) / (static_cast<double>(rows) * kColumns));
}

int option(int argc, char** argv, const char* name, int standard) {
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], name) == 0)
            return std::atoi(argv[i + 1]);
    return standard;
}

int measureAll(int rows, int runs) {
    const QTemporaryDir folder;
    const std::string small = folder.filePath(QStringLiteral("small.db")).toStdString();
    const std::string large = folder.filePath(QStringLiteral("large.db")).toStdString();
    makeReportDatabase(small, rows / 10);
    makeReportDatabase(large, rows);

    std::printf("%d rows, %d columns, medians of %d runs\n", rows, kColumns, runs);
    std::fflush(stdout);
    const double emptyPeak = sample("nothing").peak;
    report("ORDER BY two texts", measure(small, kOrdered, runs), measure(large, kOrdered, runs), emptyPeak,
           rows);
    report("no ORDER BY", measure(small, kPlain, runs), measure(large, kPlain, runs), emptyPeak, rows);
    return 0;
}

} // namespace

} // namespace zkp::bench

int main(int argc, char** argv) {
    using namespace zkp::bench;
    if (argc == 5 && std::strcmp(argv[1], "--measure") == 0)
        return measuredProcess(argv[2], argv[3], argv[4]);
    return measureAll(std::max(10, option(argc, argv, "--rows", 1'000'000)),
                      std::max(1, option(argc, argv, "--runs", 5)));
}
