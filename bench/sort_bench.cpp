// Sorting a loaded report in place against std::stable_sort of the same keys, prepared by hand, in the
// same run: texts in the Greek order (collation keys) and amounts (numbers). Every sort starts from the
// order of the load, in which the records stand behind one another, or from the order of another sort.
//
//   sort_bench [--rows N] [--runs N]

#include "report_data.h"

#include "ado/connection.h"
#include "zkp_grid.h"

#include <QCollator>
#include <QLocale>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <numeric>
#include <vector>

namespace zkp::bench {

namespace {

const QLocale kGreek(QLocale::Greek, QLocale::Greece);
constexpr int kPolicyNo = 0, kCustomer = 1, kBranch = 2, kNet = 6, kPosition = 10;
constexpr const char* kFields[] = {"POLICYNO", "CUSTOMER", "BRANCH", "PRODUCT", "CITY",
                                   "AGENT",    "NET",      "TAX",    "PREMIUM", "INSTALMENTS"};

/// Processor time, which other programs disturb less.
double now() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

double seconds(const std::function<void()>& work) {
    const double start = now();
    work();
    return now() - start;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// A loaded report of ten columns and one for the position, which no record has.
class Report {
public:
    explicit Report(int rows) {
        const QString file = folder_.filePath(QStringLiteral("report.db"));
        makeReportDatabase(file.toStdString(), rows);
        const auto connection = std::make_shared<ado::Connection>();
        connection->Open(QStringLiteral("sqlite:") + file);
        grid.setLocale(kGreek);
        grid.setCommandTimeout(0);
        grid.setCols(kPosition + 1);
        for (int c = 0; c < kPosition; ++c)
            grid.setColDataField(c, QLatin1String(kFields[c]));
        grid.setColDataField(kPosition, {});
        grid.Fill(connection, QStringLiteral("SELECT * FROM POLICIES"), ZKP_SQLStatement);
        grid.refresh();
    }

    void select(int column) { grid.MSFlexGrid1().Select(1, column, grid.Rows() - 1, column); }

    ZkpGrid grid;

private:
    QTemporaryDir folder_;
};

/// What one column costs to sort: the report, and the yardstick with and without making its keys.
struct Figures {
    double grid = 0;
    double sort = 0;
    double prepared = 0; ///< making the keys and sorting them
};

std::vector<QString> textsOf(const GridSurface& surface, int column) {
    std::vector<QString> texts;
    for (int r = 1; r < surface.Rows(); ++r)
        texts.push_back(surface.TextMatrix(r, column));
    return texts;
}

template <class Key, class MakeKey, class Less>
void measureYardstick(const std::vector<QString>& texts, MakeKey makeKey, Less less, Figures& figures) {
    std::vector<std::pair<Key, int>> keys;
    keys.reserve(texts.size());
    const double making = seconds([&] {
        for (const QString& text : texts)
            keys.emplace_back(makeKey(text), static_cast<int>(keys.size()));
    });
    figures.sort = seconds([&] { std::stable_sort(keys.begin(), keys.end(), less); });
    figures.prepared = making + figures.sort;
}

void yardstick(const std::vector<QString>& texts, int column, Figures& figures) {
    if (column == kNet) {
        const auto number = [](QString text) { return text.remove(u'.').replace(u',', u'.').toDouble(); };
        const auto less = [](const auto& a, const auto& b) { return a.first < b.first; };
        measureYardstick<double>(texts, number, less, figures);
        return;
    }
    QCollator collator(kGreek);
    measureYardstick<QCollatorSortKey>(
        texts, [&](const QString& text) { return collator.sortKey(text); },
        [](const auto& a, const auto& b) { return a.first.compare(b.first) < 0; }, figures);
}

Figures measure(Report& report, int column, int code, bool scattered, int runs) {
    std::vector<double> grid;
    std::vector<double> sort;
    std::vector<double> prepared;
    for (int run = 0; run < runs; ++run) {
        report.grid.FillGrid();
        if (scattered) {
            report.select(column == kCustomer ? kNet : kCustomer);
            report.grid.SortGrid(column == kCustomer ? kSortNumericUp : kSortTextUp);
        }
        report.select(column);
        const std::vector<QString> texts = textsOf(report.grid.MSFlexGrid1(), column);
        Figures figures;
        figures.grid = seconds([&] { report.grid.SortGrid(code); });
        yardstick(texts, column, figures);
        grid.push_back(figures.grid);
        sort.push_back(figures.sort);
        prepared.push_back(figures.prepared);
    }
    return {median(grid), median(sort), median(prepared)};
}

void print(const char* title, const Figures& small, const Figures& large) {
    const auto growth = [&](double Figures::*yardstick) {
        return large.grid / small.grid / (large.*yardstick / (small.*yardstick));
    };
    std::printf(
        "%-44s %7.1f ms, of prepared keys %7.1f ms: %.2f, growth %.2f; with keys made %7.1f ms: %.2f\n",
        title, large.grid * 1e3, large.sort * 1e3, large.grid / large.sort, growth(&Figures::sort),
        large.prepared * 1e3, large.grid / large.prepared);
    std::fflush(stdout);
}

/// `Sort` with its numbering, against the same without a column to number.
void printNumbering(Report& report, int runs) {
    const auto sorted = [&](bool numbered) {
        std::vector<double> times;
        for (int run = 0; run < runs; ++run) {
            report.grid.FillGrid();
            report.grid.setColcnt(kPosition, numbered);
            report.grid.setCol(kCustomer);
            times.push_back(seconds([&] { report.grid.Sort(kSortTextUp); }));
        }
        return median(times);
    };
    const double plain = sorted(false);
    const double numbered = sorted(true);
    std::printf("Sort %.1f ms, with a column to number %.1f ms\n", plain * 1e3, numbered * 1e3);
}

/// The custom sort in the control's own order: details by their text in groups of two factors.
double customSort(Report& report, int runs) {
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        report.grid.FillGrid();
        report.select(kCustomer);
        times.push_back(seconds([&] { report.grid.SortGrid(kSortCustom); }));
    }
    return median(times);
}

int measureAll(int rows, int runs) {
    Report small(rows / 10);
    Report large(rows);
    std::printf("%d rows, medians of %d runs; growth from %d rows over the yardstick's own\n", rows, runs,
                rows / 10);
    const struct {
        const char* title;
        int column;
        int code;
        bool scattered;
    } cases[] = {
        {"text, 6,000 different, without case", kCustomer, kSortTextBlindUp, false},
        {"text, 6,000 different, with case", kCustomer, kSortTextUp, false},
        {"text, 40 different, with case, descending", kBranch, kSortTextDown, false},
        {"text, all different, with case", kPolicyNo, kSortTextUp, false},
        {"amount", kNet, kSortNumericUp, false},
        {"amount, descending", kNet, kSortNumericDown, false},
        {"text, with case, rows scattered", kCustomer, kSortTextUp, true},
        {"amount, rows scattered", kNet, kSortNumericUp, true},
    };
    for (const auto& each : cases) {
        const Figures few = measure(small, each.column, each.code, each.scattered, runs);
        print(each.title, few, measure(large, each.column, each.code, each.scattered, runs));
    }
    const double few = customSort(small, runs);
    const double many = customSort(large, runs);
    std::printf("custom sort by a text %.1f ms, %.1f times that of a tenth of the rows\n", many * 1e3,
                many / few);
    printNumbering(large, runs);
    return 0;
}

int option(int argc, char** argv, const char* name, int standard) {
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], name) == 0)
            return std::atoi(argv[i + 1]);
    return standard;
}

} // namespace

} // namespace zkp::bench

int main(int argc, char** argv) {
    using namespace zkp::bench;
    return measureAll(std::max(100, option(argc, argv, "--rows", 1'000'000)),
                      std::max(1, option(argc, argv, "--runs", 5)));
}
