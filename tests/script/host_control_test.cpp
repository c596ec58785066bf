#include "script_fixture.h"

#include "host/scripted_host.h"
#include "zkp_grid.h"

namespace {

/// A control that the host made and offers to scripts as `report`.
class HostControl : public ScriptTest {
protected:
    HostControl() {
        grid->setCols(2);
        runner.addControl(QStringLiteral("report"), *grid);
    }

    std::shared_ptr<zkp::ScriptedHost> host = std::make_shared<zkp::ScriptedHost>();
    std::unique_ptr<zkp::ZkpGrid> grid = std::make_unique<zkp::ZkpGrid>(host);
};

TEST_F(HostControl, AScriptReadsAndWritesIt) {
    grid->setColCaption(1, QStringLiteral("Ποσό"));
    EXPECT_EQ(linesOf(QStringLiteral("print(report.ColCaption(1)); report.setColWidth(0, 900);")),
              QStringList{QStringLiteral("Ποσό")});
    EXPECT_EQ(grid->ColWidth(0), 900);
}

TEST_F(HostControl, AScriptHearsItsEventsUntilTheRunnerGoes) {
    {
        QStringList printed;
        zkp::script::ScriptRunner other([&](const QString& line) { printed << line; }, [](const QString&) {});
        other.addControl(QStringLiteral("report"), *grid);
        other.runText(
            QStringLiteral("report.events.PropertyChanged.connect(function (e) { print(e.name); });"),
            QStringLiteral("t.js"));
        grid->setRowSelect(true);
        EXPECT_EQ(printed, QStringList{QStringLiteral("RowSelect")});
        printed.clear();
    }
    grid->setRowSelect(false);
    EXPECT_FALSE(grid->RowSelect());
}

TEST_F(HostControl, ItsBoxesGoToTheHost) {
    EXPECT_EQ(linesOf(QStringLiteral("report.Fill(cn, 'SELECT * FROM NONESUCH', ZKP_SQLStatement);"
                                     "report.refresh(); print(host.messages.length);")),
              QStringList{QStringLiteral("0")});
    EXPECT_EQ(host->messages.size(), 1u);
}

TEST_F(HostControl, AScriptCanNotDestroyIt) {
    EXPECT_EQ(errorNumber(QStringLiteral("report.destroy()")), zkp::kErrIllegalOperation);
    EXPECT_EQ(linesOf(QStringLiteral("print(report.Cols)")), QStringList{QStringLiteral("2")});
}

TEST_F(HostControl, ItsLocaleIsTheHosts) {
    grid->setLocale(QLocale(QStringLiteral("en_US")));
    linesOf(QStringLiteral("host.locale = 'el_GR'"));
    EXPECT_EQ(grid->Locale().name(), QStringLiteral("en_US"));
}

TEST_F(HostControl, OnceItIsGoneItIsAnErrorToUseIt) {
    linesOf(QStringLiteral("var columns = report.Columns; report.events.Click.connect(function () {});"));
    grid.reset();
    EXPECT_EQ(errorNumber(QStringLiteral("report.Cols")), zkp::kErrObjectNotSet);
    EXPECT_EQ(errorNumber(QStringLiteral("columns.Count")), zkp::kErrObjectNotSet);
    EXPECT_EQ(errorNumber(QStringLiteral("report.events.Click.connect(function () {})")),
              zkp::kErrObjectNotSet);
}

} // namespace
