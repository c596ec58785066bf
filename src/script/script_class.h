#pragma once

#include "script/script_object.h"

#include <QJSValue>
#include <QMetaMethod>
#include <QMetaProperty>

#include <vector>

namespace zkp::script {

/// One name of a class: a property, or a method in all its argument counts.
struct ScriptMember {
    QString name;
    bool isMethod = false;
    bool onDelegate = false;
    QMetaProperty property;             ///< not valid for a method and for a write-only property
    QMetaMethod setter;                 ///< writes a write-only property
    std::vector<QMetaMethod> overloads; ///< by rising number of arguments
};

/// The names of one class of objects, as its meta-objects tell them. A class info "NAME" = "PROPERTY"
/// gives a property the name that its declaration can't have.
class ScriptClass {
public:
    explicit ScriptClass(const ScriptObject& sample);

    const QString& name() const { return name_; }
    const std::vector<ScriptMember>& members() const { return members_; }

    QJSValue prototype;

private:
    void addProperties(const QMetaObject& from, bool onDelegate);
    void addMethods(const QMetaObject& from, bool onDelegate);
    void findWriteOnlyProperties();
    void rename(const QMetaObject& from);
    ScriptMember* find(const QString& name);

    QString name_;
    std::vector<ScriptMember> members_;
};

} // namespace zkp::script
