#pragma once

#include "grid_fixture.h"
#include "rights/report.h"

#include <QTemporaryDir>

namespace zkp::rights {

/// A control over the made database, and everything that it reported on the way.
class ReportTest : public GridTest {
protected:
    ReportTest() { connection->Open(QStringLiteral("sqlite:") + madeFile()); }

    /// Loads the report in a fresh control and gives the fields of its records. It must go without a box.
    Rows load(const Report& report, const QStringList& fields, const User* user = nullptr) {
        refresh(report, user ? QString::fromStdString(user->id) : QString());
        EXPECT_EQ(boxes(), QStringList());
        const auto records = recordset();
        EXPECT_EQ(grid->RecCount(), records ? static_cast<double>(records->RecordCount()) : 0.0);
        return rowsOf(records, fields);
    }
    /// Loads the report in a fresh control, whatever comes of it.
    void refresh(const Report& report, const QString& user = {}) {
        prepare(report, user);
        grid->refresh();
    }
    void prepare(const Report& report, const QString& user = {}) {
        host->messages.clear();
        grid = std::make_unique<ZkpGrid>(host);
        grid->setLocale(QLocale(QStringLiteral("el_GR")));
        setUp(*grid, report);
        fill(*grid, report, connection, user);
    }
    ado::RecordsetPtr recordset() const { return grid->RecordSource().value<ado::RecordsetPtr>(); }

    /// The texts of the boxes shown since the last load began.
    QStringList boxes() const {
        QStringList texts;
        for (const auto& message : host->messages)
            texts << message.text;
        return texts;
    }

    ado::ConnectionPtr connection = std::make_shared<ado::Connection>();
};

/// A control over a copy that the test may spoil.
class SpoiltTest : public ReportTest {
protected:
    SpoiltTest() {
        const QString file = folder.filePath(QStringLiteral("spoilt.db"));
        copyMadeDatabase(file);
        connection = std::make_shared<ado::Connection>();
        connection->Open(QStringLiteral("sqlite:") + file);
        database = std::make_unique<demo::test::Reader>(file);
    }

    void spoil(const QString& statement) { connection->Execute(statement); }
    bool isErrorBox(int style) const {
        return host->messages.size() == 1 && host->messages.front().style == style &&
               host->messages.front().title == QStringLiteral("QRN Insurance") &&
               host->messages.front().text.startsWith(QStringLiteral("Παρουσιάστικε Εξαίρεση : "));
    }
    /// The control, the connection and the data are none the worse for what happened.
    void expectAllIsWell() {
        const Report plain{QStringLiteral("POLICIESDATA"),
                           {},
                           {QStringLiteral("POLICYNO"), QStringLiteral("BRANCH"), QStringLiteral("STATUS"),
                            QStringLiteral("PREMIUM")}};
        const Rows expected =
            byHand("SELECT POLICYNO, BRANCH, STATUS, PREMIUM FROM POLICIESDATA ORDER BY 1, 2, 3, 4");
        host->messages.clear();
        setUp(*grid, plain);
        fill(*grid, plain, connection);
        grid->refresh();
        EXPECT_EQ(boxes(), QStringList());
        EXPECT_EQ(rowsOf(recordset(), plain.columns), expected);
    }

    QTemporaryDir folder;
    std::unique_ptr<demo::test::Reader> database;
};

} // namespace zkp::rights
