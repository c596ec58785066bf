#pragma once

#include "host/scripted_host.h"
#include "report_case.h"
#include "test_database.h"
#include "zkp_grid.h"

#include <map>
#include <memory>

namespace zkp::reportcases {

/// Runs one case on a control of its own, in the Greek locale, over an empty database.
/// Whatever is not as wanted becomes a GoogleTest failure at the step's line.
///
/// What there is:
///   `records: ` table of column names with types, then the records; `null` is null. They become the
///       database's table T (`records NAME: ` another), its dictionary and the entry in `Reports`.
///   `source: STATEMENT`, else "select * from T".
///   `form: plain` (from the start), `totals` (aggregates of table T by the factors), `totals at run
///       time` (the same, composed from the dictionary), `totals of a statement` (of the source).
///   `columns: FIELD flags | FIELD flags | ...` with the flags factor, sum, balance, count, average,
///       percent; `-` is a column without field.
///   `set PROPERTY: value`.
///   `at record N: FIELD = text`, `FIELD of row R = text`, `kind = number`, `kind of row R = number`,
///       `PROPERTY := value` or `fail`: what a handler of `RetrieveRow` does at the N-th record of a load.
/// What is done: `call METHOD: argument`; and a load, by:
///   `report: ` table of the rows that a load gives, each row's kind first; "heading" may lead it. With
///       the value "as before" the rows are those of the report before.
/// What is wanted besides:
///   `grid: ` the same without a load; `accumulator: ` all cells of `MSFlexGrid2`;
///   `box: text` for each box, in order; `result: text` of the call;
///   `expect columns: ...` as they are set; `expect PROPERTY: value`.
class CaseRunner {
public:
    /// With a handler of `RetrieveRow` rows are read one by one, without one in runs.
    CaseRunner(const Case& one, bool withHandler);
    void run();

private:
    void perform(const Step& step);
    bool prepare(const Step& step);
    void makeRecords(const Step& step);
    void setForm(const Step& step);
    void setColumns(const QStringList& columns);
    void setProperty(const Step& step, const QString& name, const QString& value);
    void onRecord(RetrieveRowArgs& e);
    void handle(const Step& step, int row);
    int columnOf(const Step& step, const QString& field) const;

    void load(const Step& step);
    void call(const Step& step);
    void compareGrid(const Step& step);
    void compareBox(const Step& step);
    void compare(const Step& step, const QString& wanted, const QString& actual);
    QString columnsAsText() const;
    void checkNoBoxLeft(const Step& step);
    void fail(const Step& step, const QString& what);
    [[noreturn]] void refuse(const Step& step, const QString& why) const;

    Case one_;
    test::TestDatabase database_;
    ado::ConnectionPtr connection_ = database_.connect();
    std::shared_ptr<ScriptedHost> host_ = std::make_shared<ScriptedHost>();
    std::unique_ptr<ZkpGrid> grid_ = std::make_unique<ZkpGrid>(host_);
    QString statement_ = QStringLiteral("select * from T");
    QString form_ = QStringLiteral("plain");
    std::multimap<int, Step> handlers_; ///< by the number of the record
    int recordsSeen_ = 0;
    TextRows lastWanted_;
    QString result_;
};

} // namespace zkp::reportcases
