#pragma once

#include "grid_fixture.h"

#include <map>

/// A control of 4 columns and 8 rows whose sections each have a back colour of their own, known by a
/// letter, the fore colour next to it and a font size of their own. What is raised is written down.
class PaintedGridTest : public GridTest {
protected:
    static constexpr zkp::Color kFixed = 0x10, kDetail = 0x20, kGroup = 0x30, kSub = 0x40, kTotal = 0x50,
                                kBand = 0x60, kMark = 0x70;

    PaintedGridTest() {
        grid->setCols(4);
        grid->setRows(8);
        grid->setBackColorFixed(kFixed);
        grid->setBackColor(kDetail);
        grid->setForeColor(kDetail + 1);
        grid->setGroupedBackColor(kGroup);
        grid->setGroupedForecolor(kGroup + 1);
        grid->setSubTotalsBackColor(kSub);
        grid->setSubTotalsForeColor(kSub + 1);
        grid->setTotalsBackcolor(kTotal);
        grid->setTotalsForeColor(kTotal + 1);
        grid->setBackColorSel(kBand);
        grid->setForeColorSel(kBand + 1);
        connectLog();
    }

    void connectLog() {
        using zkp::Events;
        Events& events = grid->events();
        QObject::connect(&events, &Events::Selecting, [this] { log << QStringLiteral("Selecting"); });
        QObject::connect(&events, &Events::StartInterface, [this] { log << QStringLiteral("Start"); });
        QObject::connect(&events, &Events::StopInterface, [this] { log << QStringLiteral("Stop"); });
    }

    /// What was raised since the last time.
    QString told() {
        const QString all = log.join(u' ');
        log.clear();
        return all;
    }

    /// Something to have been loaded.
    void giveRecordSource() {
        grid->setSourceType(zkp::ZKP_RecordSet);
        grid->setRecordSource(QVariant::fromValue(std::make_shared<zkp::ado::Recordset>()));
    }

    /// The first columns become group factors.
    void factors(int count) {
        for (int c = 0; c < count; ++c) {
            grid->setColDataField(c, QStringLiteral("F%1").arg(c));
            grid->setColForTot(c, true);
        }
        grid->CheckGroupBy();
    }

    /// The kinds of the rows from row 1 on.
    void kinds(const QList<int>& kinds) {
        for (int i = 0; i < kinds.size(); ++i)
            grid->setRowData(i + 1, kinds[i]);
    }

    zkp::GridSurface& surface() { return grid->MSFlexGrid1(); }
    zkp::CellStyle style(int row, int col) { return surface().styleAt(row, col); }

    /// One letter for each cell of a row: the section that its back colour is of, in capitals when the
    /// fore colour is not of the same.
    QString cells(int row) {
        return letters(row, [this](int r, int c) { return style(r, c); });
    }

    template <class StyleOfCell>
    QString letters(int row, StyleOfCell styleOfCell) {
        static const std::map<zkp::Color, QChar> letters{{kFixed, u'f'}, {kDetail, u'd'}, {kGroup, u'g'},
                                                         {kSub, u's'},   {kTotal, u't'},  {kBand, u'b'},
                                                         {kMark, u'm'}};
        QString text;
        for (int c = 0; c < grid->Cols(); ++c) {
            const zkp::CellStyle cell = styleOfCell(row, c);
            const auto found = letters.find(cell.backColor);
            const QChar letter = found == letters.end() ? QChar(u'?') : found->second;
            text += cell.foreColor == cell.backColor + 1 ? letter : letter.toUpper();
        }
        return text;
    }

    /// "row, col to the other corner".
    QString selection() {
        return QStringLiteral("%1,%2 to %3,%4")
            .arg(surface().Row())
            .arg(surface().Col())
            .arg(surface().RowSel())
            .arg(surface().ColSel());
    }

    QStringList log;
};
