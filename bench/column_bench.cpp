// What reshaping a long report costs without a load: columns added, inserted, deleted and dragged, another
// field chosen. A report of 15 columns, the first two group factors with a subtotal every five records, one
// plain column written by a host; against the same steps on 1,000 records.
//
//   column_bench [--rows N] [--runs N]

#include "zkp_grid.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zkp::bench {

namespace {

constexpr int kColumns = 15;
constexpr int kWritten = 8; // the column whose cells have texts of their own
constexpr int kSmall = 1'000;

void makeTables(ado::Connection& connection, int rows) {
    connection.Execute(
        QStringLiteral("create table NUMBERS as with recursive n(i) as (select 0 union all select "
                       "i + 1 from n where i < %1) select i from n")
            .arg(rows - 1));
    connection.Execute(
        QStringLiteral("create table CLMNS (dtfld text, Cptn text, wdth money, isgroup bit, isTot "
                       "bit, Algn integer, visbl integer, IsPublic integer)"));
    connection.Execute(QStringLiteral("insert into CLMNS values ('f5', 'Πέμπτο', 1000, 0, 0, 0, 1, 1), "
                                      "('f6', 'Έκτο', 1000, 0, 0, 0, 1, 1)"));
}

QString statement() {
    QString text = QStringLiteral("select i / 100 as f0, i / 5 as f1, cast(i as money) as f2");
    for (int c = 3; c < kColumns; ++c)
        text += QStringLiteral(", i % %1 as f%2").arg(100 * c).arg(c);
    return text + QStringLiteral(" from NUMBERS");
}

std::unique_ptr<ZkpGrid> makeReport(int rows) {
    auto connection = std::make_shared<ado::Connection>();
    connection->Open(QStringLiteral("sqlite:"));
    makeTables(*connection, rows);
    auto grid = std::make_unique<ZkpGrid>();
    grid->setclmns(QStringLiteral("CLMNS"));
    grid->setCols(kColumns);
    for (int c = 0; c < kColumns; ++c) {
        grid->setColDataField(c, QStringLiteral("f%1").arg(c));
        grid->setColCaption(c, QStringLiteral("f%1").arg(c));
        grid->setColForTot(c, c < 2);
    }
    grid->setColTotals(2, true);
    grid->MSFlexGrid1().setVisibleRows(41);
    grid->Fill(connection, statement(), ZKP_SQLStatement);
    grid->refresh();
    for (int row = 1; row < grid->Rows(); ++row)
        grid->MSFlexGrid1().setTextMatrix(row, kWritten, QStringLiteral("κείμενο %1").arg(row % 1000));
    return grid;
}

struct Step {
    const char* title;
    std::function<void(ZkpGrid&)> prepare; ///< not measured
    std::function<void(ZkpGrid&)> run;
};

/// Each leaves the columns as many as it found them, or the next one brings them back.
std::vector<Step> steps() {
    const auto none = [](ZkpGrid&) {};
    const auto press = [](int col) {
        return [col](ZkpGrid& grid) { grid.MSFlexGrid1().userPress({1, 0, 0, 0, 1, col}); };
    };
    const auto drop = [](int from, int to) {
        return [from, to](ZkpGrid& grid) { grid.MSFlexGrid1().userDrop(from, to); };
    };
    const auto remove = [](ZkpGrid& grid) { grid.mnuDelete_Click(); };
    return {
        {"add a column", none, [](ZkpGrid& grid) { grid.mnuAddColumn_Click(); }},
        {"delete it", none, remove},
        {"insert a column", press(5), [](ZkpGrid& grid) { grid.mnuInsert_Click(); }},
        {"delete it", press(5), remove},
        {"insert a factor", press(1), [](ZkpGrid& grid) { grid.mnuInsertOmadopoihsh_Click(); }},
        {"delete it", press(1), remove},
        {"drag a column forwards", none, drop(3, 12)},
        {"and back", none, drop(12, 3)},
        {"choose a field", press(10),
         [](ZkpGrid& grid) {
             const bool first = grid.ColDataField(10) != QStringLiteral("f6");
             grid.Picture1().changeList(u"mnuField", first ? 1 : 0);
         }},
        {"delete a written column", press(kWritten), remove},
        {"delete a column of the load", press(4), remove},
    };
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Milliseconds of each step, the median of some reports.
std::vector<double> measure(int rows, int runs) {
    const std::vector<Step> all = steps();
    std::vector<std::vector<double>> times(all.size());
    for (int run = 0; run < runs; ++run) {
        const auto grid = makeReport(rows);
        grid->setRefreshOnChange(false);
        for (std::size_t i = 0; i < all.size(); ++i) {
            all[i].prepare(*grid);
            const auto start = std::chrono::steady_clock::now();
            all[i].run(*grid);
            times[i].push_back(
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
        }
    }
    std::vector<double> medians;
    for (const auto& each : times)
        medians.push_back(median(each));
    return medians;
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
    const int runs = std::max(1, option(argc, argv, "--runs", 3));
    const std::vector<double> few = measure(kSmall, runs);
    const std::vector<double> many = measure(rows, runs);
    const auto all = steps();
    for (std::size_t i = 0; i < all.size(); ++i)
        std::printf("%-28s %9.3f ms at %d records, %9.3f ms at %d: %.1f x\n", all[i].title, few[i], kSmall,
                    many[i], rows, many[i] / few[i]);
    return 0;
}
