#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

/// A source with its dictionary, and what its run-time statements leave out by the report's own condition.
struct Source {
    QString name;
    QString dictionary;
    std::string standing;

    std::string from() const { return " FROM " + name.toStdString(); }
};
const Source kSources[] = {{u"POLICIESDATA"_s, u"POLICIESCLMNS"_s, "1 = 1"},
                           {u"CLAIMSDATA"_s, u"CLAIMSCLMNS"_s, "STATUS <> 'Άκυρη'"},
                           {u"LOSSRATIODATA"_s, u"LOSSRATIOCLMNS"_s, "1 = 1"},
                           {u"QRYPRODUCT"_s, u"PRODUCTCLMNS"_s, "1 = 1"}};

QStringList keys(const Source& source, const std::string& condition) {
    QStringList all;
    for (const auto& key : madeDatabase().column("SELECT dtfld FROM " + source.dictionary.toStdString() +
                                                 " WHERE " + condition + " ORDER BY rowid"))
        all << QString::fromStdString(key);
    return all;
}

std::string bracketed(const QStringList& names) {
    return u"[%1]"_s.arg(names.join(u"],["_s)).toStdString();
}

/// Every aggregate that the dictionary allows, as the columns of a totals report, and by hand.
struct Aggregates {
    QStringList columns;
    std::string items;
};
Aggregates aggregates(const Source& source) {
    Aggregates all;
    for (const QString& function : {u"Sum"_s, u"Avg"_s, u"Min"_s, u"Max"_s})
        for (const QString& key :
             keys(source, "visbl = 1 AND [" + function.toStdString() + "] = 1 AND dtfld NOT LIKE 'LR%'")) {
            all.columns << function.toUpper() + u'_' + key;
            all.items += ", " + function.toStdString() + "([" + key.toStdString() + "])";
        }
    return all;
}

using StatementsTest = ReportTest;

} // namespace

TEST_F(StatementsTest, PlainReportsOverTheirSourceShowEveryFieldOfTheDictionary) {
    for (const Source& source : kSources) {
        const QStringList all = keys(source, "visbl = 1");
        const Rows rows = load({source.name, source.dictionary, all}, all);
        EXPECT_EQ(sorted(rows), sorted(byHand("SELECT " + bracketed(all) + source.from()))) << source.from();
        // Without a sort of its own a report is sorted by its first four columns.
        EXPECT_EQ(rowsOf(recordset(), all.first(4)),
                  byHand("SELECT " + bracketed(all.first(4)) + source.from() + " ORDER BY 1, 2, 3, 4"));
    }
}

TEST_F(StatementsTest, PlainReportsComposedFromTheDictionaryShowTheSame) {
    for (const Source& source : kSources) {
        const QStringList all = keys(source, "visbl = 1");
        const Rows rows = load({.source = source.name,
                                .dictionary = source.dictionary,
                                .columns = all,
                                .runTime = true,
                                .filter = u"TRUE"_s},
                               all);
        EXPECT_EQ(sorted(rows),
                  sorted(byHand("SELECT " + bracketed(all) + source.from() + " WHERE " + source.standing)))
            << source.from();
    }
}

TEST_F(StatementsTest, PlainReportsAreSortedByTheirFactorsAndThenByTheHostsOrder) {
    for (const bool runTime : {false, true}) {
        const QStringList fields{u"REGION"_s, u"CATEGORY"_s, u"POLICYNO"_s};
        const Rows rows = load({.source = u"POLICIESDATA"_s,
                                .dictionary = u"POLICIESCLMNS"_s,
                                .columns = {u"POLICYNO"_s},
                                .factors = {u"REGION"_s, u"CATEGORY"_s},
                                .runTime = runTime,
                                .orderBy = u"POLICYNO"_s},
                               fields);
        EXPECT_EQ(rows, byHand("SELECT REGION, CATEGORY, POLICYNO FROM POLICIESDATA ORDER BY 1, 2, 3"));
    }
}

TEST_F(StatementsTest, TotalsReportsByEachFactorOfTheDictionary) {
    for (const Source& source : kSources) {
        const Aggregates wanted = aggregates(source);
        for (const QString& factor : keys(source, "visbl = 1 AND isgroup = 1"))
            for (const bool runTime : {false, true}) {
                const Rows rows = load({.source = source.name,
                                        .dictionary = source.dictionary,
                                        .columns = wanted.columns,
                                        .factors = {factor},
                                        .totals = true,
                                        .runTime = runTime,
                                        .filter = u"TRUE"_s},
                                       QStringList{factor, u"Cnt"_s} + wanted.columns);
                EXPECT_EQ(sorted(rows), sorted(byHand("SELECT [" + factor.toStdString() + "], count(*)" +
                                                      wanted.items + source.from() + " WHERE " +
                                                      (runTime ? source.standing : "1 = 1") + " GROUP BY 1")))
                    << source.from() << " by " << factor.toStdString() << (runTime ? " at run time" : "");
            }
    }
}

TEST_F(StatementsTest, TotalsReportsByThreeFactorsComeSortedByAllButTheLast) {
    for (const bool runTime : {false, true}) {
        const QStringList factors{u"REGION"_s, u"CATEGORY"_s, u"STATUS"_s};
        const Rows rows = load({.source = u"POLICIESDATA"_s,
                                .dictionary = u"POLICIESCLMNS"_s,
                                .columns = {u"SUM_PREMIUM"_s},
                                .factors = factors,
                                .totals = true,
                                .runTime = runTime},
                               factors + QStringList{u"Cnt"_s, u"SUM_PREMIUM"_s});
        EXPECT_EQ(rows, byHand("SELECT REGION, CATEGORY, STATUS, count(*), sum(PREMIUM) FROM POLICIESDATA "
                               "GROUP BY 1, 2, 3 ORDER BY 1, 2, 3"));
    }
}

TEST_F(StatementsTest, TheProductsSourceGivesWayToItsSisterUnderTheOfficesCode) {
    const QStringList fields{u"PRODUCTNAME"_s, u"CATEGORY"_s, u"BRANCH"_s, u"PREMIUM"_s};
    const Report report{u"QRYPRODUCT"_s, u"PRODUCTCLMNS"_s, fields};
    EXPECT_EQ(load(report, fields), byHand("SELECT PRODUCTNAME, CATEGORY, BRANCH, PREMIUM FROM QRYPRODUCT "
                                           "ORDER BY 1, 2, 3, 4"));

    QTemporaryDir folder;
    copyMadeDatabase(folder.filePath(u"nik.db"_s));
    connection = std::make_shared<ado::Connection>();
    connection->Open(u"sqlite:"_s + folder.filePath(u"nik.db"_s));
    connection->Execute(u"update QRN_Main set GenValue = '151' where GenKey = 2 and GenSubKey = 18"_s);
    EXPECT_EQ(load(report, fields), byHand("SELECT DISTINCT PRODUCTNAME, CATEGORY, BRANCH, PREMIUM FROM "
                                           "QRYProductNik ORDER BY 1, 2, 3, 4"));
}

TEST_F(StatementsTest, AHostsOwnStatementAndCommandNeedNoDictionary) {
    const std::string statement = "SELECT POLICYNO, PREMIUM FROM POLICIESDATA WHERE PREMIUM < 0 ORDER BY 1";
    const QString text = QString::fromStdString(statement);
    grid->setCols(2);
    grid->Fill(connection, text, ZKP_SQLStatement);
    grid->refresh();
    EXPECT_EQ(rowsOf(recordset(), {u"POLICYNO"_s, u"PREMIUM"_s}), byHand(statement));

    const auto command = std::make_shared<ado::Command>();
    command->CommandText = text;
    grid->Fill(connection, QVariant::fromValue(ado::CommandPtr(command)), ZKP_Command);
    grid->refresh();
    EXPECT_EQ(rowsOf(recordset(), {u"POLICYNO"_s, u"PREMIUM"_s}), byHand(statement));
    EXPECT_EQ(boxes(), QStringList());
}

} // namespace zkp::rights
