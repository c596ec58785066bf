// What group rows, totals and percentages cost: a plain report with two factors and four summed columns,
// with few and with many groups, against a raw loop that steps through the same statement and against the
// same report without sums; and a totals report by three factors with two percentage columns against the
// same without them. Growth is that from a tenth of the rows, over factors that make a tenth of the
// groups. Each measurement is a process of its own, which fails when its report did not come out right.
//
//   totals_bench [--rows N] [--runs N]

#include "measured_process.h"
#include "report_data.h"
#include "totals_data.h"

#include "ado/connection.h"
#include "ado/recordset.h"
#include "base/format.h"
#include "core/enums.h"
#include "zkp_grid.h"

#include <QLocale>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace zkp::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr int kVisibleRows = 41;
const QStringList kTexts{u"POLICYNO"_s, u"CUSTOMER"_s, u"BRANCH"_s, u"PRODUCT"_s, u"CITY"_s, u"AGENT"_s};
const QStringList kSummed{u"NET"_s, u"TAX"_s, u"PREMIUM"_s, u"INSTALMENTS"_s};

QLocale greek() {
    return QLocale(QLocale::Greek, QLocale::Greece);
}

ado::ConnectionPtr connect(const QString& file) {
    auto connection = std::make_shared<ado::Connection>();
    connection->setCommandTimeout(0);
    connection->Open(u"sqlite:"_s + file);
    return connection;
}

/// The words of a measured process.
struct Task {
    std::string what;
    QString file;
    QString factors; ///< joined by ", "; the plain reports are ordered by them
    int subtotals = 0;
    qint64 cents = 0; ///< all NET together

    explicit Task(const Words& words)
        : what(words.at(0))
        , file(QString::fromStdString(words.at(1)))
        , factors(QString::fromStdString(words.at(2)))
        , subtotals(std::stoi(words.at(3)))
        , cents(std::stoll(words.at(4))) {}
    QStringList factorList() const { return factors.split(u", "_s); }
    QString statement() const { return u"SELECT * FROM POLICIES ORDER BY "_s + factors; }
};

// What a measured process does.

void show(ZkpGrid& grid, const QStringList& columns) {
    grid.setLocale(greek());
    grid.setCommandTimeout(0);
    grid.MSFlexGrid1().setVisibleRows(kVisibleRows);
    grid.setCols(static_cast<int>(columns.size()));
    for (int c = 0; c < columns.size(); ++c)
        grid.setColDataField(c, columns[c]);
}

void require(bool holds, const char* what) {
    if (!holds)
        throw std::runtime_error(what);
}

/// Whether all rows are there and the last one shows the totals.
void checkTotals(const ZkpGrid& grid, const Task& task, int netColumn) {
    const int last = grid.Rows() - 1;
    require(grid.RowData(last) == ZKPTotals, "the last row is not that of the totals");
    require(last - static_cast<int>(grid.RecCount()) - 1 == task.subtotals, "the number of subtotal rows");
    const Currency net{task.cents * (Currency::kScale / 100)};
    require(grid.TextMatrix(last, netColumn) ==
                formatNumber(net, NumberFormat::Grouped2, ReportLocale(greek())),
            "the total");
}

void refreshPlain(const Task& task, bool sums) {
    QStringList columns = task.factorList();
    for (const QString& field : kTexts)
        if (!columns.contains(field))
            columns << field;
    const int firstSum = static_cast<int>(columns.size());
    columns << kSummed;

    ZkpGrid grid;
    show(grid, columns);
    for (int c = 0; sums && c < columns.size(); ++c) {
        grid.setColForTot(c, c < task.factorList().size());
        grid.setColTotals(c, c >= firstSum);
    }
    grid.Fill(connect(task.file), task.statement(), ZKP_SQLStatement);
    grid.refresh();
    if (sums)
        checkTotals(grid, task, firstSum);
    else
        require(grid.RecCount() > 0 && grid.Rows() == static_cast<int>(grid.RecCount()) + 1 &&
                    !grid.TextMatrix(grid.Rows() - 1, firstSum).isEmpty(),
                "the plain report");
}

/// The shares of the groups of the outermost factor, as their subtotal rows show them, make up the whole.
void checkShares(const ZkpGrid& grid, int shareColumn) {
    double shares = 0;
    for (int row = 1; row < grid.Rows() - 1; ++row) {
        const QString key = grid.TextMatrix(row, 1); // painted rows show a mark in place of the empty text
        if (grid.RowData(row) == ZKPSubTotals && (key.isEmpty() || key == u"----"))
            shares += greek().toDouble(grid.TextMatrix(row, shareColumn));
    }
    require(std::abs(shares - 100) < 0.1, "the shares");
}

void refreshTotals(const Task& task, bool percents) {
    QStringList columns = task.factorList();
    const int factors = static_cast<int>(columns.size());
    columns << u"SUM_NET"_s << u"SUM_PREMIUM"_s;
    if (percents)
        columns << u"POS_NET"_s << u"POS_PREMIUM"_s;

    ZkpGrid grid;
    show(grid, columns);
    for (int c = 0; c < columns.size(); ++c) {
        grid.setColForTot(c, c < factors);
        grid.setColTotals(c, columns[c].startsWith(u"SUM_"));
    }
    grid.setclmns(u"CLMNS"_s);
    grid.setTotalForm(true);
    grid.setSqlOnRunTime(true);
    grid.Fill(connect(task.file), u"POLICIES"_s, ZKP_Table_QUERY);
    grid.refresh();
    checkTotals(grid, task, factors);
    if (percents)
        checkShares(grid, factors + 2);
}

void perform(const Task& task) {
    if (task.what == "raw")
        require(readEveryValue(task.file.toStdString(), task.statement().toStdString()) != 0, "the raw loop");
    else if (task.what == "plain" || task.what == "sums")
        refreshPlain(task, task.what == "sums");
    else
        refreshTotals(task, task.what == "percents");
}

int measuredWork(const Words& words) {
    try {
        perform(Task(words));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "totals_bench: %s: not right: %s\n", words[0].c_str(), error.what());
        return 1;
    }
}

// What the measuring process does.

/// One report over one file.
class Report {
public:
    /// The innermost factor of a totals report has no subtotal row, so that both forms have rows for two.
    Report(const QString& file, const QString& factors)
        : file_(file)
        , factors_(factors) {
        const QStringList names = factors.split(u", "_s);
        const auto groups = [&](int levels) {
            return number(u"SELECT COUNT(*) AS N FROM (SELECT DISTINCT %1 FROM POLICIES)"_s.arg(
                QStringList(names.mid(0, levels)).join(u", "_s)));
        };
        subtotals_ = groups(1) + groups(2);
        details_ = groups(static_cast<int>(names.size()));
        cents_ = number(u"SELECT SUM(CAST(ROUND(NET * 100) AS INTEGER)) AS N FROM POLICIES"_s);
    }

    Sample run(const std::string& what) const {
        return measure({what, file_.toStdString(), factors_.toStdString(), std::to_string(subtotals_),
                        std::to_string(cents_)});
    }
    const QString& factors() const { return factors_; }
    qint64 subtotals() const { return subtotals_; }
    /// The groups of all factors together.
    qint64 groups() const { return details_; }

private:
    qint64 number(const QString& statement) const {
        return connect(file_)->Execute(statement)->Collect(u"N"_s).toLongLong();
    }

    QString file_;
    QString factors_;
    qint64 subtotals_ = 0;
    qint64 details_ = 0;
    qint64 cents_ = 0;
};

/// Medians of several measurements of one report, taken in turn.
std::vector<Sample> measureInTurn(const Report& report, const Words& kinds, int runs) {
    std::vector<std::vector<Sample>> samples(kinds.size());
    for (int run = 0; run < runs; ++run)
        for (std::size_t kind = 0; kind < kinds.size(); ++kind)
            samples[kind].push_back(report.run(kinds[kind]));
    std::vector<Sample> result;
    for (const std::vector<Sample>& each : samples)
        result.push_back(medians(each));
    return result;
}

void printRatio(const char* title, const Ratio& large, const Ratio& small, const char* bounds) {
    const Ratio growth = large / small;
    std::printf("  %s: %.2f (processor %.2f; %s), growth %.2f (processor %.2f; must 1.15)\n", title,
                large.seconds, large.processor, bounds, growth.seconds, growth.processor);
}

/// The last kind is what is measured; `bounds` are those against each of the kinds before it.
void compare(const Report& small, const Report& large, const Words& kinds,
             const std::vector<const char*>& bounds, int runs) {
    const std::vector<Sample> few = measureInTurn(small, kinds, runs);
    const std::vector<Sample> many = measureInTurn(large, kinds, runs);
    for (std::size_t kind = 0; kind < kinds.size(); ++kind)
        std::printf("  %s %.3f s (processor %.3f)\n", kinds[kind].c_str(), many[kind].seconds,
                    many[kind].processor);
    for (std::size_t kind = 0; kind < bounds.size(); ++kind)
        printRatio((kinds.back() + " / " + kinds[kind]).c_str(), many.back() / many[kind],
                   few.back() / few[kind], bounds[kind]);
}

void printTitle(const char* form, const Report& small, const Report& large) {
    std::printf("%s by %s: %lld groups, %lld subtotal rows (growth from %s: %lld groups)\n", form,
                qPrintable(large.factors()), large.groups(), large.subtotals(), qPrintable(small.factors()),
                small.groups());
}

void measureAll(int rows, int runs) {
    const QTemporaryDir folder;
    const QString small = folder.filePath(u"small.db"_s);
    const QString large = folder.filePath(u"large.db"_s);
    makeTotalsDatabase(small, rows / 10);
    makeTotalsDatabase(large, rows);
    std::printf("%d rows, medians of %d runs\n", rows, runs);

    const Report few[] = {{small, u"BRANCH, CITY"_s}, {large, u"CITY, AGENT"_s}};
    printTitle("plain report", few[0], few[1]);
    compare(few[0], few[1], {"raw", "plain", "sums"}, {"must 1.35, wanted 1.0", "must 1.12, wanted 1.06"},
            runs);
    const Report many[] = {{small, u"BRANCH, AGENT"_s}, {large, u"BRANCH, CUSTOMER"_s}};
    printTitle("plain report", many[0], many[1]);
    compare(many[0], many[1], {"plain", "sums"}, {"must 1.8, wanted 1.4"}, runs);
    const Report totals[] = {{small, u"PRODUCT, CITY, BRANCH"_s}, {large, u"PRODUCT, CITY, AGENT"_s}};
    printTitle("totals report", totals[0], totals[1]);
    compare(totals[0], totals[1], {"totals", "percents"}, {"must 2, wanted 1.2"}, runs);
}

} // namespace

} // namespace zkp::bench

int main(int argc, char** argv) {
    return zkp::bench::benchMain(argc, argv, zkp::bench::measuredWork, zkp::bench::measureAll);
}
