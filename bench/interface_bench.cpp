// What painting by section costs on a long report with 41 rows in sight, against the same on 1,000
// rows: every fifth row is a subtotal, two columns are group factors, the current row is marked.
//
// Then what the menus cost that follow the current column, with a list of 500 fields, against copying
// the fields' captions alone.
//
//   interface_bench [--rows N] [--runs N]

#include "core/stat_field.h"
#include "zkp_grid.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <vector>

namespace zkp::bench {

namespace {

constexpr int kColumns = 10;
constexpr int kPageRows = 41;
constexpr int kPaints = 200;
constexpr int kSmall = 1'000;
constexpr int kFields = 500;
constexpr int kRefreshes = 2'000;

std::unique_ptr<ZkpGrid> makeReport(int rows, int factors) {
    auto grid = std::make_unique<ZkpGrid>();
    grid->setSourceType(ZKP_RecordSet);
    grid->setRecordSource(QVariant::fromValue(std::make_shared<ado::Recordset>()));
    grid->setCols(kColumns);
    for (int c = 0; c < factors; ++c)
        grid->setColForTot(c, true);
    grid->CheckGroupBy();
    GridSurface& surface = grid->MSFlexGrid1();
    surface.setVisibleRows(kPageRows);
    surface.setRows(rows + 1);
    for (int row = 1; row <= rows; ++row) {
        surface.setRowData(row, row % 5 == 0 ? ZKPSubTotals : ZKPSingleRow);
        surface.setTextMatrix(row, 0, QStringLiteral("Παπαδόπουλος"));
    }
    grid->setRowSelect(true);
    grid->setRow(rows / 2);
    return grid;
}

/// Seconds of processor time for pages one after the other, from the middle of the report on.
double paintPages(ZkpGrid& grid) {
    GridSurface& surface = grid.MSFlexGrid1();
    const int rows = surface.Rows() - 1;
    int top = rows / 2;
    const std::clock_t start = std::clock();
    for (int i = 0; i < kPaints; ++i) {
        surface.setTopRow(top); // a scroll, which paints
        top = top + 2 * kPageRows > rows ? 1 : top + kPageRows;
    }
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void measure(const char* title, int factors, int rows, int runs) {
    const auto small = makeReport(kSmall, factors);
    const auto large = makeReport(rows, factors);
    std::vector<double> few;
    std::vector<double> many;
    for (int run = 0; run < runs; ++run) {
        few.push_back(paintPages(*small));
        many.push_back(paintPages(*large));
    }
    std::printf("%s: %.1f us at %d rows, %.1f us at %d rows: %.2f x\n", title, median(few) / kPaints * 1e6,
                kSmall, median(many) / kPaints * 1e6, rows, median(many) / median(few));
}

/// A report of four columns, the first a group factor, whose dictionary has 500 fields.
std::unique_ptr<ZkpGrid> makeFieldReport() {
    auto connection = std::make_shared<ado::Connection>();
    connection->Open(QStringLiteral("sqlite:"));
    connection->Execute(
        QStringLiteral("create table CLMNS (dtfld text, Cptn text, wdth integer, Algn integer, "
                       "isgroup integer, isTot integer, visbl integer, IsPublic integer)"));
    for (int i = 0; i < kFields; ++i)
        connection->Execute(
            QStringLiteral("insert into CLMNS values ('FIELD%1', 'Στοιχείο συμβολαίου %1', 1000, "
                           "0, %2, 0, 1, 1)")
                .arg(i)
                .arg(i % 2));
    auto grid = std::make_unique<ZkpGrid>();
    grid->setCn(connection);
    grid->setclmns(QStringLiteral("CLMNS"));
    grid->setCols(4);
    for (int c = 0; c < 4; ++c)
        grid->setColDataField(c, QStringLiteral("FIELD%1").arg(c * 100 + 1));
    grid->setColForTot(0, true);
    grid->CheckGroupBy();
    grid->LoadDictionary();
    return grid;
}

/// Seconds of processor time for the menus alone, from a group factor to a plain column and back.
double refreshMenus(ZkpGrid& grid) {
    GridSurface& surface = grid.MSFlexGrid1();
    const auto silent = surface.notifications;
    surface.notifications = {};
    const std::clock_t start = std::clock();
    for (int i = 0; i < kRefreshes; ++i) {
        surface.setCol(i % 2);
        grid.MenuRefresh();
    }
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    surface.notifications = silent;
    return seconds;
}

/// The raw loop beside it.
double copyCaptions() {
    QStringList captions;
    const std::clock_t start = std::clock();
    for (int i = 0; i < kRefreshes; ++i) {
        captions.clear();
        for (int entry = 1; entry <= statFields().Count(); ++entry)
            captions.append(statFields().Item(entry).Caption);
    }
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void measureMenus(int runs) {
    const auto grid = makeFieldReport();
    std::vector<double> refreshed;
    std::vector<double> copied;
    for (int run = 0; run < runs; ++run) {
        refreshed.push_back(refreshMenus(*grid));
        copied.push_back(copyCaptions());
    }
    std::printf("menus with %d fields: %.1f us a column, %.1f us for copying the captions: %.2f x\n", kFields,
                median(refreshed) / kRefreshes * 1e6, median(copied) / kRefreshes * 1e6,
                median(refreshed) / median(copied));
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
    const int rows = std::max(kSmall, option(argc, argv, "--rows", 1'000'000));
    const int runs = std::max(1, option(argc, argv, "--runs", 5));
    measure("a page of a plain report", 0, rows, runs);
    measure("a page of a report with two factors", 2, rows, runs);
    measureMenus(runs);
    return 0;
}
