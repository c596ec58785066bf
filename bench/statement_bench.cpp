// What the statements cost before the database has to work: the building of one run-time statement of 30
// columns and 4 factors over a dictionary of 200 rows, the translation of a filter of 2,000 characters
// over one of 1,000 rows, and `refresh` of a totals report by two factors; the last against a bare loop
// that steps through the same statement.
//
//   statement_bench [--rows N] [--runs N]

#include "report_data.h"
#include "totals_data.h"

#include "ado/connection.h"
#include "ado/recordset.h"
#include "zkp_grid.h"

#include <QTemporaryDir>

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace zkp::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr int kTables = 6;
constexpr int kColumns = 30;
constexpr int kFactors = 4;

ado::ConnectionPtr connect(const QString& file) {
    auto connection = std::make_shared<ado::Connection>();
    connection->Open(u"sqlite:"_s + file);
    return connection;
}

/// Seconds of the clock and of the processor; other programs disturb the second one less.
struct Time {
    double clock = 0;
    double processor = 0;
};

double inSeconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

double processorSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return inSeconds(usage.ru_utime) + inSeconds(usage.ru_stime);
}

Time timeOf(const std::function<void()>& call) {
    const auto start = std::chrono::steady_clock::now();
    const double processor = processorSeconds();
    call();
    return {std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(),
            processorSeconds() - processor};
}

double median(const std::vector<Time>& times, double Time::*value) {
    std::vector<double> values;
    for (const Time& time : times)
        values.push_back(time.*value);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Time median(const std::vector<Time>& times) {
    return {median(times, &Time::clock), median(times, &Time::processor)};
}

QString key(int number) {
    return u"KEY%1"_s.arg(number, 4, 10, QLatin1Char('0'));
}

// The dictionary of a wide report.

/// A master table, tables joined to it, and a dictionary whose rows take turns with their fields; each
/// tenth one is calculated.
void makeDictionary(ado::Connection& connection, int rows) {
    connection.BeginTrans();
    connection.Execute(u"create table Reports (RecSource text primary key, MasterTable text, RKeyname text, "
                       "MasterFilter text)"_s);
    connection.Execute(u"insert into Reports values ('WIDEDATA', 'TABLE0', 'ID', null)"_s);
    connection.Execute(
        u"create table CLMNS (dtfld text, Cptn text, wdth integer, Algn smallint, isgroup bit, "
        "isTot bit, visbl integer, IsPublic integer, [Sum] bit, [Avg] bit, [Min] bit, "
        "[Max] bit, crosstabdate bit, SOURCEFIELDNAME text, SourceTableName text, Expr text, "
        "KeyMaster text, foreignkey text)"_s);
    for (int i = 0; i < rows; ++i) {
        const QString table = u"TABLE%1"_s.arg(i % kTables);
        const QString physical = i % 10 == 9 ? u"null, '%1', '([%1].[F%2] + 1)'"_s.arg(table).arg(i)
                                             : u"'F%2', '%1', null"_s.arg(table).arg(i);
        connection.Execute(
            u"insert into CLMNS values ('%1', 'Πεδίο %2', 1000, 1, 1, 0, 1, 1, 1, 1, 0, 0, 0, %3, 'ID', 'ID')"_s
                .arg(key(i))
                .arg(i)
                .arg(physical));
    }
    for (int t = 0; t < kTables; ++t) {
        QStringList fields{u"ID integer primary key"_s};
        for (int i = t; i < rows; i += kTables)
            fields << u"F%1 integer"_s.arg(i);
        connection.Execute(u"create table TABLE%1 (%2)"_s.arg(t).arg(fields.join(u", "_s)));
    }
    connection.Execute(u"create view WIDEDATA as select * from TABLE0"_s);
    connection.CommitTrans();
}

void setUpWide(ZkpGrid& grid, const ado::ConnectionPtr& connection) {
    grid.setCols(kColumns);
    for (int c = 0; c < kColumns; ++c) {
        grid.setColDataField(c, key(c * 6 + c % 5));
        grid.setColForTot(c, c < kFactors);
    }
    grid.setclmns(u"CLMNS"_s);
    grid.setSqlOnRunTime(true);
    grid.Fill(connection, u"WIDEDATA"_s, ZKP_Table_QUERY);
    grid.LoadDictionary();
    grid.MakeFixedForGroup();
}

void measureBuilding(int runs) {
    const auto connection = connect(u""_s);
    makeDictionary(*connection, 200);
    ZkpGrid grid;
    setUpWide(grid, connection);
    std::vector<Time> times;
    QString statement;
    for (int run = 0; run < runs; ++run) {
        grid.setFilter(u"%1>100 and (%2<50 or %3='Βόλος')"_s.arg(key(7), key(8), key(22)));
        times.push_back(timeOf([&] { statement = grid.RunTimeSQL(); }));
    }
    connection->Execute(statement); // it is one that the database takes
    const Time time = median(times);
    std::printf(
        "one run-time statement, %d columns, %d factors, 200 dictionary rows: %.2f ms (processor %.2f; "
        "wanted: 20)\n",
        kColumns, kFactors, time.clock * 1e3, time.processor * 1e3);
}

void measureTranslation(int runs) {
    const auto connection = connect(u""_s);
    makeDictionary(*connection, 1000);
    ZkpGrid grid;
    setUpWide(grid, connection);
    QString filter;
    for (int i = 0; filter.size() < 2000; i = (i + 37) % 1000)
        filter += (filter.isEmpty() ? u""_s : u" and "_s) + u"(%1>=100 or %1<5)"_s.arg(key(i));
    filter.truncate(2000);
    std::vector<Time> times;
    for (int run = 0; run < runs; ++run) {
        QString tables = u" , TABLE0 "_s;
        grid.setFilter(filter);
        times.push_back(timeOf([&] { grid.TranslateFilter(tables); }));
    }
    const Time time = median(times);
    std::printf("TranslateFilter, %d characters, 1000 dictionary rows: %.2f ms (processor %.2f; wanted: 5)\n",
                static_cast<int>(filter.size()), time.clock * 1e3, time.processor * 1e3);
}

// A totals report of many records.

/// The statement that a refresh ran; empty when it gave no groups.
QString refreshTotals(const ado::ConnectionPtr& connection, bool runTime) {
    ZkpGrid grid;
    const QStringList fields{u"BRANCH"_s, u"PRODUCT"_s, u"SUM_NET"_s, u"SUM_PREMIUM"_s};
    grid.setCols(static_cast<int>(fields.size()));
    for (int c = 0; c < fields.size(); ++c) {
        grid.setColDataField(c, fields[c]);
        grid.setColForTot(c, c < 2);
        grid.setColTotals(c, c >= 2);
    }
    grid.setclmns(u"CLMNS"_s);
    grid.setTotalForm(true);
    grid.setSqlOnRunTime(runTime);
    grid.Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY);
    grid.refresh();
    const auto records = grid.RecordSource().value<ado::RecordsetPtr>();
    return grid.RecCount() > 0 && records ? records->Source() : QString();
}

void measureTotals(const QString& file, bool runTime, int runs) {
    const auto connection = connect(file);
    QString statement = refreshTotals(connection, runTime); // also warms the system's cache
    if (statement.isEmpty()) {
        std::fprintf(stderr, "statement_bench: the totals report gave no groups\n");
        std::exit(1);
    }
    std::vector<Time> raw;
    std::vector<Time> report;
    for (int run = 0; run < runs; ++run) {
        raw.push_back(timeOf([&] { readEveryValue(file.toStdString(), statement.toStdString()); }));
        report.push_back(timeOf([&] { refreshTotals(connection, runTime); }));
    }
    const Time bare = median(raw);
    const Time ours = median(report);
    std::printf("totals report by two factors, %s:\n  bare loop %.3f s (processor %.3f), refresh %.3f s "
                "(processor %.3f)\n  ratio %.2f (processor %.2f; wanted: 1.1)\n",
                runTime ? "composed at run time" : "over its source", bare.clock, bare.processor, ours.clock,
                ours.processor, ours.clock / bare.clock, ours.processor / bare.processor);
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
    const int rows = std::max(1, option(argc, argv, "--rows", 1'000'000));
    const int runs = std::max(1, option(argc, argv, "--runs", 5));
    measureBuilding(10 * runs);
    measureTranslation(10 * runs);
    std::printf("%d records\n", rows);
    std::fflush(stdout);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("totals.db"));
    makeTotalsDatabase(file, rows);
    for (const bool runTime : {false, true})
        measureTotals(file, runTime, runs);
    return 0;
}
