#include "load_fixture.h"

#include "host/host.h"

#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// Reports over POLICIES (three records, premiums 20, 10 and 30) with a dictionary of three fields.
class SortByColumnTest : public GridTest {
protected:
    SortByColumnTest() {
        connection->Open(u"sqlite:"_s);
        for (const QString& statement :
             {u"create table POLICIES (PRODUCT text, PREMIUM money, CODE text)"_s,
              u"insert into POLICIES values ('Ζωής',20,'b'), ('Πυρός',10,'a'), ('Υγείας',30,'c')"_s,
              u"create table REPORTS (RecSource text, MasterTable text, RKeyname text, MasterFilter text)"_s,
              u"insert into REPORTS values ('POLICIESDATA','POLICIES','','')"_s,
              u"create view POLICIESDATA as select * from POLICIES"_s,
              u"create table CLMNS (dtfld text, Cptn text, wdth integer, Algn integer, isgroup integer, "
              "isTot integer, visbl integer, IsPublic integer, [Sum] integer, [Avg] integer, "
              "[Min] integer, [Max] integer, crosstabdate text, SOURCEFIELDNAME text, "
              "SourceTableName text, Expr text, KeyMaster text, foreignkey text)"_s,
              u"insert into CLMNS values "
              "('PRODUCT','α',1,1,1,0,1,1,0,0,0,0,0,'PRODUCT','POLICIES','','',''), "
              "('PREMIUM','β',1,1,0,1,1,1,1,0,0,0,0,'PREMIUM','POLICIES','','',''), "
              "('CODE','γ',1,1,0,0,1,1,0,0,0,0,0,'CODE','POLICIES','','','')"_s})
            connection->Execute(statement);
        grid->setCn(connection);
        grid->setCols(3);
        const QStringList fields{u"PRODUCT"_s, u"PREMIUM"_s, u"CODE"_s};
        for (int c = 0; c < 3; ++c)
            grid->setColDataField(c, fields[c]);
        grid->setclmns(u"CLMNS"_s);
        QObject::connect(&grid->events(), &Events::StartSorting, [this] { log << u"Start"_s; });
        QObject::connect(&grid->events(), &Events::StopSorting, [this] {
            log << u"Stop at row %1, pointer %2"_s.arg(grid->Row()).arg(host->pointer());
        });
        QObject::connect(&grid->events(), &Events::StartFilling, [this] { log << u"Fill"_s; });
    }

    void fill(int kind = ZKP_Table_QUERY, const QVariant& source = u"POLICIESDATA"_s) {
        grid->Fill(connection, source, kind);
    }

    void sortBy(int column, const QString& previous = {}) {
        grid->setCol(column);
        log.clear();
        grid->SortByColumn(previous);
    }

    /// The texts of a column, top down.
    QString column(int c) const {
        QStringList texts;
        for (int r = 1; r < grid->Rows(); ++r)
            texts << grid->TextMatrix(r, c);
        return texts.join(u' ');
    }

    std::shared_ptr<ado::Connection> connection = std::make_shared<ado::Connection>();
    QStringList log;
};

} // namespace

TEST_F(SortByColumnTest, ADetailReportOfTheDictionaryIsSortedByTheDatabase) {
    grid->setSqlOnRunTime(true);
    fill();
    sortBy(1);
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] ASC"_s) << "without an alias";
    EXPECT_EQ(column(1), u"10,00 20,00 30,00"_s);
    EXPECT_TRUE(grid->OrderByAlias().isEmpty()) << "this road leaves it alone";
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(SortByColumnTest, TheOwnExpressionAsThePreviousOneTurnsTheOrder) {
    grid->setSqlOnRunTime(true);
    fill();
    sortBy(1, u"[POLICIES].[PREMIUM]"_s);
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] DESC"_s);
    EXPECT_EQ(column(1), u"30,00 20,00 10,00"_s);
    sortBy(1, u"[POLICIES].[CODE]"_s);
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] ASC"_s);
    sortBy(1, u"[policies].[premium]"_s);
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] ASC"_s) << "compared to the letter";
}

TEST_F(SortByColumnTest, TheOrderIsReportedLikeAnyChange) {
    grid->setSqlOnRunTime(true);
    fill();
    EXPECT_EQ(keysOf([&] { sortBy(1); }).count(u"OrderBy"_s), 1);
}

TEST_F(SortByColumnTest, AFieldThatIsNotInTheDictionaryKeepsTheOrderAndLoads) {
    grid->setSqlOnRunTime(true);
    fill();
    sortBy(1);
    connection->Execute(u"delete from CLMNS where dtfld = 'CODE'"_s);
    sortBy(2);
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] ASC"_s);
    EXPECT_EQ(log, (QStringList{u"Start"_s, u"Fill"_s, u"Stop at row 1, pointer 0"_s}));
}

TEST_F(SortByColumnTest, TheEventsFrameTheLoadAndThePointerComesBack) {
    grid->setSqlOnRunTime(true);
    fill();
    QObject::connect(&grid->events(), &Events::StartFilling,
                     [this] { log << QString::number(host->pointer()); });
    sortBy(1);
    EXPECT_EQ(log, (QStringList{u"Start"_s, u"Fill"_s, QString::number(kPointerHourglass),
                                u"Stop at row 1, pointer 0"_s}));
}

TEST_F(SortByColumnTest, APlainReportSortsByTheOtherRoad) {
    fill(ZKP_Table_QUERY, u"POLICIES"_s);
    sortBy(1);
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] ASC"_s);
    EXPECT_EQ(column(1), u"10,00 20,00 30,00"_s);
    EXPECT_EQ(grid->OrderByAlias(), u"PREMIUM"_s);
    EXPECT_EQ(grid->OrderByPhysical(), u"IUM"_s);
}

TEST_F(SortByColumnTest, TheOtherRoadTurnsTheOrderInSmallLetters) {
    grid->setRefreshOnChange(false);
    fill();
    sortBy(1, u"[POLICIES].[PREMIUM]"_s);
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] desc"_s);
    sortBy(1, u"[POLICIES].[PREMIUM] desc"_s);
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] ASC"_s);
}

TEST_F(SortByColumnTest, APhysicalNameWantsSixLetters) {
    grid->setRefreshOnChange(false);
    fill();
    const struct {
        QString field;
        QString physical;
    } cases[] = {
        {u"SUM_PREMIUM"_s, u"PREMIUM"_s}, {u"SUM_AB"_s, u"AB"_s}, {u"SUM_A"_s, u""_s}, {u"CODE"_s, u""_s}};
    for (const auto& c : cases) {
        grid->setColDataField(1, c.field);
        sortBy(1);
        EXPECT_EQ(grid->OrderByAlias(), c.field);
        EXPECT_EQ(grid->OrderByPhysical(), c.physical) << c.field.toStdString();
    }
}

TEST_F(SortByColumnTest, AnAggregateOfAStatementOfTheDatabaseEmptiesTheOrder) {
    grid->setRefreshOnChange(false);
    fill();
    grid->setTotalForm(true);
    grid->setOrderBy(u"before"_s);
    grid->setColDataField(1, u"SUM_PREMIUM"_s);
    sortBy(1);
    EXPECT_EQ(grid->OrderBy(), u""_s);
}

TEST_F(SortByColumnTest, AnAggregateOfARunTimeStatementIsSortedByItsAlias) {
    grid->setRefreshOnChange(false);
    grid->setSqlOnRunTime(true);
    grid->setTotalForm(true);
    fill();
    for (const QString& field : {u"SUM_PREMIUM"_s, u"pos_premium"_s, u"AVG_PREMIUM"_s, u"MIN_PREMIUM"_s,
                                 u"MAX_PREMIUM"_s, u"POS_CNT"_s}) {
        grid->setColDataField(1, field);
        sortBy(1);
        EXPECT_EQ(grid->OrderBy(), field + u" ASC"_s);
        sortBy(1, field);
        EXPECT_EQ(grid->OrderBy(), field + u" desc"_s);
    }
    grid->setColDataField(1, u"PREMIUM"_s);
    sortBy(1);
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] ASC"_s);
}

TEST_F(SortByColumnTest, TheRunTimeStatementThenDropsAnAggregatesOrder) {
    grid->setSqlOnRunTime(true);
    grid->setTotalForm(true);
    grid->setColForTot(0, true);
    grid->setColDataField(1, u"SUM_PREMIUM"_s);
    fill();
    sortBy(1);
    EXPECT_EQ(grid->OrderBy(), u""_s) << "as wanted";
}

TEST_F(SortByColumnTest, AColumnWithoutAFieldIsSortedByTheSurfaceAndKeepsTheOrder) {
    fill(ZKP_SQLStatement, u"select * from POLICIES"_s);
    grid->refresh();
    grid->setOrderBy(u"before"_s);
    grid->setRefreshOnChange(false);
    grid->setColDataField(2, u""_s);
    for (int r = 1; r < grid->Rows(); ++r)
        grid->setTextMatrix(r, 2, QString::number(9 - r));
    sortBy(2);
    EXPECT_EQ(column(2), u"6 7 8"_s);
    EXPECT_EQ(grid->OrderBy(), u"before"_s);
    EXPECT_EQ(log, (QStringList{u"Start"_s, u"Stop at row 1, pointer 0"_s}));
}

// The one blank of a new column is a field that nobody knows: the order is given up. Wanted.
TEST_F(SortByColumnTest, ABlankFieldEmptiesTheOrder) {
    fill(ZKP_SQLStatement, u"select * from POLICIES"_s);
    grid->refresh();
    grid->setOrderBy(u"before"_s);
    grid->setRefreshOnChange(false);
    grid->setColDataField(2, u" "_s);
    sortBy(2);
    EXPECT_EQ(grid->OrderBy(), u""_s);
}

TEST_F(SortByColumnTest, TheLoadUndoesACustomSort) {
    fill(ZKP_SQLStatement, u"select * from POLICIES"_s);
    grid->refresh();
    grid->setColDataField(2, {});
    for (int r = 1; r < grid->Rows(); ++r)
        grid->setTextMatrix(r, 2, QString::number(9 - r));
    sortBy(2);
    EXPECT_EQ(column(0), u"Ζωής Πυρός Υγείας"_s);
}

TEST_F(SortByColumnTest, AGivenRecordsetIsSortedItself) {
    const auto records = connection->Execute(u"select * from POLICIES"_s);
    fill(ZKP_RecordSet, QVariant::fromValue(records));
    sortBy(1);
    EXPECT_EQ(grid->OrderBy(), u"[PREMIUM] ASC"_s);
    EXPECT_EQ(column(1), u"10,00 20,00 30,00"_s);
    sortBy(1, u"[PREMIUM]"_s);
    EXPECT_EQ(column(1), u"30,00 20,00 10,00"_s);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(SortByColumnTest, ARecordsetThatCannotBeSortedShowsTheErrorBox) {
    const auto records = connection->Execute(u"select PRODUCT as NAME from POLICIES"_s);
    fill(ZKP_RecordSet, QVariant::fromValue(records));
    sortBy(1);
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].title, u"QRN Insurance"_s);
    EXPECT_EQ(log, (QStringList{u"Start"_s})) << "ended by its error road";
    EXPECT_EQ(host->pointer(), kPointerDefault);
}

TEST_F(SortByColumnTest, AFailedLoadShowsItsOwnBoxAndTheSortEnds) {
    grid->setSqlOnRunTime(true);
    fill();
    connection->Execute(u"drop table POLICIES"_s);
    sortBy(1);
    EXPECT_FALSE(host->messages.empty());
    EXPECT_EQ(log.first(), u"Start"_s);
    EXPECT_TRUE(log.last().startsWith(u"Stop"_s));
    EXPECT_EQ(host->pointer(), kPointerDefault);
}

TEST_F(SortByColumnTest, AHandlerThatThrowsEndsInTheErrorBox) {
    grid->setSqlOnRunTime(true);
    fill();
    QObject::connect(&grid->events(), &Events::StartSorting, [] { throw std::runtime_error("no"); });
    EXPECT_NO_THROW(sortBy(1));
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(log, (QStringList{u"Start"_s}));
    EXPECT_EQ(grid->OrderBy(), u""_s);
    EXPECT_EQ(host->pointer(), kPointerDefault);
}

TEST_F(SortByColumnTest, ACompareThatThrowsEndsInTheErrorBox) {
    grid->setCols(3);
    grid->setRows(4);
    grid->setColDataField(2, {});
    grid->Sort(1);
    QObject::connect(&grid->events(), &Events::Compare, [](CompareArgs&) { throw std::runtime_error("no"); });
    EXPECT_NO_THROW(sortBy(2));
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(log, (QStringList{u"Start"_s}));
}

TEST_F(SortByColumnTest, AHandlerMayDestroyTheControl) {
    grid->setSqlOnRunTime(true);
    fill();
    QObject::connect(&grid->events(), &Events::StartFilling, [this] { grid.reset(); });
    EXPECT_NO_THROW(sortBy(1));
    EXPECT_FALSE(grid);
    EXPECT_EQ(host->pointer(), kPointerDefault);
}

TEST_F(SortByColumnTest, WithNoDataRowNoRowIsMadeAndNothingFails) {
    grid->setSqlOnRunTime(true);
    connection->Execute(u"delete from POLICIES"_s);
    fill();
    sortBy(1);
    EXPECT_EQ(grid->Rows(), 1);
    EXPECT_TRUE(host->messages.empty());
    EXPECT_EQ(log.last(), u"Stop at row 0, pointer 0"_s);
}
