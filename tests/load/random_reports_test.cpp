#include "random_report.h"
#include "report_recount.h"
#include "report_text.h"

#include "host/scripted_host.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace zkp::reportcases {

namespace {

/// Small random reports, loaded and worked out again from what their grids show.
class RandomReportsTest : public testing::Test {
protected:
    RandomReportsTest() {
        connection_->Open(u"sqlite:"_s);
        makeTables(connection_);
    }

    /// Nothing when the grid is right; otherwise the first difference.
    QString problemOf(const RandomReport& report) {
        const auto host = std::make_shared<ScriptedHost>();
        ZkpGrid grid(host);
        grid.setLocale(QLocale(u"el_GR"_s));
        setUp(grid, connection_, report);
        if (report.heard)
            QObject::connect(&grid.events(), &Events::RetrieveRow, [](RetrieveRowArgs&) {});
        grid.refresh();
        for (const auto& message : host->messages)
            return u"a box: "_s + message.text;

        const TextRows rows = rowsWithKinds(grid.MSFlexGrid1(), 1);
        TextRows records;
        std::ranges::copy_if(rows, std::back_inserter(records),
                             [](const TextRow& row) { return row.front() == u"record"; });
        const ReportRecount recount(report);
        const QString inRecords = firstDifference(recount.records(), records);
        return inRecords.isEmpty() ? firstDifference(recount.rebuilt(records), rows) : inRecords;
    }

    void tryOut(std::uint32_t firstSeed, std::uint32_t count, bool totalForm) {
        for (std::uint32_t seed = firstSeed; seed < firstSeed + count; ++seed) {
            const RandomReport report = randomReport(seed, totalForm);
            const QString problem = problemOf(report);
            ASSERT_TRUE(problem.isEmpty())
                << "seed " << seed << ": " << report.description().toStdString() << problem.toStdString();
        }
    }

    ado::ConnectionPtr connection_ = std::make_shared<ado::Connection>();
};

} // namespace

TEST_F(RandomReportsTest, PlainReportsAreWhatTheirFiguresMakeThem) {
    tryOut(1, 2000, false);
}

TEST_F(RandomReportsTest, TotalsReportsAreWhatTheirFiguresMakeThem) {
    tryOut(100'001, 1000, true);
}

} // namespace zkp::reportcases
