#pragma once

#include "base/error.h"
#include "script/script_object.h"

#include <stdexcept>

/// Stands behind a Sample.
class SampleDelegate : public QObject {
    Q_OBJECT
    Q_PROPERTY(int Depth READ Depth WRITE setDepth)

public:
    int Depth() const { return depth_; }
    void setDepth(int depth) { depth_ = depth; }
    Q_INVOKABLE QString both() const { return QStringLiteral("delegate"); }
    Q_INVOKABLE QString behind() const { return QStringLiteral("delegate"); }

private:
    int depth_ = 0;
};

/// A script object with one method of every shape.
class Sample : public zkp::script::ScriptObject {
    Q_OBJECT
    Q_PROPERTY(int Failing READ Failing WRITE setFailing)

public:
    Sample() { ++alive; }
    ~Sample() override { --alive; }
    inline static int alive = 0;

    QString className() const override { return QStringLiteral("Sample"); }
    QObject* delegate() const override { return &delegate_; }
    const QMetaObject* delegateClass() const override { return &SampleDelegate::staticMetaObject; }

    int Failing() const { throw zkp::Error(77, QStringLiteral("why")); }
    void setFailing(int) { throw zkp::Error(77, QStringLiteral("why")); }

    Q_INVOKABLE int append(QString& text, const QString& more) {
        text += more;
        return static_cast<int>(text.size());
    }
    Q_INVOKABLE void twice(double& number) { number *= 2; }
    Q_INVOKABLE void fill(QVariant& value) { value = QStringLiteral("filled"); }
    Q_INVOKABLE QString join(const QString& a, const QString& sign = QStringLiteral("-"), int number = 7) {
        return a + sign + QString::number(number);
    }
    Q_INVOKABLE QString both() const { return QStringLiteral("own"); }
    Q_INVOKABLE void fail() { throw zkp::Error(77, QStringLiteral("why"), QStringLiteral("there")); }
    Q_INVOKABLE void failOddly() { throw std::runtime_error("odd"); }

private:
    Q_INVOKABLE QString hidden() const { return QStringLiteral("private"); }

    mutable SampleDelegate delegate_;
};
