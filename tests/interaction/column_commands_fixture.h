#pragma once

#include "load/load_fixture.h"

/// A control with columns A, B, C and D of one row of data, "a1" and so on under their headings.
class ColumnCommandsTest : public LoadTest {
protected:
    ColumnCommandsTest() {
        grid->setCols(4);
        grid->setRows(2);
        for (int c = 0; c < 4; ++c) {
            grid->setColCaption(c, QString(QChar(u'A' + c)));
            grid->setColDataField(c, QString(QChar(u'a' + c)));
            grid->setTextMatrix(1, c, QString(QChar(u'a' + c)) + u'1');
        }
        QObject::connect(&grid->events(), &zkp::Events::addcolumn,
                         [this] { log << QStringLiteral("addcolumn"); });
        QObject::connect(&grid->events(), &zkp::Events::InsertColumn, [this](zkp::ColumnArgs& e) {
            log << QStringLiteral("InsertColumn %1").arg(e.WhatCol.toInt());
        });
        QObject::connect(&grid->events(), &zkp::Events::DelColumn, [this](zkp::ColumnArgs& e) {
            log << QStringLiteral("DelColumn %1").arg(e.WhatCol.toInt());
        });
        QObject::connect(&grid->events(), &zkp::Events::StartFilling,
                         [this] { log << QStringLiteral("load"); });
    }

    zkp::GridSurface& surface() { return grid->MSFlexGrid1(); }

    void press(int col) { surface().userPress({1, 0, 0, 0, 1, col}); }

    void factors(int count) {
        for (int c = 0; c < count; ++c)
            grid->setColForTot(c, true);
        grid->CheckGroupBy();
    }

    /// Field, heading and datum of each column; a factor with a star.
    QString shape() {
        QStringList columns;
        for (int c = 0; c < grid->Cols(); ++c)
            columns << grid->ColDataField(c) +
                           (grid->ColForTot(c) ? QStringLiteral("*") : QStringLiteral("")) +
                           grid->TextMatrix(0, c) + grid->TextMatrix(1, c);
        return columns.join(u'|');
    }
};
