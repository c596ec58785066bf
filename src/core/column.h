#pragma once

#include "base/currency.h"

#include <QString>

namespace zkp {

// The texts start as one blank and not empty: whoever asks for a field trims first.
#define ZKP_COLUMN_BLANK QStringLiteral(" ")

// clang-format off
/// Every member of a Column: X(type, name, default).
#define ZKP_COLUMN_MEMBERS(X) \
    X(QString, Caption, ZKP_COLUMN_BLANK) \
    X(QString, Datafield, ZKP_COLUMN_BLANK)  /* field of the recordset; "POS_..." is computed, not read */ \
    X(double, Width, 1250)                   /* twips */ \
    X(short, Alignment, 0)                   /* as stored: 1 left, 4 centre, 7 right */ \
    X(bool, Credit, false) \
    X(bool, Debit, false) \
    X(bool, Balance, false)                  /* always two decimals */ \
    X(bool, Stat_ic, false) \
    X(bool, Totals, false)                   /* summed: takes part in subtotals and totals */ \
    X(bool, changed, false) \
    X(int, Position, 0) \
    X(zkp::Currency, BestWidth, {})          /* widest text measured */ \
    X(bool, Index_Key, false) \
    X(bool, ForTot, false)                   /* a group factor */ \
    X(bool, ForSize, false) \
    X(bool, cnt, false)                      /* shows the running row number */ \
    X(bool, PerCnt, false) \
    X(bool, lR, false) \
    X(bool, PerSize, false) \
    X(bool, Avrg, false) \
    X(QString, EditRs, ZKP_COLUMN_BLANK) \
    X(bool, Editable, false) \
    X(short, EditKind, 0) \
    X(QString, EditTag, ZKP_COLUMN_BLANK) \
    X(short, EditLength, 0) \
    X(QString, EditField1, ZKP_COLUMN_BLANK) \
    X(QString, EditField2, ZKP_COLUMN_BLANK) \
    X(bool, calcEuro, false)
// clang-format on

/// One report column, a plain record. Grid column c is item c + 1 of `Columns`.
struct Column {
#define ZKP_COLUMN_MEMBER(Type, Name, ...) Type Name = __VA_ARGS__;
    ZKP_COLUMN_MEMBERS(ZKP_COLUMN_MEMBER)
#undef ZKP_COLUMN_MEMBER
};

} // namespace zkp
