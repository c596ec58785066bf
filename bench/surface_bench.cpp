// What the surface does while a report loads and while it is looked at, against raw loops over the
// same data and against a small surface. --rows N: the size of the large one.

#include "store/column_builder.h"
#include "surface/grid_surface.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <random>
#include <string>

using namespace zkp;

namespace {

constexpr int kTexts = 6;
constexpr int kAmounts = 3;
constexpr int kColumns = kTexts + kAmounts + 1;
constexpr int kPageRows = 41;
constexpr int kInsertions = 100'000;
constexpr int kRuns = 5;

/// Seconds of processor time, which other programs on the machine disturb less than the clock.
template <class Step>
double seconds(Step step) {
    const std::clock_t start = std::clock();
    step();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// The middle of several runs; `prepare` isn't timed.
template <class Prepare, class Step>
double median(Prepare prepare, Step step) {
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        prepare();
        times.push_back(seconds(step));
    }
    std::sort(times.begin(), times.end());
    return times[kRuns / 2];
}

/// Six texts (names that repeat), three amounts and a number.
std::vector<CellBinding> makeReport(int rows) {
    std::mt19937 random(1);
    std::vector<CellBinding> bindings;
    for (int col = 0; col < kColumns; ++col) {
        store::ColumnBuilder builder;
        for (int row = 0; row < rows; ++row) {
            if (col < kTexts)
                builder.appendText("Παπαδόπουλος " + std::to_string(random() % 5000));
            else if (col < kTexts + kAmounts)
                builder.appendAmount({static_cast<std::int64_t>(random()) * 100});
            else
                builder.appendInteger(row);
        }
        const bool amount = col >= kTexts && col < kTexts + kAmounts;
        bindings.push_back({builder.finish(), amount ? CellFormat::Grouped2 : CellFormat::OwnText});
    }
    return bindings;
}

class Report {
public:
    explicit Report(int rows)
        : rows_(rows)
        , bindings_(makeReport(rows)) {
        surface.setLocale(ReportLocale(QLocale(QLocale::Greek, QLocale::Greece)));
        surface.setCols(kColumns);
        surface.setVisibleRows(kPageRows);
        surface.setRedraw(false);
    }
    void empty() {
        surface.setRows(1);
        surface.setRows(rows_ + 1);
        layout_ = surface.addLayout(bindings_);
    }
    void bindOneByOne() {
        for (int row = 0; row < rows_; ++row)
            surface.bindRow(row + 1, layout_, static_cast<std::uint32_t>(row), 1);
    }
    void bindAtOnce() { surface.bindRows(1, rows_, layout_, {}, 1); }
    /// The texts and styles of one page.
    qsizetype readPage(int top) {
        qsizetype characters = 0;
        for (int row = top; row < top + kPageRows; ++row)
            for (int col = 0; col < kColumns; ++col)
                characters += surface.TextMatrix(row, col).size() + surface.styleAt(row, col).fontName.size();
        return characters;
    }
    /// Pages one after the other, from the middle of the rows on.
    qsizetype scroll(int pages) {
        qsizetype characters = 0;
        int top = rows_ / 2;
        for (int page = 0; page < pages; ++page, top += kPageRows) {
            if (top + kPageRows > rows_)
                top = 1;
            characters += readPage(top);
        }
        return characters;
    }

    GridSurface surface;

private:
    int rows_;
    std::vector<CellBinding> bindings_;
    GridSurface::LayoutId layout_ = 0;
};

struct RawRow {
    std::uint32_t record;
    int tag;
    int layout;
};

void benchBinding(Report& report, int rows) {
    std::vector<RawRow> raw;
    const double rawTime = median([&] { raw = {}; },
                                  [&] {
                                      for (int row = 0; row < rows; ++row)
                                          raw.push_back({static_cast<std::uint32_t>(row), 1, 1});
                                  });
    const double one = median([&] { report.empty(); }, [&] { report.bindOneByOne(); });
    const double bulk = median([&] { report.empty(); }, [&] { report.bindAtOnce(); });
    const double drop =
        median([&] { report.empty(), report.bindAtOnce(); }, [&] { report.surface.setRows(1); });
    std::printf("bind %d rows one by one: %.1f ns a row, %.2f x a vector's push_back\n", rows,
                one / rows * 1e9, one / rawTime);
    std::printf("bind %d rows at once: %.1f ns a row, %.2f x a vector's push_back\n", rows, bulk / rows * 1e9,
                bulk / rawTime);
    std::printf("drop %d rows: %.2f ms, %.2f x a vector's push_back\n", rows, drop * 1e3, drop / rawTime);
}

/// Adds rows where the reader stands: each before the record bound last, with blanks behind it.
void benchAddItem(Report& report, int rows) {
    const int read = rows / 2;
    const auto prepare = [&] {
        report.empty();
        report.surface.bindRows(1, read, 1, {}, 1);
    };
    const auto add = [&] {
        for (int i = 0; i < kInsertions; ++i)
            report.surface.AddItem(QString(), read + i);
    };
    const double atEnd = median(prepare, add);
    const double totals = median(
        [&] {
            prepare();
            report.surface.setRowData(rows, 10); // the row of the grand totals is made first
        },
        add);
    const double middle = median([&] { report.empty(), report.bindAtOnce(); },
                                 [&] {
                                     for (int i = 0; i < kInsertions; ++i)
                                         report.surface.AddItem(QString(), 1 + i * (rows / kInsertions + 1));
                                 });
    std::printf("AddItem %d times at the end of what has been read, %d rows: %.4f s (at the most 0.3)\n",
                kInsertions, rows, atEnd);
    std::printf("the same with the last row written before: %.4f s\n", totals);
    std::printf("the same all over the rows: %.4f s\n", middle);
}

void benchPages(Report& report, int rows) {
    constexpr int kPages = 200;
    Report small(1000);
    small.empty();
    small.bindAtOnce();
    report.empty();
    report.bindAtOnce();
    qsizetype characters = 0;
    const auto nothing = [] {};
    const double few = median(nothing, [&] { characters += small.scroll(kPages); });
    const double many = median(nothing, [&] { characters += report.scroll(kPages); });
    std::printf(
        "a page of %d x %d texts and styles: %.1f us at 1000 rows, %.1f us at %d rows: %.2f x (%lld)\n",
        kPageRows, kColumns, few / kPages * 1e6, many / kPages * 1e6, rows, many / few,
        static_cast<long long>(characters));
}

void benchSort(Report& report, int rows) {
    for (const auto& [name, col, code] : {std::tuple{"texts", 0, static_cast<int>(kSortTextUp)},
                                          std::tuple{"amounts", kTexts, static_cast<int>(kSortNumericUp)}}) {
        const double time = seconds([&] {
            report.surface.Select(1, col, rows, col);
            report.surface.setSort(code);
        });
        std::printf("sort %d rows by %s: %.2f s\n", rows, name, time);
    }
}

} // namespace

int main(int argc, char** argv) {
    int rows = 1'000'000;
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], "--rows") == 0)
            rows = std::max(1000, std::atoi(argv[i + 1]));
    Report report(rows);
    benchBinding(report, rows);
    benchAddItem(report, rows);
    benchPages(report, rows);
    benchSort(report, rows);
    return 0;
}
