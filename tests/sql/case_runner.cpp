#include "case_runner.h"

#include "ado/command.h"
#include "base/value.h"

#include <gtest/gtest.h>

namespace zkp::sqlcases {

using namespace Qt::StringLiterals;

namespace {

/// What `asks: nothing` finds still standing when no statement went out.
const QString kMark = u"select 1 as MARK"_s;

QStringList splitTrimmed(const QString& list, const QString& separator) {
    QStringList parts = list.split(separator);
    for (QString& part : parts)
        part = part.trimmed();
    return parts;
}

/// Splits "a='x, y', b=2" at the commas outside apostrophes.
QStringList splitAssignments(const QString& row) {
    QStringList parts{QString()};
    bool quoted = false;
    for (const QChar c : row) {
        if (c == u'\'')
            quoted = !quoted;
        if (c == u',' && !quoted)
            parts << QString();
        else
            parts.last() += c;
    }
    return parts;
}

} // namespace

CaseRunner::CaseRunner() {
    grid_.setLocale(QLocale(u"el_GR"_s));
    grid_.setCn(connection_);
}

void CaseRunner::run(const Case& one) {
    file_ = one.file;
    for (const Step& step : one.steps) {
        try {
            perform(step);
        } catch (const Error& error) {
            fail(step, error.description());
            return;
        }
    }
    if (!one.steps.empty())
        checkNothingLeft(one.steps.back());
}

void CaseRunner::perform(const Step& step) {
    if (step.verb == u"sql" || step.verb == u"row")
        return performOnDatabase(step);
    if (step.verb == u"source" || step.verb == u"set" || step.verb == u"columns")
        return performOnControl(step);
    if (step.verb == u"call")
        return call(step);
    checkExpectation(step);
}

void CaseRunner::performOnDatabase(const Step& step) {
    if (step.verb == u"sql")
        database_.run(connection_, step.value);
    else
        insertRow(step.name, step.value);
}

void CaseRunner::insertRow(const QString& table, const QString& row) {
    QStringList names, values;
    for (const QString& assignment : splitAssignments(row)) {
        const auto equals = assignment.indexOf(u'=');
        names << assignment.left(equals).trimmed();
        values << assignment.mid(equals + 1).trimmed();
    }
    database_.run(connection_, u"delete from %1 where %2 = %3"_s.arg(table, names[0], values[0]));
    database_.run(connection_, u"insert into %1 (%2) values (%3)"_s.arg(
                                   table, u"[%1]"_s.arg(names.join(u"],["_s)), values.join(u", "_s)));
}

void CaseRunner::performOnControl(const Step& step) {
    if (step.verb == u"columns")
        setColumns(step.value);
    else if (step.verb == u"source")
        setSource(step.name.toInt(), step.value);
    else if (step.name == u"Tables")
        tables_ = step.value;
    else
        setProperty(step.name, step.value);
}

/// A key between apostrophes keeps its blanks.
void CaseRunner::setColumns(const QString& list) {
    const QStringList keys = splitTrimmed(list, u","_s);
    grid_.setCols(static_cast<int>(keys.size()));
    for (int c = 0; c < keys.size(); ++c) {
        QString key = keys[c].section(u" ("_s, 0, 0);
        if (key.startsWith(u'\''))
            key = key.mid(1, key.size() - 2);
        grid_.setColDataField(c, key);
        grid_.setColForTot(c, keys[c].contains(u"(factor)"));
        grid_.setColTotals(c, keys[c].contains(u"(totalled)"));
        if (keys[c].contains(u"(hidden)"))
            grid_.setColWidth(c, 0);
    }
}

void CaseRunner::setSource(int kind, const QString& text) {
    grid_.setSourceType(kind);
    if (kind == ZKP_Command) {
        const auto command = std::make_shared<ado::Command>();
        command->ActiveConnection = connection_;
        command->CommandText = text;
        grid_.setRecordSource(QVariant::fromValue(ado::CommandPtr(command)));
    } else if (kind == ZKP_RecordSet) {
        const auto recordset = std::make_shared<ado::Recordset>();
        if (!text.isEmpty())
            recordset->Open(text, connection_);
        grid_.setRecordSource(QVariant::fromValue(ado::RecordsetPtr(recordset)));
    } else {
        grid_.setRecordSource(text);
    }
}

void CaseRunner::setProperty(const QString& name, const QString& value) {
    if (name == u"Cn")
        return grid_.setCn({});
    if (name == u"ProductID")
        return grid_.setProductID(value);
    if (name == u"Ierarxia")
        return grid_.setIerarxia(value);
    if (name == u"IerID")
        return grid_.setIerID(value);
    const bool isBool = value == u"True" || value == u"False";
    if (!grid_.setProperty(name.toUtf8(), isBool ? QVariant(value == u"True") : QVariant(value)))
        throw BadCase("no such property: " + name.toStdString());
}

void CaseRunner::call(const Step& step) {
    checkNothingLeft(step);
    host_->messages.clear();
    connection_->Execute(kMark);
    lastSent_ = connection_->LastStatementSent();
    result_.clear();
    try {
        result_ = invoke(step.name, step.value);
    } catch (const Error& error) {
        error_ = error.number();
        errorText_ = error.description();
    }
}

QString CaseRunner::invoke(const QString& name, const QString& value) {
    if (name == u"makefldSql")
        return grid_.makefldSql(value, tables_);
    if (name == u"makefldSql without alias")
        return grid_.makefldSql(value, tables_, false);
    if (name == u"MakeFromAndJoins")
        return grid_.MakeFromAndJoins(tables_);
    if (name == u"FindJoinON")
        return grid_.FindJoinON(value);
    if (name == u"TranslateFilter")
        return grid_.TranslateFilter(tables_), QString();
    if (name == u"ReplaceStringIntoAString") {
        const QStringList texts = value.split(u'/');
        return grid_.ReplaceStringIntoAString(texts[0], texts[1], texts[2]);
    }
    if (name == u"GETGeneral") {
        const QStringList keys = splitTrimmed(value, u","_s);
        QString description;
        return grid_.GETGeneral(keys[0].toInt(), keys[1].toInt(), description);
    }
    if (name == u"Fill") {
        const QStringList given = splitTrimmed(value, u","_s);
        return grid_.Fill(connection_, given[0], given[1].toInt(), given.value(2)), QString();
    }
    return invokeBuilder(name);
}

QString CaseRunner::invokeBuilder(const QString& name) {
    QString text;
    const QByteArray method = name.toUtf8();
    const auto* meta = grid_.metaObject();
    const int index = meta->indexOfMethod(method + "()");
    if (index < 0)
        throw BadCase("no such operation: " + name.toStdString());
    if (meta->method(index).returnType() == QMetaType::QString)
        QMetaObject::invokeMethod(&grid_, method.constData(), Q_RETURN_ARG(QString, text));
    else
        QMetaObject::invokeMethod(&grid_, method.constData());
    return text;
}

} // namespace zkp::sqlcases
