#pragma once

#include <QJSValue>
#include <QObject>

namespace zkp::script {

class Bridge;

/// The few calls that bridge.js makes into C++.
class Gate : public QObject {
    Q_OBJECT

public:
    explicit Gate(Bridge& bridge)
        : bridge_(bridge) {}

    Q_INVOKABLE QJSValue get(QObject* handle, int member);
    Q_INVOKABLE void set(QObject* handle, int member, const QJSValue& value);
    Q_INVOKABLE QJSValue call(QObject* handle, int member, int count, const QJSValue& arguments);
    Q_INVOKABLE QJSValue create(const QString& className, int argumentCount);
    Q_INVOKABLE void print(const QString& line);

private:
    Bridge& bridge_;
};

} // namespace zkp::script
