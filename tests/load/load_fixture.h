#pragma once

#include "grid_fixture.h"

/// A control over a small database in memory: POLICIES with three rows, a null in each kind of column.
class LoadTest : public GridTest {
protected:
    LoadTest() {
        using namespace Qt::StringLiterals;
        connection->Open(u"sqlite:"_s);
        connection->Execute(u"create table POLICIES (POLICYID integer, AGENTNAME text, PREMIUM money, "
                            "RATE double, STARTS date, ACTIVE bit)"_s);
        connection->Execute(u"insert into POLICIES values (1, 'Ελένη Ζαφειρίου', 1234.5, 0.25, '2026-11-20', 1),"
                            "(2, null, null, null, null, null), (3, '', -0.005, 12.5, '1999-03-05', 0)"_s);
        grid->setCn(connection);
    }

    /// Columns with these fields; the caption of each is its field.
    void columns(const QStringList& fields) {
        grid->setCols(static_cast<int>(fields.size()));
        for (int c = 0; c < fields.size(); ++c) {
            grid->setColDataField(c, fields[c]);
            grid->setColCaption(c, fields[c]);
        }
    }

    void fill(const QString& statement = QStringLiteral("select * from POLICIES order by POLICYID")) {
        grid->Fill(connection, statement, zkp::ZKP_SQLStatement);
    }

    /// The rows below the heading: "kind: cell | cell".
    QStringList report() const {
        QStringList rows;
        for (int r = 1; r < grid->Rows(); ++r) {
            QStringList cells;
            for (int c = 0; c < grid->Cols(); ++c)
                cells << grid->TextMatrix(r, c);
            rows << QString::number(grid->RowData(r)) + QStringLiteral(": ") + cells.join(QStringLiteral(" | "));
        }
        return rows;
    }

    /// The texts of all boxes shown.
    QStringList boxes() const {
        QStringList texts;
        for (const auto& message : host->messages)
            texts << message.text;
        return texts;
    }

    /// Writes down the names of the row reader's events as they are raised.
    void logEvents() {
        using zkp::Events;
        QObject::connect(&grid->events(), &Events::StartFilling, [this] { log << QStringLiteral("Start"); });
        QObject::connect(&grid->events(), &Events::StopFillIng, [this] { log << QStringLiteral("Stop"); });
        QObject::connect(&grid->events(), &Events::RetrieveRow, [this](zkp::RetrieveRowArgs& e) {
            log << QStringLiteral("Row %1").arg(e.rw);
        });
    }

    std::shared_ptr<zkp::ado::Connection> connection = std::make_shared<zkp::ado::Connection>();
    QStringList log;
};
