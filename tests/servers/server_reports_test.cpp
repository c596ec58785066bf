#include "server_fixture.h"

#include "host/scripted_host.h"
#include "zkp_grid.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zkp::servers {

namespace {

/// One report as a host sets it up.
struct Report {
    const char* title;
    const char* source;
    const char* dictionary;
    const char* columns;
    const char* factors = "";
    bool totals = false;
    bool runTime = false;
    bool lossRatio = false;
    const char* filter = "";
    const char* orderBy = "";
    const char* user = "";
};

/// The demonstration's reports on every road of a statement. Each has an order that leaves no two records
/// to choice, or is compared in the order that its groups give it.
const Report kReports[] = {
    {"Plain", "POLICIESDATA", "",
     "POLICYNO,BRANCH,STATUS,PREMIUM,ISSUEDATE,ENTEREDAT,ISPAID,RATE,INSTALMENTS,REMARKS"},
    {"Dictionary", "POLICIESDATA", "POLICIESCLMNS",
     "POLICYNO,AGENTNAME,HIREYEAR,SIZECLASS,RETAINED,REMARKS,ENTEREDAT", "", false, true, false, "",
     "POLICYNO"},
    {"Subtotals", "POLICIESDATA", "POLICIESCLMNS", "POLICYNO,PREMIUM,NET", "REGION,BRANCH", false, true,
     false, "", "POLICYNO"},
    {"FilterByText", "POLICIESDATA", "POLICIESCLMNS", "POLICYNO,BRANCH,PREMIUM", "", false, true, false,
     "BRANCH='Βόλος' AND PREMIUM>200", "POLICYNO"},
    {"FilterByFlag", "POLICIESDATA", "POLICIESCLMNS", "POLICYNO,ISPAID", "", false, true, false, "ISPAID=1",
     "POLICYNO"},
    {"FilterByDay", "POLICIESDATA", "POLICIESCLMNS", "POLICYNO,STARTDATE", "", false, true, false,
     "STARTDATE>=Convert(Datetime,'03/01/2025',102)", "POLICYNO"},
    {"FilterTrue", "CLAIMSDATA", "CLAIMSCLMNS", "CLAIMNO,CAUSE,DELAYDAYS,INCURRED", "", false, true, false,
     "TRUE", "CLAIMNO"},
    {"Totals", "POLICIESDATA", "POLICIESCLMNS",
     "CNT,SUM_PREMIUM,AVG_PREMIUM,MIN_PREMIUM,MAX_PREMIUM,POS_PREMIUM,POS_CNT,MAX_STARTDATE", "REGION,BRANCH",
     true, false, false, "PREMIUM>0"},
    {"TotalsByNull", "POLICIESDATA", "POLICIESCLMNS", "CNT,SUM_NET,AVG_INSTALMENTS", "PAYWAY,INSTALMENTS",
     true, false, false, "0=0"},
    {"RunTimeTotals", "POLICIESDATA", "POLICIESCLMNS",
     "CNT,SUM_PREMIUM,POS_PREMIUM,SUM_RETAINED,MIN_ISSUEDATE", "CATEGORY,PRODUCTNAME", true, true},
    {"RunTimeTotalsOfExpressions", "POLICIESDATA", "POLICIESCLMNS", "CNT,SUM_NET", "POLICYYEAR,SIZECLASS",
     true, true},
    {"LossRatios", "LOSSRATIODATA", "LOSSRATIOCLMNS", "CNT,SUM_POSON,SUM_POSONLR,LR,LR1,LR2,LR3", "REGION",
     true, true, true},
    {"LossRatiosOfTheView", "LOSSRATIODATA", "LOSSRATIOCLMNS", "CNT,SUM_POSON,LR,LR1,LR2,LR3",
     "REGION,BRANCH", true, false, true, "0=0"},
    {"RightsOfAProducer", "POLICIESDATA", "POLICIESCLMNS", "POLICYNO,PREMIUM", "", false, true, false, "",
     "POLICYNO", "0"},
    {"RightsOfAManager", "POLICIESDATA", "POLICIESCLMNS", "CNT,SUM_PREMIUM", "BRANCH", true, true, false, "",
     "", "4"},
    {"RightsInTheView", "POLICIESDATA", "", "POLICYNO,BRANCH,STATUS,PREMIUM", "", false, false, false, "", "",
     "2"},
    {"Products", "QRYPRODUCT", "PRODUCTCLMNS", "CNT,SUM_PREMIUM", "CATEGORY", true, false, false, "0=0"},
    {"Refused", "POLICIESDATA", "POLICIESCLMNS", "POLICYNO,PREMIUM", "", false, true, false, "NONESUCH=1"},
};

void PrintTo(const Report& report, std::ostream* out) {
    *out << report.title;
}

/// A number without what tells money from other numbers: the embedded database knows no money in expressions,
/// and sums them as doubles.
QString plainNumber(QString text) {
    static const QRegularExpression number(u"^-?[0-9.]+(,[0-9]+)?$"_s);
    if (!number.match(text).hasMatch())
        return text;
    return QString::number(text.remove(u'.').replace(u',', u'.').toDouble(), 'f', 8);
}

/// A control that has loaded a report, as a reader sees it: a line a row, its kind first. Boxes stand in
/// front, without the words of the database, which are its own.
QStringList shown(const QString& connectionString, const Report& report) {
    const auto connection = std::make_shared<ado::Connection>();
    connection->Open(connectionString);
    const auto host = std::make_shared<ScriptedHost>();
    ZkpGrid grid(host);
    grid.setLocale(QLocale(u"el_GR"_s));
    const QStringList factors = u(report.factors).split(u',', Qt::SkipEmptyParts);
    const QStringList all = factors + u(report.columns).split(u',');
    grid.setCols(static_cast<int>(all.size()));
    for (int c = 0; c < all.size(); ++c) {
        grid.setColDataField(c, all[c]);
        grid.setColForTot(c, c < factors.size());
        const bool amount = all[c] == u"PREMIUM"_s || all[c] == u"NET"_s;
        grid.setColTotals(c, report.totals ? all[c].mid(3, 1) == u"_"_s : amount);
    }
    grid.setclmns(u(report.dictionary));
    grid.setTotalForm(report.totals);
    grid.setSqlOnRunTime(report.runTime);
    grid.setLossRatio(report.lossRatio);
    grid.setFilter(u(report.filter));
    grid.setOrderBy(u(report.orderBy));
    QString user;
    if (*report.user)
        user = connection
                   ->Execute(u"SELECT UserID FROM SECUSERS WHERE Ierarxia = '"_s + u(report.user) +
                             u"' ORDER BY UserID"_s)
                   ->Fields()
                   .Item(0)
                   .Value()
                   .toString();
    grid.Fill(connection, u(report.source), ZKP_Table_QUERY, user);
    grid.refresh();

    QStringList lines;
    for (const auto& message : host->messages)
        lines << u"box %1 %2"_s.arg(message.style).arg(message.title);
    const GridSurface& surface = grid.MSFlexGrid1();
    for (int row = 0; row < surface.Rows(); ++row) {
        QString line = QString::number(surface.RowData(row));
        for (int col = 0; col < surface.Cols(); ++col)
            line += u" | "_s + plainNumber(surface.TextMatrix(row, col));
        lines << line;
    }
    return lines;
}

QString demoOn(const Server& server) {
    return QString::fromUtf8(qgetenv((QByteArray(server.variable) + "_DEMO").constData()));
}

QString embedded() {
    return u"sqlite:"_s + QString::fromUtf8(qgetenv("ZKP_TEST_DEMO"));
}

} // namespace

class ServerReportsTest : public testing::TestWithParam<std::tuple<Server, Report>> {};
INSTANTIATE_TEST_SUITE_P(Servers, ServerReportsTest,
                         testing::Combine(testing::Values(kPostgres, kMariaDb), testing::ValuesIn(kReports)),
                         [](const auto& param) {
                             return std::string(std::get<0>(param.param).name) +
                                    std::get<1>(param.param).title;
                         });

TEST_P(ServerReportsTest, AReportIsTheSameAsOnTheEmbeddedDatabase) {
    const auto& [server, report] = GetParam();
    const QStringList wanted = shown(embedded(), report);
    const QStringList found = shown(demoOn(server), report);
    EXPECT_GT(wanted.size(), report.title == std::string("Refused") ? 1 : 2);
    for (qsizetype i = 0; i < std::min(wanted.size(), found.size()); ++i)
        ASSERT_EQ(found[i], wanted[i]) << "line " << i;
    EXPECT_EQ(found.size(), wanted.size());
}

class ServerTemplateTest : public ServerTest {
protected:
    ServerTemplateTest() {
        cn = std::make_shared<ado::Connection>();
        cn->Open(demoOn(GetParam()));
    }
};
INSTANTIATE_TEST_SUITE_P(Servers, ServerTemplateTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerTemplateTest, ATemplateIsStoredAndOpenedAgain) {
    run("DELETE FROM frms2");
    for (const int width : {900, 1200}) {
        ZkpGrid grid(std::make_shared<ScriptedHost>());
        grid.setCn(cn);
        grid.setCols(2);
        grid.setColDataField(0, u"POLICYNO"_s);
        grid.setColWidth(0, width);
        grid.SaveTemplate({}, u"Δοκιμή"_s);
    }
    EXPECT_EQ(one("SELECT Count(*) FROM frms2").toInt(), 1);
    ZkpGrid back(std::make_shared<ScriptedHost>());
    back.opentemplate(cn, {}, u"Δοκιμή"_s);
    EXPECT_EQ(back.ColDataField(0), u"POLICYNO"_s);
    EXPECT_EQ(back.ColWidth(0), 1200);
}

} // namespace zkp::servers
