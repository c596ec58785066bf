// The whole road of a plain report: `Fill` and `refresh` of a table of ten columns against a raw loop
// that steps through the same statement and touches every value. Each measurement is a process of its
// own, timed from its start to its end; its peak memory is counted above that of a process that does
// nothing.
//
//   report_bench [--rows N] [--runs N]

#include "measured_process.h"
#include "report_data.h"

#include "ado/connection.h"
#include "zkp_grid.h"

#include <QLocale>
#include <QTemporaryDir>

#include <cstdio>
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
    grid.MSFlexGrid1().setVisibleRows(41); // as in a window
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

/// `what`, and a file and a statement when there is something to do.
int measuredWork(const Words& words) {
    const std::string& what = words[0];
    if (what == "raw")
        return readEveryValue(words.at(1), words.at(2)) == 0;
    return what == "grid" ? refreshReport(words.at(1), words.at(2)) : 0;
}

// What the measuring process does.

/// Medians of the raw loop and of the report over one file, measured in turn.
struct Pair {
    Sample raw;
    Sample grid;
};

Pair measurePair(const std::string& file, const std::string& statement, int runs) {
    std::vector<Sample> raw;
    std::vector<Sample> grid;
    for (int run = 0; run < runs; ++run) {
        raw.push_back(measure({"raw", file, statement}));
        grid.push_back(measure({"grid", file, statement}));
    }
    return {medians(raw), medians(grid)};
}

void report(const char* title, const Pair& small, const Pair& large, double emptyPeak, int rows) {
    const Ratio ratio = large.grid / large.raw;
    const Ratio growth = ratio / (small.grid / small.raw);
    std::printf("%s\n", title);
    std::printf("  raw loop %.3f s (processor %.3f), report %.3f s (processor %.3f)\n", large.raw.seconds,
                large.raw.processor, large.grid.seconds, large.grid.processor);
    std::printf("  report / raw loop: %.2f (processor %.2f)\n", ratio.seconds, ratio.processor);
    std::printf("  growth from %d rows, report / raw loop: %.2f (processor %.2f)\n", rows / 10,
                growth.seconds, growth.processor);
    std::printf("  peak memory above an empty process: %.1f bytes a cell\n",
                (large.grid.peak - emptyPeak) / (static_cast<double>(rows) * kColumns));
}

void measureAll(int rows, int runs) {
    const QTemporaryDir folder;
    const std::string small = folder.filePath(QStringLiteral("small.db")).toStdString();
    const std::string large = folder.filePath(QStringLiteral("large.db")).toStdString();
    makeReportDatabase(small, rows / 10);
    makeReportDatabase(large, rows);

    std::printf("%d rows, %d columns, medians of %d runs\n", rows, kColumns, runs);
    const double emptyPeak = measure({"nothing"}).peak;
    report("ORDER BY two texts", measurePair(small, kOrdered, runs), measurePair(large, kOrdered, runs),
           emptyPeak, rows);
    report("no ORDER BY", measurePair(small, kPlain, runs), measurePair(large, kPlain, runs), emptyPeak,
           rows);
}

} // namespace

} // namespace zkp::bench

int main(int argc, char** argv) {
    return zkp::bench::benchMain(argc, argv, zkp::bench::measuredWork, zkp::bench::measureAll);
}
