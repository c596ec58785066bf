#pragma once

#include "script/script_control.h"
#include "script/script_object.h"

namespace zkp::script {

/// One record of `grid.Columns`: it stays that record when others come and go.
class ColumnObject : public ScriptObject {
    Q_OBJECT

#define ZKP_COLUMN_PROPERTY(Type, Name, ...)                                                                 \
    Q_PROPERTY(Type Name READ Name WRITE set##Name)                                                          \
    Type Name() const {                                                                                      \
        return record().Name;                                                                                \
    }                                                                                                        \
    void set##Name(const Type& value) {                                                                      \
        record().Name = value;                                                                               \
    }

public:
    ColumnObject(ScriptControlPtr control, Column& record)
        : control_(std::move(control))
        , record_(&record) {}

    QString className() const override {
        return QStringLiteral("Column");
    }

    ZKP_COLUMN_MEMBERS(ZKP_COLUMN_PROPERTY)
#undef ZKP_COLUMN_PROPERTY

private:
    /// Error kErrObjectNotSet when the column has been removed.
    Column& record() const;

    ScriptControlPtr control_;
    Column* record_;
};

/// `grid.Columns`, counted from 1.
class ColumnsObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(int Count READ Count)

public:
    explicit ColumnsObject(ScriptControlPtr control)
        : control_(std::move(control)) {}

    QString className() const override { return QStringLiteral("Columns"); }
    bool isCallable() const override { return true; }

    int Count() const { return control_->grid().Columns().Count(); }
    Q_INVOKABLE zkp::script::ScriptObjectPtr Item(int number);

private:
    ScriptControlPtr control_;
};

} // namespace zkp::script
