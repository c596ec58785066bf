#pragma once

#include "script/script_object.h"

#include <QJSValue>
#include <QMetaType>
#include <QString>
#include <QVariant>

namespace zkp::script {

class Bridge;

/// Values between script and engine. A null stays a null, amounts are numbers, dates are texts
/// ("2026-11-20", "2026-11-20 14:05:00"), bytes are an ArrayBuffer, the engine's objects are façades.
class ValueConversion {
public:
    explicit ValueConversion(Bridge& bridge)
        : bridge_(bridge) {}

    QJSValue toScript(const QVariant& value) const;

    /// The script's value in exactly the wanted type. Numbers become integers by rounding half to
    /// even, True is -1 as a number, numbers become texts where a text is wanted; a text never becomes
    /// a number. Error kErrTypeMismatch or kErrOverflow, with `what` in its description.
    QVariant fromScript(const QJSValue& value, QMetaType wanted, const QString& what) const;

    /// The façade's object, or null for anything else.
    ScriptObjectPtr objectOf(const QJSValue& value) const;

private:
    QJSValue arrayOf(const QVariantList& values) const;
    QVariant anyFromScript(const QJSValue& value, const QString& what) const;
    QVariant sharedFromScript(const QJSValue& value, QMetaType wanted, const QString& what) const;

    Bridge& bridge_;
};

} // namespace zkp::script
