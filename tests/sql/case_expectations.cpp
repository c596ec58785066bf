#include "case_runner.h"

#include "ado/command.h"
#include "base/value.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zkp::sqlcases {

using namespace Qt::StringLiterals;

void CaseRunner::checkExpectation(const Step& step) {
    if (step.verb == u"result") {
        compareWithEmbedded(step);
        return same(step, result_, step.value);
    }
    if (step.verb == u"rows")
        return same(step, rowsOf(connection_->Execute(result_)).join(u" / "), step.value);
    if (step.verb == u"sortedrows") {
        QStringList rows = rowsOf(connection_->Execute(result_));
        rows.sort();
        return same(step, rows.join(u" / "), step.value);
    }
    if (step.verb == u"refused")
        return checkRefused(step);
    if (step.verb == u"count")
        return same(step,
                    rowsOf(connection_->Execute(u"select count(*) from "_s + step.name)).join(QString()),
                    step.value);
    if (step.verb == u"box" && step.value == u"any")
        return checkAnyBox(step);
    if (step.verb == u"box")
        return checkBox(step);
    if (step.verb == u"asks")
        return same(step, connection_->LastStatementSent(), lastSent_);
    if (step.verb == u"error") {
        bool isNumber = false;
        const auto number = step.value.toUInt(&isNumber, 0);
        if (isNumber ? error_ != number : error_ == 0)
            fail(step, u"ended in error %1 (%2)"_s.arg(error_, 0, 16).arg(errorText_));
        error_ = 0;
        return;
    }
    if (step.verb == u"expect")
        return same(step, property(step.name), step.value);
    fail(step, u"no such step: "_s + step.verb);
}

/// The database must not take the statement.
void CaseRunner::checkRefused(const Step& step) {
    try {
        connection_->Execute(result_);
    } catch (const Error&) {
        return;
    }
    fail(step, u"the database took the statement"_s);
}

void CaseRunner::checkAnyBox(const Step& step) {
    if (host_->messages.empty())
        return fail(step, u"no box was shown"_s);
    host_->messages.erase(host_->messages.begin());
}

void CaseRunner::checkBox(const Step& step) {
    if (host_->messages.empty())
        return fail(step, u"no box was shown"_s);
    const auto message = host_->messages.front();
    host_->messages.erase(host_->messages.begin());
    same(step, message.text, step.value);
    if (message.style != kMsgBoxCritical || !message.title.isEmpty())
        fail(step, u"the box has style %1 and title \"%2\""_s.arg(message.style).arg(message.title));
}

QString CaseRunner::property(const QString& name) {
    if (name == u"Tables")
        return tables_;
    if (name == u"Cn.CommandTimeout")
        return QString::number(connection_->CommandTimeout());
    if (name == u"Source") {
        const auto recordset = grid_.RecordSource().value<ado::RecordsetPtr>();
        return recordset ? recordset->Source() : u"nothing"_s;
    }
    if (name == u"RecordSource.rows")
        return rowsOf(grid_.RecordSource().value<ado::RecordsetPtr>()).join(u" / ");
    if (name == u"RecordSource.Filter")
        return grid_.RecordSource().value<ado::RecordsetPtr>()->Filter();
    if (name == u"report")
        return reportRows();
    if (name == u"columns") {
        QStringList keys;
        for (int c = 0; c < grid_.Cols(); ++c)
            keys << grid_.ColDataField(c) + (grid_.ColForTot(c) ? u" (factor)"_s : QString());
        return keys.join(u", ");
    }
    const QVariant value = grid_.property(name.toUtf8());
    return value.typeId() == QMetaType::Bool ? (value.toBool() ? u"True"_s : u"False"_s) : value.toString();
}

/// Both take the statement and give the same rows, whose order is open but for what `rows` wants, or both
/// refuse it.
void CaseRunner::compareWithEmbedded(const Step& step) {
    if (!database_.isServer() || !result_.trimmed().startsWith(u"select "_s, Qt::CaseInsensitive))
        return;
    // A connection of its own leaves what the case's own sent last.
    same(step, rowsOrRefused(database_.connect()).join(u" / "),
         rowsOrRefused(database_.embedded()).join(u" / "));
}

QStringList CaseRunner::rowsOrRefused(const ado::ConnectionPtr& connection) {
    try {
        QStringList rows = rowsOf(connection->Execute(result_));
        rows.sort();
        return rows;
    } catch (const Error&) {
        return {u"refused"_s};
    }
}

QStringList CaseRunner::rowsOf(const ado::RecordsetPtr& recordset) {
    if (recordset->RecordCount() > 0)
        recordset->MoveFirst();
    const ReportLocale locale(grid_.Locale());
    QStringList rows;
    for (; !recordset->Eof(); recordset->MoveNext()) {
        QStringList cells;
        for (int f = 0; f < recordset->Fields().Count(); ++f) {
            const QVariant value = recordset->Fields()[f].Value();
            cells << (isNull(value) ? u"null"_s : valueText(value, locale));
        }
        rows << cells.join(u"; ");
    }
    return rows;
}

/// The cells of the surface's rows below the heading.
QString CaseRunner::reportRows() {
    QStringList rows;
    for (int r = grid_.FixedRows(); r < grid_.Rows(); ++r) {
        QStringList cells;
        for (int c = 0; c < grid_.Cols(); ++c)
            cells << grid_.TextMatrix(r, c);
        rows << cells.join(u"; ");
    }
    return rows.join(u" / ");
}

void CaseRunner::same(const Step& step, const QString& actual, const QString& expected) {
    if (actual == expected)
        return;
    const auto pair = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    const auto position = pair.first - actual.begin();
    fail(step, u"unlike at position %1, behind \"%2\"\n    is:     |%3|\n    wanted: |%4|"_s.arg(
                   QString::number(position + 1),
                   actual.mid(std::max<qsizetype>(0, position - 20), std::min<qsizetype>(position, 20)),
                   actual, expected));
}

void CaseRunner::fail(const Step& step, const QString& what) {
    ADD_FAILURE() << file_.toStdString() << ".txt:" << step.line << ": " << step.verb.toStdString() << ' '
                  << step.name.toStdString() << ": " << what.toStdString();
}

void CaseRunner::checkNothingLeft(const Step& step) {
    if (error_ != 0)
        fail(step, u"an error that the case does not name: %1"_s.arg(errorText_));
    for (const auto& message : host_->messages)
        fail(step, u"a box that the case does not name: %1"_s.arg(message.text));
    error_ = 0;
}

} // namespace zkp::sqlcases
