#pragma once

#include "script/script_object.h"
#include "template/template_store.h"

namespace zkp::script {

/// One entry of `grid.FillTemplates()`.
class TemplateEntryObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString FileName READ FileName)
    Q_PROPERTY(int FileNo READ FileNo)
    Q_PROPERTY(QString PrintCaption READ PrintCaption)

public:
    explicit TemplateEntryObject(clsList entry)
        : entry_(std::move(entry)) {}

    QString className() const override { return QStringLiteral("clsList"); }

    QString FileName() const { return entry_.FileName; }
    int FileNo() const { return entry_.FileNo; }
    QString PrintCaption() const { return entry_.PrintCaption; }

private:
    clsList entry_;
};

} // namespace zkp::script
