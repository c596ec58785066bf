#include "core/report_state.h"
#include "core/stat_field.h"
#include "load_fixture.h"
#include "sql/dictionary.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// A dictionary with one row for each mixture of flags that the statements tell apart.
class DictionaryTest : public testing::Test {
protected:
    DictionaryTest() {
        state.source.Cn = std::make_shared<ado::Connection>();
        state.source.Cn->Open(u"sqlite:"_s);
        state.source.Cn->Execute(
            u"create table CLMNS (dtfld text, Cptn text, visbl integer, IsPublic integer, "
            "isGroup integer, [Sum] integer, [Avg] integer, [Min] integer, [Max] integer)"_s);
        state.source.Cn->Execute(
            u"insert into CLMNS values ('PLAIN','β',1,1,0,0,0,0,0), ('SECRET','α',1,0,0,0,0,0,0),"
            "('HIDDEN','γ',0,1,1,1,0,0,0), ('GROUP','ε',1,1,1,0,0,0,0), ('SUMS','δ',1,0,0,1,0,0,0)"_s);
        state.data.clmns = u"CLMNS"_s;
    }

    QStringList keys() {
        QStringList keys;
        const auto rows = dictionary.recordset();
        if (rows->RecordCount() > 0)
            for (rows->MoveFirst(); !rows->Eof(); rows->MoveNext())
                keys << rows->Fields().Item(u"dtfld").Value().toString();
        return keys;
    }

    ReportState state;
    Dictionary dictionary{state.data, state.source, state.identity};
};

} // namespace

TEST_F(DictionaryTest, TheStatementGoesByModeAndUser) {
    const struct {
        bool totals;
        QString user;
        QString statement;
        QStringList keys;
    } cases[] = {
        {false,
         u""_s,
         u"Select * from CLMNS where visbl = 1  order by cptn"_s,
         {u"SECRET"_s, u"PLAIN"_s, u"SUMS"_s, u"GROUP"_s}},
        {false,
         u"7"_s,
         u"Select * from CLMNS where visbl = 1 and IsPublic <> 0 order by cptn"_s,
         {u"PLAIN"_s, u"GROUP"_s}},
        {true,
         u""_s,
         u"Select * from CLMNS where visbl = 1 and (isGroup = 1 or [Sum] = 1 or [Avg] = 1 or [Min] =1  or [Max] = 1) order by cptn"_s,
         {u"SUMS"_s, u"GROUP"_s}},
        {true,
         u"7"_s,
         u"Select * from CLMNS where visbl = 1 and IsPublic <> 0 and (isGroup = 1 or [Sum] = 1 or [Avg] = 1 or [Min] =1  or [Max] = 1) order by cptn"_s,
         {u"GROUP"_s}},
    };
    for (const auto& c : cases) {
        dictionary.release();
        state.data.TotalForm = c.totals;
        state.identity.ProductID = c.user;
        dictionary.load();
        EXPECT_EQ(dictionary.recordset()->Source(), c.statement);
        EXPECT_EQ(keys(), c.keys);
    }
}

TEST_F(DictionaryTest, RowsThatAreOpenAreReusedFromTheFirst) {
    dictionary.load();
    keys();
    const auto rows = dictionary.recordset();
    state.source.Cn->Execute(u"delete from CLMNS"_s);
    state.data.TotalForm = true;
    dictionary.load();
    EXPECT_EQ(dictionary.recordset(), rows);
    EXPECT_EQ(rows->AbsolutePosition(), 1);
    EXPECT_EQ(keys().size(), 4);
}

TEST_F(DictionaryTest, ABlankNameMeansNoDictionary) {
    state.data.clmns = u"  "_s;
    dictionary.load();
    EXPECT_EQ(dictionary.recordset()->State(), ado::adStateClosed);
}

TEST_F(DictionaryTest, TheEmptyReportAsksInTheBooleanDialect) {
    state.data.TotalForm = true;
    dictionary.loadForEmptyReport();
    EXPECT_EQ(
        dictionary.recordset()->Source(),
        u"Select * from CLMNS where visbl=1 and (isGroup or [Sum] or [Avg] or [Min] or [Max]) order by cptn"_s);
    EXPECT_EQ(keys(), (QStringList{u"SUMS"_s, u"GROUP"_s}));
    state.data.TotalForm = false;
    dictionary.loadForEmptyReport();
    EXPECT_EQ(dictionary.recordset()->Source(), u"Select * from CLMNS where visbl = 1  order by cptn"_s);
}

using DictionaryLoadTest = LoadTest;

TEST_F(DictionaryLoadTest, TheDictionaryFollowsEvenWhenRowsAreFrozen) {
    grid->setclmns(u"NOWHERE"_s);
    grid->setRefreshOnChange(false);
    fill();
    grid->refresh();
    EXPECT_EQ(host->messages.size(), 1u); // it was asked for
}

TEST_F(DictionaryLoadTest, AMissingDictionaryShowsTheErrorBox) {
    grid->setclmns(u"NOWHERE"_s);
    fill();
    grid->refresh();
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].style, 48); // a statement that the database could not take
    EXPECT_EQ(host->messages[0].title, u"QRN Insurance"_s);
}

TEST_F(DictionaryLoadTest, AnEmptyReportShowsHeadingsAndMinRows) {
    connection->Execute(
        u"create table CLMNS (dtfld text, cptn text, wdth money, isgroup bit, isTot bit, Algn integer, visbl integer)"_s);
    columns({u"POLICYID"_s, u"AGENTNAME"_s});
    fill();
    grid->refresh();
    grid->setclmns(u"CLMNS"_s);
    grid->setMinRows(6);
    grid->PrepareEmptyGrid();
    EXPECT_EQ(grid->Rows(), 6);
    EXPECT_EQ(grid->TextMatrix(0, 1), u"AGENTNAME"_s);
    EXPECT_EQ(grid->TextMatrix(1, 0), u""_s);
    EXPECT_EQ(grid->Col(), 0);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(DictionaryLoadTest, AnEmptyReportNeedsADictionaryAndAConnection) {
    fill();
    columns({u"POLICYID"_s});
    grid->refresh();
    grid->PrepareEmptyGrid();
    EXPECT_EQ(grid->Rows(), 4);
}

TEST_F(DictionaryLoadTest, TheSpecialSourceReplacesTheRecordSourceWhereItExists) {
    connection->Execute(
        u"create table CLMNS (dtfld text, cptn text, wdth money, isgroup bit, isTot bit, Algn integer, visbl integer)"_s);
    connection->Execute(u"create view SpecialPolicies as select * from POLICIES"_s);
    grid->setclmns(u"CLMNS"_s);
    fill();
    grid->setspecialinfo(true);
    grid->setspecialrecordsource(u"Nowhere"_s);
    grid->PrepareEmptyGrid();
    EXPECT_EQ(grid->RecordsourceSTR(), u"select * from POLICIES order by POLICYID"_s);
    grid->setspecialrecordsource(u" specialpolicies "_s);
    grid->PrepareEmptyGrid();
    EXPECT_EQ(grid->RecordsourceSTR(), u" specialpolicies "_s);
}

TEST_F(DictionaryLoadTest, AnEmptyTotalsReportOffersTheLossRatioColumns) {
    connection->Execute(
        u"create table CLMNS (dtfld text, cptn text, wdth money, isgroup bit, isTot bit, Algn integer, "
        "crosstabdate bit, [Sum] bit, [Avg] bit, [Min] bit, [Max] bit, visbl integer)"_s);
    grid->setclmns(u"CLMNS"_s);
    grid->setTotalForm(true);
    host->setPointer(kPointerHourglass);
    grid->PrepareEmptyGrid();
    ASSERT_EQ(statFields().Count(), 6);
    EXPECT_EQ(statFields().Item(1).DataField, u"Cnt"_s);
    const std::pair<QString, QString> ratios[] = {{u"LR"_s, u"Παραγωγή/Ζημιές (Loss Ratio)"_s},
                                                  {u"LR1"_s, u"Ζημιές/Παραγωγή (Loss Ratio)"_s},
                                                  {u"LR2"_s, u"Παραγωγή-Ζημιές"_s},
                                                  {u"LR3"_s, u"Ζημιές%Παραγωγής)"_s}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(statFields().Item(i + 3).DataField, ratios[i].first);
        EXPECT_EQ(statFields().Item(i + 3).Caption, ratios[i].second);
        EXPECT_EQ(statFields().Item(i + 3).Width, Currency::fromWhole(1050));
        EXPECT_EQ(statFields().Item(i + 3).Align, 7);
        EXPECT_TRUE(statFields().Item(i + 3).IsTot);
        EXPECT_FALSE(statFields().Item(i + 3).IsGroup);
    }
    EXPECT_EQ(host->pointer(), kPointerHourglass); // a totals report leaves the pointer
    grid->setTotalForm(false);
    grid->PrepareEmptyGrid();
    EXPECT_EQ(host->pointer(), kPointerDefault);
}

TEST_F(DictionaryLoadTest, EachLoadMakesTheListOfFieldsAnew) {
    connection->Execute(
        u"create table CLMNS (dtfld text, cptn text, wdth money, isgroup bit, isTot bit, Algn integer, visbl integer)"_s);
    connection->Execute(u"insert into CLMNS values ('POLICYID', 'Αριθμός', 900, 0, 0, 7, 1)"_s);
    grid->setclmns(u"CLMNS"_s);
    fill();
    grid->refresh();
    grid->refresh();
    ASSERT_EQ(statFields().Count(), 1);
    EXPECT_EQ(statFields().Item(1).DataField, u"POLICYID"_s);
}

TEST_F(DictionaryLoadTest, EndingTheControlReleasesTheDictionary) {
    connection->Execute(
        u"create table CLMNS (dtfld text, cptn text, wdth money, isgroup bit, isTot bit, Algn integer, visbl integer)"_s);
    grid->setclmns(u"CLMNS"_s);
    grid->LoadDictionary();
    connection->Execute(u"insert into CLMNS values ('POLICYID', 'Αριθμός', 900, 0, 0, 7, 1)"_s);
    grid->LoadDictionary(); // reused: the new row is not seen
    EXPECT_EQ(statFields().Count(), 0);
    grid->UserControl_Terminate();
    grid->LoadDictionary();
    EXPECT_EQ(statFields().Count(), 1);
}
