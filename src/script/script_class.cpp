#include "script/script_class.h"

#include <algorithm>

namespace zkp::script {

ScriptClass::ScriptClass(const ScriptObject& sample)
    : name_(sample.className()) {
    addProperties(*sample.metaObject(), false);
    addMethods(*sample.metaObject(), false);
    if (const QMetaObject* delegate = sample.delegateClass()) {
        addProperties(*delegate, true);
        addMethods(*delegate, true);
    }
    findWriteOnlyProperties();
    rename(*sample.metaObject());
}

void ScriptClass::rename(const QMetaObject& from) {
    for (int i = 0; i < from.classInfoCount(); ++i) {
        const QMetaClassInfo info = from.classInfo(i);
        if (ScriptMember* member = find(QString::fromLatin1(info.value())))
            member->name = QString::fromLatin1(info.name());
    }
}

ScriptMember* ScriptClass::find(const QString& name) {
    const auto found = std::find_if(members_.begin(), members_.end(),
                                    [&](const ScriptMember& member) { return member.name == name; });
    return found == members_.end() ? nullptr : &*found;
}

void ScriptClass::addProperties(const QMetaObject& from, bool onDelegate) {
    for (int i = QObject::staticMetaObject.propertyCount(); i < from.propertyCount(); ++i) {
        ScriptMember member;
        member.property = from.property(i);
        member.name = QString::fromLatin1(member.property.name());
        member.onDelegate = onDelegate;
        if (!find(member.name))
            members_.push_back(member);
    }
}

void ScriptClass::addMethods(const QMetaObject& from, bool onDelegate) {
    for (int i = QObject::staticMetaObject.methodCount(); i < from.methodCount(); ++i) {
        const QMetaMethod method = from.method(i);
        if (method.methodType() != QMetaMethod::Method)
            continue;
        const QString name = QString::fromLatin1(method.name());
        ScriptMember* member = find(name);
        if (!member) {
            members_.push_back({name, true, onDelegate, {}, {}, {}});
            member = &members_.back();
        }
        // The object's own members hide those of its delegate.
        if (member->isMethod && member->onDelegate == onDelegate)
            member->overloads.push_back(method);
    }
    for (ScriptMember& member : members_) {
        std::sort(member.overloads.begin(), member.overloads.end(),
                  [](const QMetaMethod& a, const QMetaMethod& b) {
                      return a.parameterCount() < b.parameterCount();
                  });
    }
}

/// `setX(value)` without anything that reads X is a property X that can be written only, unless it answers.
void ScriptClass::findWriteOnlyProperties() {
    const QLatin1String set("set");
    for (ScriptMember& member : members_) {
        if (!member.isMethod || !member.name.startsWith(set) || member.overloads.size() != 1 ||
            member.overloads.front().parameterCount() != 1 ||
            member.overloads.front().returnMetaType() != QMetaType::fromType<void>())
            continue;
        const QString plainName = member.name.mid(set.size());
        if (plainName.isEmpty() || find(plainName))
            continue;
        member.name = plainName;
        member.isMethod = false;
        member.setter = member.overloads.front();
        member.overloads.clear();
    }
}

} // namespace zkp::script
