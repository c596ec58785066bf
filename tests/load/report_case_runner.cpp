#include "report_case_runner.h"

#include "base/error.h"
#include "report_text.h"

#include <QMetaMethod>

#include <gtest/gtest.h>

#include <array>

namespace zkp::reportcases {

using namespace Qt::StringLiterals;

namespace {

using Setter = void (ZkpGrid::*)(int, const bool&);
using Getter = bool (ZkpGrid::*)(int) const;

struct Flag {
    QString word;
    Setter set;
    Getter get;
};

const std::array<Flag, 6>& flags() {
    static const std::array<Flag, 6> all{
        Flag{u"factor"_s, &ZkpGrid::setColForTot, &ZkpGrid::ColForTot},
        Flag{u"sum"_s, &ZkpGrid::setColTotals, &ZkpGrid::ColTotals},
        Flag{u"balance"_s, &ZkpGrid::setColBalance, &ZkpGrid::ColBalance},
        Flag{u"count"_s, &ZkpGrid::setColcnt, &ZkpGrid::Colcnt},
        Flag{u"average"_s, &ZkpGrid::setColAvrg, &ZkpGrid::ColAvrg},
        Flag{u"percent"_s, &ZkpGrid::setColPercnt, &ZkpGrid::ColPercnt},
    };
    return all;
}

bool isText(const QString& type) {
    return type == u"text" || type == u"date";
}

QString fieldOf(const QString& word) {
    return word == u"-" ? QString() : withBlanks(word);
}

} // namespace

CaseRunner::CaseRunner(const Case& one, bool withHandler)
    : one_(one) {
    for (const QString& statement : {
             u"create table DICT (dtfld text, Cptn text, wdth money, Algn integer, isgroup bit, isTot bit, "
             "visbl integer, IsPublic integer, [Sum] bit, [Avg] bit, [Min] bit, [Max] bit, crosstabdate bit, "
             "SOURCEFIELDNAME text, SourceTableName text, Expr text, KeyMaster text, foreignkey text)"_s,
             u"create table Reports (RecSource text, MasterTable text, RKeyname text, MasterFilter text)"_s,
             u"create table QRN_Main (GenKey integer, GenSubKey integer, GenValue text)"_s,
             u"insert into QRN_Main values (2, 6, '30'), (2, 7, '120')"_s,
         })
        database_.run(connection_, statement);
    grid_->setLocale(QLocale(u"el_GR"_s));
    if (withHandler)
        QObject::connect(&grid_->events(), &Events::RetrieveRow, [this](RetrieveRowArgs& e) { onRecord(e); });
}

void CaseRunner::run() {
    for (const Step& step : one_.steps) {
        try {
            perform(step);
        } catch (const Error& error) {
            fail(step, error.description());
            return;
        }
    }
    if (!one_.steps.empty())
        checkNoBoxLeft(one_.steps.back());
}

void CaseRunner::perform(const Step& step) {
    if (prepare(step))
        return;
    if (step.verb == u"call")
        call(step);
    else if (step.verb == u"report" || step.verb == u"grid")
        compareGrid(step);
    else if (step.verb == u"accumulator")
        fail(step, firstDifference(step.table, cellsOfAllRows(grid_->MSFlexGrid2())));
    else if (step.verb == u"box")
        compareBox(step);
    else if (step.verb == u"result")
        compare(step, step.value, result_);
    else if (step.verb == u"expect" && step.name == u"columns")
        compare(step, cellsOf(step.value).join(u" | "), columnsAsText());
    else if (step.verb == u"expect" && grid_->metaObject()->indexOfProperty(step.name.toUtf8()) >= 0)
        compare(step, step.value, grid_->property(step.name.toUtf8()).toString());
    else
        refuse(step, u"no such step: "_s + step.verb + u' ' + step.name);
}

bool CaseRunner::prepare(const Step& step) {
    if (step.verb == u"records")
        makeRecords(step);
    else if (step.verb == u"source")
        statement_ = step.value;
    else if (step.verb == u"form")
        setForm(step);
    else if (step.verb == u"columns")
        setColumns(cellsOf(step.value));
    else if (step.verb == u"set")
        setProperty(step, step.name, step.value);
    else if (step.verb == u"at" && step.name.startsWith(u"record "))
        handlers_.emplace(step.name.section(u' ', 1).toInt(), step);
    else
        return false;
    return true;
}

void CaseRunner::makeRecords(const Step& step) {
    if (step.table.empty())
        refuse(step, u"no columns"_s);
    const QString table = step.name.isEmpty() ? u"T"_s : step.name;
    QStringList columns, types;
    database_.run(connection_, u"delete from DICT"_s);
    for (const QString& column : step.table.front()) {
        const QString name = column.section(u' ', 0, 0);
        types << column.section(u' ', 1).trimmed();
        columns << u"[%1] %2"_s.arg(name, types.back());
        database_.run(connection_,
                      u"insert into DICT values ('%1', '%1', 1000, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, '%1', "
                      "'%2', null, null, null)"_s.arg(name, table));
    }
    database_.run(connection_, u"delete from Reports"_s);
    database_.run(connection_, u"insert into Reports values ('%1', '%1', null, null)"_s.arg(table));
    database_.run(connection_, u"drop table if exists %1"_s.arg(table));
    database_.run(connection_, u"create table %1 (%2)"_s.arg(table, columns.join(u", "_s)));
    for (std::size_t r = 1; r < step.table.size(); ++r) {
        QStringList values = step.table[r];
        if (values.size() != types.size())
            refuse(step, u"record %1 has not as many values as there are columns"_s.arg(r));
        for (qsizetype c = 0; c < values.size(); ++c)
            if (isText(types[c]) && values[c] != u"null")
                values[c] = u'\'' + withBlanks(values[c]).replace(u"'"_s, u"''"_s) + u'\'';
        database_.run(connection_, u"insert into %1 values (%2)"_s.arg(table, values.join(u", "_s)));
    }
}

void CaseRunner::setForm(const Step& step) {
    static const QStringList forms{u"plain"_s, u"totals"_s, u"totals at run time"_s,
                                   u"totals of a statement"_s};
    if (!forms.contains(step.value))
        refuse(step, u"no such form: "_s + step.value);
    form_ = step.value;
    grid_->setTotalForm(form_ != u"plain");
    grid_->setSqlOnRunTime(form_ == u"totals at run time");
    grid_->setclmns(form_ == u"plain" ? QString() : u"DICT"_s);
    grid_->setFilter(form_ == u"plain" ? QString() : u"0=0"_s);
}

void CaseRunner::setColumns(const QStringList& columns) {
    grid_->setCols(static_cast<int>(columns.size()));
    for (int c = 0; c < columns.size(); ++c) {
        const QStringList words = columns[c].split(u' ');
        grid_->setColDataField(c, fieldOf(words.first()));
        grid_->setColCaption(c, words.first());
        for (const Flag& flag : flags())
            (grid_.get()->*flag.set)(c, words.contains(flag.word));
    }
}

void CaseRunner::setProperty(const Step& step, const QString& name, const QString& value) {
    const bool isBool = value == u"True" || value == u"False";
    if (!grid_->setProperty(name.toUtf8(), isBool ? QVariant(value == u"True") : QVariant(value)))
        refuse(step, u"no such property: "_s + name);
}

void CaseRunner::onRecord(RetrieveRowArgs& e) {
    ++recordsSeen_;
    const auto [first, last] = handlers_.equal_range(recordsSeen_);
    for (auto one = first; one != last; ++one) {
        try {
            handle(one->second, static_cast<int>(e.rw));
        } catch (const BadCase& bad) {
            ADD_FAILURE() << bad.what(); // the load itself would make a box of it
        }
    }
}

void CaseRunner::handle(const Step& step, int row) {
    if (step.value == u"fail")
        throw Error(1, u"a handler failed"_s);
    const auto equals = step.value.indexOf(u'=');
    if (equals < 1)
        refuse(step, u"what shall the handler do?"_s);
    const QString value = withBlanks(step.value.mid(equals + 1).trimmed());
    const bool toProperty = step.value[equals - 1] == u':';
    const QStringList target = step.value.left(equals - (toProperty ? 1 : 0)).trimmed().split(u" of row "_s);
    if (target.size() == 2)
        row = target[1].toInt();
    if (toProperty)
        setProperty(step, target[0], value);
    else if (target[0] == u"kind")
        grid_->setRowData(row, value.toInt());
    else
        grid_->setTextMatrix(row, columnOf(step, target[0]), value);
}

int CaseRunner::columnOf(const Step& step, const QString& field) const {
    for (int c = 0; c < grid_->Cols(); ++c)
        if (grid_->ColDataField(c) == field)
            return c;
    refuse(step, u"no column of field "_s + field);
}

void CaseRunner::load(const Step& step) {
    checkNoBoxLeft(step);
    recordsSeen_ = 0;
    const bool ofTable = form_ == u"totals" || form_ == u"totals at run time";
    grid_->Fill(connection_, ofTable ? u"T"_s : statement_, ofTable ? ZKP_Table_QUERY : ZKP_SQLStatement);
    grid_->refresh();
}

void CaseRunner::call(const Step& step) {
    const QByteArray name = step.name.toUtf8();
    const auto* meta = grid_->metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.name() != name || method.parameterCount() != (step.value.isEmpty() ? 0 : 1))
            continue;
        int number = 0;
        if (method.returnType() == QMetaType::Int)
            method.invoke(grid_.get(), Q_RETURN_ARG(int, number));
        else if (step.value.isEmpty())
            method.invoke(grid_.get());
        else
            method.invoke(grid_.get(), Q_ARG(int, step.value.toInt()));
        result_ = method.returnType() == QMetaType::Int ? QString::number(number) : QString();
        return;
    }
    refuse(step, u"no such method: "_s + step.name);
}

void CaseRunner::compareGrid(const Step& step) {
    if (step.verb == u"report")
        load(step);
    if (step.value != u"as before")
        lastWanted_ = step.table;
    const bool headed = !lastWanted_.empty() && lastWanted_.front().front() == u"heading";
    const GridSurface& surface = grid_->MSFlexGrid1();
    fail(step, firstDifference(lastWanted_, rowsWithKinds(surface, headed ? 0 : surface.FixedRows())));
}

void CaseRunner::compareBox(const Step& step) {
    if (host_->messages.empty())
        return fail(step, u"no box was shown"_s);
    compare(step, step.value, host_->messages.front().text);
    host_->messages.erase(host_->messages.begin());
}

void CaseRunner::compare(const Step& step, const QString& wanted, const QString& actual) {
    if (wanted != actual)
        fail(step, u"wanted: "_s + wanted + u"\nstands: "_s + actual);
}

QString CaseRunner::columnsAsText() const {
    QStringList columns;
    for (int c = 0; c < grid_->Cols(); ++c) {
        const QString field = withVisibleBlanks(grid_->ColDataField(c));
        columns << (field.isEmpty() ? u"-"_s : field);
        for (const Flag& flag : flags())
            if ((grid_.get()->*flag.get)(c))
                columns.back() += u' ' + flag.word;
    }
    return columns.join(u" | ");
}

void CaseRunner::checkNoBoxLeft(const Step& step) {
    for (const auto& message : host_->messages)
        fail(step, u"a box that no step speaks of: "_s + message.text);
    host_->messages.clear();
}

void CaseRunner::fail(const Step& step, const QString& what) {
    if (!what.isEmpty())
        ADD_FAILURE_AT(one_.path.toUtf8().constData(), step.line) << what.toStdString();
}

void CaseRunner::refuse(const Step& step, const QString& why) const {
    throw BadCase(one_.path, step.line, why);
}

} // namespace zkp::reportcases
