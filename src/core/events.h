#pragma once

#include "ado/recordset.h"

#include <QMetaMethod>
#include <QObject>
#include <QVariant>

namespace zkp {

// Arguments of events. A handler may change them; what it leaves there reaches the control.
struct CompareArgs {
    QVariant Row1;
    QVariant Row2;
    QVariant Cmp = 0;
};
struct KeyArgs {
    short KeyCode = 0;
    short Shift = 0; ///< 1 Shift, 2 Ctrl, 4 Alt
};
struct KeyPressArgs {
    short KeyAscii = 0;
};
struct MouseArgs {
    short Button = 0; ///< 1 left, 2 right, 4 middle
    short Shift = 0;
    double X = 0; ///< twips
    double Y = 0;
};
struct ColumnArgs {
    QVariant WhatCol;
};
struct CellArgs {
    QVariant WhatRow;
    QVariant WhatCol;
};
struct FieldArgs {
    QString WhatField;
};
struct RetrieveRowArgs {
    double rw = 0; ///< grid row just written; the reader goes on from what a handler leaves here
    ado::RecordsetPtr rsrc;
};
struct PropertyArgs {
    QString name; ///< key of the property that changed
};

/// The events without arguments: X(name).
#define ZKP_PLAIN_EVENTS(X)                                                                                  \
    X(Click)                                                                                                 \
    X(DblClick)                                                                                              \
    X(Selecting)                                                                                             \
    X(MenuExportTable)                                                                                       \
    X(PrintCommand)                                                                                          \
    X(StartSorting)                                                                                          \
    X(StopSorting)                                                                                           \
    X(StartFilling)                                                                                          \
    X(StopFillIng)                                                                                           \
    X(StartInterface)                                                                                        \
    X(StopInterface)                                                                                         \
    X(MenuSaveTemplate)                                                                                      \
    X(MenuSaveTemplateAs)                                                                                    \
    X(MenuLoadTemplate)                                                                                      \
    X(MenuTitle)                                                                                             \
    X(addcolumn)                                                                                             \
    X(FirstRetrieved)

/// The events with arguments: X(name, argument object).
#define ZKP_ARGUMENT_EVENTS(X)                                                                               \
    X(Compare, CompareArgs)                                                                                  \
    X(KeyDown, KeyArgs)                                                                                      \
    X(KeyPress, KeyPressArgs)                                                                                \
    X(KeyUp, KeyArgs)                                                                                        \
    X(MouseDown, MouseArgs)                                                                                  \
    X(MouseUp, MouseArgs)                                                                                    \
    X(DelColumn, ColumnArgs)                                                                                 \
    X(InsertColumn, ColumnArgs)                                                                              \
    X(LeaveEdit, CellArgs)                                                                                   \
    X(StartEdit, CellArgs)                                                                                   \
    X(Groupby, FieldArgs)                                                                                    \
    X(GroupBy1, FieldArgs)                                                                                   \
    X(GroupBy2, FieldArgs)                                                                                   \
    X(GroupBy3, FieldArgs)                                                                                   \
    X(GroupBy4, FieldArgs)                                                                                   \
    X(RetrieveRow, RetrieveRowArgs)                                                                          \
    X(PropertyChanged, PropertyArgs)

/// The events of one control. They stand on an object of their own because their names repeat names
/// of properties and methods. `KeyUp`, `MouseUp`, `FirstRetrieved`, `LeaveEdit`, `StartEdit`, `Groupby`
/// and `GroupBy1` to `GroupBy4` can be bound and are never raised, as wanted.
///
/// Handlers run on the stack of the operation that raises them. A handler that throws ends that
/// operation by its own error road; a handler may destroy the control.
class Events : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Reports the key of a property that changed.
    void notify(const QString& key);

    /// False when raising `RetrieveRow` would reach nobody.
    bool isRetrieveRowHeard() const;

Q_SIGNALS:
#define ZKP_SIGNAL(name) void name();
#define ZKP_ARGUMENT_SIGNAL(name, Args) void name(zkp::Args& e);
    ZKP_PLAIN_EVENTS(ZKP_SIGNAL)
    ZKP_ARGUMENT_EVENTS(ZKP_ARGUMENT_SIGNAL)
#undef ZKP_SIGNAL
#undef ZKP_ARGUMENT_SIGNAL
};

} // namespace zkp
