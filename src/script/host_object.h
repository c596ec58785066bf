#pragma once

#include "host/application_folder.h"
#include "script/script_object.h"
#include "script/scripts_host.h"

#include <QLocale>

#include <functional>

namespace zkp::script {

/// The global `host`.
class HostObject : public ScriptObject {
    Q_OBJECT

#define ZKP_HOST_FUNCTION(Name, member)                                                                      \
    Q_PROPERTY(QJSValue Name READ Name WRITE set##Name)                                                      \
    QJSValue Name() const {                                                                                  \
        return host_->member;                                                                                \
    }                                                                                                        \
    void set##Name(const QJSValue& function) {                                                               \
        setFunction(host_->member, function, #Name);                                                         \
    }

    Q_PROPERTY(QJSValue messages READ messages WRITE setMessages)
    Q_PROPERTY(QJSValue opened READ opened WRITE setOpened)
    Q_PROPERTY(int beeps READ beeps WRITE setBeeps)
    Q_PROPERTY(int pointer READ pointer WRITE setPointer)
    Q_PROPERTY(QLocale locale READ locale WRITE setLocale)
    Q_PROPERTY(QString applicationFolder READ applicationFolder WRITE setApplicationFolder)

public:
    /// `localeChanged` passes a new locale on to the controls.
    HostObject(std::shared_ptr<ScriptsHost> host, std::function<void(const QLocale&)> localeChanged)
        : host_(std::move(host))
        , localeChanged_(std::move(localeChanged)) {}

    QString className() const override {
        return QStringLiteral("host");
    }

    QJSValue messages() const {
        return host_->messageList;
    }
    void setMessages(const QJSValue& list) {
        setList(host_->messageList, list, "messages");
    }
    QJSValue opened() const {
        return host_->openedList;
    }
    void setOpened(const QJSValue& list) {
        setList(host_->openedList, list, "opened");
    }
    /// Where the folders of older template files stand.
    QString applicationFolder() const {
        return zkp::applicationFolder();
    }
    void setApplicationFolder(const QString& folder) {
        zkp::setApplicationFolder(folder);
    }
    int beeps() const {
        return host_->beeps;
    }
    void setBeeps(int count) {
        host_->beeps = count;
    }
    int pointer() const {
        return host_->pointer();
    }
    void setPointer(int pointer) {
        host_->setPointer(pointer);
    }
    QLocale locale() const {
        return QLocale();
    }
    void setLocale(const QLocale& locale) {
        localeChanged_(locale);
    }

    ZKP_HOST_FUNCTION(onMsgBox, msgBoxFunction)
    ZKP_HOST_FUNCTION(onInputBox, inputBoxFunction)
    ZKP_HOST_FUNCTION(onSaveDialog, saveDialogFunction)
    ZKP_HOST_FUNCTION(onColorDialog, colorDialogFunction)
    ZKP_HOST_FUNCTION(onFontDialog, fontDialogFunction)
#undef ZKP_HOST_FUNCTION

private:
    static void setFunction(QJSValue& place, const QJSValue& function, const char* name);
    static void setList(QJSValue& place, const QJSValue& list, const char* name);

    std::shared_ptr<ScriptsHost> host_;
    std::function<void(const QLocale&)> localeChanged_;
};

} // namespace zkp::script
