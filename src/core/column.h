#pragma once

#include "base/currency.h"

#include <QString>

#include <cstdint>

namespace zkp {

/// One report column, a plain record. Grid column c is item c + 1 of `Columns`.
struct Column {
    // The texts start as one blank and not empty: whoever asks for a field trims first.
    QString Caption = QStringLiteral(" ");
    QString Datafield = QStringLiteral(" "); ///< field of the recordset; "POS_..." is computed, not read
    double Width = 1250;                     ///< twips
    std::int16_t Alignment = 0;              ///< as stored: 1 left, 4 centre, 7 right
    bool Credit = false;
    bool Debit = false;
    bool Balance = false; ///< always two decimals
    bool Stat_ic = false;
    bool Totals = false; ///< summed: takes part in subtotals and totals
    bool changed = false;
    std::int32_t Position = 0;
    Currency BestWidth; ///< widest text measured
    bool Index_Key = false;
    bool ForTot = false; ///< a group factor
    bool ForSize = false;
    bool cnt = false; ///< shows the running row number
    bool PerCnt = false;
    bool lR = false;
    bool PerSize = false;
    bool Avrg = false;
    QString EditRs = QStringLiteral(" ");
    bool Editable = false;
    std::int16_t EditKind = 0;
    QString EditTag = QStringLiteral(" ");
    std::int16_t EditLength = 0;
    QString EditField1 = QStringLiteral(" ");
    QString EditField2 = QStringLiteral(" ");
    bool calcEuro = false;
};

/// Every member of a Column: X(type, name).
#define ZKP_COLUMN_MEMBERS(X)                                                                                \
    X(QString, Caption)                                                                                      \
    X(QString, Datafield)                                                                                    \
    X(double, Width)                                                                                         \
    X(short, Alignment)                                                                                      \
    X(bool, Credit)                                                                                          \
    X(bool, Debit)                                                                                           \
    X(bool, Balance)                                                                                         \
    X(bool, Stat_ic)                                                                                         \
    X(bool, Totals)                                                                                          \
    X(bool, changed)                                                                                         \
    X(int, Position)                                                                                         \
    X(zkp::Currency, BestWidth)                                                                              \
    X(bool, Index_Key)                                                                                       \
    X(bool, ForTot)                                                                                          \
    X(bool, ForSize)                                                                                         \
    X(bool, cnt)                                                                                             \
    X(bool, PerCnt)                                                                                          \
    X(bool, lR)                                                                                              \
    X(bool, PerSize)                                                                                         \
    X(bool, Avrg)                                                                                            \
    X(QString, EditRs)                                                                                       \
    X(bool, Editable)                                                                                        \
    X(short, EditKind)                                                                                       \
    X(QString, EditTag)                                                                                      \
    X(short, EditLength)                                                                                     \
    X(QString, EditField1)                                                                                   \
    X(QString, EditField2)                                                                                   \
    X(bool, calcEuro)

} // namespace zkp
