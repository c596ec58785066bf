#pragma once

#include "load/load_outcome.h"
#include "script/script_object.h"

namespace zkp::script {

/// `outcome.failure`.
class FailureObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(uint number READ number)
    Q_PROPERTY(QString description READ description)
    Q_PROPERTY(QString source READ source)

public:
    explicit FailureObject(Error error)
        : error_(std::move(error)) {}

    QString className() const override { return QStringLiteral("Failure"); }

    uint number() const { return error_.number(); }
    QString description() const { return error_.description(); }
    QString source() const { return error_.source(); }

private:
    Error error_;
};

/// `grid.lastLoad()`.
class LoadOutcomeObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(int result READ result)
    Q_PROPERTY(QString built READ built)
    Q_PROPERTY(QString sent READ sent)
    Q_PROPERTY(qlonglong records READ records)
    Q_PROPERTY(double firstRecordMs READ firstRecordMs)
    Q_PROPERTY(double lastRecordMs READ lastRecordMs)
    Q_PROPERTY(zkp::script::ScriptObjectPtr failure READ failure)

public:
    explicit LoadOutcomeObject(LoadOutcome outcome)
        : outcome_(std::move(outcome))
        , failure_(outcome_.failure ? std::make_shared<FailureObject>(*outcome_.failure) : nullptr) {}

    QString className() const override { return QStringLiteral("LoadOutcome"); }

    int result() const { return outcome_.result; }
    QString built() const { return outcome_.built; }
    QString sent() const { return outcome_.sent; }
    qlonglong records() const { return outcome_.records; }
    double firstRecordMs() const { return outcome_.firstRecordMs; }
    double lastRecordMs() const { return outcome_.lastRecordMs; }
    /// Null where nothing failed.
    ScriptObjectPtr failure() const { return failure_; }

private:
    LoadOutcome outcome_;
    ScriptObjectPtr failure_;
};

} // namespace zkp::script
