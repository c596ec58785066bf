#pragma once

#include "ado/recordset.h"
#include "base/color.h"
#include "base/currency.h"
#include "core/enums.h"
#include "core/properties.def"

#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

namespace zkp {

/// Thrown when a handler has destroyed the control in the middle of an operation: the operation
/// unwinds without a word.
struct ControlDestroyed {};

/// The stored members of one control, plain. Parts of the engine share it by reference.
struct ReportState {
#define ZKP_KEYED(Type, Name, Key, ...) Type Name = __VA_ARGS__;
#define ZKP_UNKEYED(Type, Name, ...) Type Name = __VA_ARGS__;
    ZKP_MEMBER_PROPERTIES(ZKP_KEYED)
    ZKP_KEPT_MEMBERS(ZKP_KEYED)
    ZKP_SILENT_PROPERTIES(ZKP_UNKEYED)
    ZKP_IDENTITY_PROPERTIES(ZKP_UNKEYED)
    ZKP_PLAIN_MEMBERS(ZKP_UNKEYED)
#undef ZKP_KEYED
#undef ZKP_UNKEYED

    // The record source: what the host gave, by the kind that `SourceType` named when it was given.
    ado::RecordsetPtr ReportRecordset;
    ado::CommandPtr ReportCommand;
    QString RecordSourceText;
    int storedSourceKind = ZKP_SQLStatement;

    // Found in table `Reports` for run-time statements.
    QString MasterTable;
    QString RKeyname;
    QString MasterFilter;

    QStringList GroupFactors;
    short GroupFactorCount = 0;
    /// A `Groupby` that a host (or a saved shape) set and no rebuild from the flags has seen yet.
    std::optional<QString> givenGroupby;

    // Totals reports: whether percentage columns are wanted, and the clone that they are worked out from.
    bool HasPercentColumns = false;
    ado::RecordsetPtr TotalsRecordset;

    short DebitColumn = -1;
    short CreditColumn = -1;
    short BalanceColumn = -1;
    double SortDescending = 0; ///< direction of the control's own order: ascending when 0
    double SortAscending = 0;
    std::optional<int> SortColumn; ///< of the last sort by column or custom sort

    bool TotalsNeeded = false;
    bool LoadFinished = false;
    int RowCapacity = 0;
    int SavedTopRow = 0;
    int SavedLeftCol = 0;
    bool PaintReady = true;
    bool ContentSeen = true;
    bool CancelRequested = false;     ///< written by `CancelLoad`; nothing reads it, as wanted
    bool SearchStopRequested = false; ///< written by `StopSearch`; nothing reads it, as wanted

    // The control's own size (twips) and pointer.
    double Width = 0;
    double Height = 0;
    int MousePointer = 0;

    inline static int LastClickedCol = 0; ///< one number for all controls of the process, as wanted
    bool MenusLocked = false;             ///< tools stay as they are, and no heading is dragged
    bool ExportRunning = false;    ///< selection handlers and drops wait while a spreadsheet is written
    std::vector<short> FieldIndex; ///< position in the list of `mnuField` to index in the dictionary
    bool destroyed = false;        ///< the control is gone; whoever still runs unwinds

    void throwIfDestroyed() const {
        if (destroyed)
            throw ControlDestroyed{};
    }
};

} // namespace zkp
