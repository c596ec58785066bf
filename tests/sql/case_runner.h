#pragma once

#include "case_file.h"
#include "host/scripted_host.h"
#include "test_database.h"
#include "zkp_grid.h"

#include <memory>

namespace zkp::sqlcases {

/// Runs one case over an empty database, and reports every difference as a GoogleTest
/// failure with the position of the first unlike character.
///
/// To the database: `sql: STATEMENT`; `row TABLE: column=literal, ...`, which takes the place of the row
/// whose first column has the same value.
/// To the control: `source KIND: text`, `set NAME: value`, `columns: KEY (factor), KEY (totalled), ...`,
/// `call NAME: arguments`.
/// Expected of the last call: `result`; `error: NUMBER` or `error: any`; `asks: nothing` (no statement
/// reached the database); `rows` (what the result gives; cells joined by "; ", rows by " / "),
/// `sortedrows` (the same where the statement leaves the order open), `refused` (the database does not
/// take the result); `box: text` (critical, no title; in order), `box: any`. Of the control:
/// `expect NAME: value`. Of the database: `count TABLE: n`. On a server, what a `result` selects is what the
/// embedded database gives for it. A case whose calls show other boxes, or fail
/// without saying so, fails.
class CaseRunner {
public:
    CaseRunner();
    void run(const Case& one);

private:
    void perform(const Step& step);
    void performOnDatabase(const Step& step);
    void performOnControl(const Step& step);
    void call(const Step& step);
    void checkExpectation(const Step& step);

    void insertRow(const QString& table, const QString& row);
    void setColumns(const QString& list);
    void setSource(int kind, const QString& text);
    void setProperty(const QString& name, const QString& value);
    QString invoke(const QString& name, const QString& value);
    QString invokeBuilder(const QString& name);
    QString property(const QString& name);
    QStringList rowsOf(const ado::RecordsetPtr& recordset);
    QString reportRows();
    void checkRefused(const Step& step);
    void checkAnyBox(const Step& step);
    void checkBox(const Step& step);
    void compareWithEmbedded(const Step& step);
    QStringList rowsOrRefused(const ado::ConnectionPtr& connection);
    void same(const Step& step, const QString& actual, const QString& expected);
    void fail(const Step& step, const QString& what);
    void checkNothingLeft(const Step& step);

    test::TestDatabase database_;
    ado::ConnectionPtr connection_ = database_.connect();
    std::shared_ptr<ScriptedHost> host_ = std::make_shared<ScriptedHost>();
    ZkpGrid grid_{host_};
    QString file_;
    QString tables_;
    QString result_;
    QString lastSent_;
    std::uint32_t error_ = 0;
    QString errorText_;
};

} // namespace zkp::sqlcases
