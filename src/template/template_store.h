#pragma once

#include "core/record_source.h"
#include "core/state/template_state.h"
#include "host/message_boxes.h"
#include "template/saved_properties.h"
#include "template/template_rows.h"

#include <functional>
#include <optional>
#include <vector>

namespace zkp {

/// One entry of a template listing: what a chooser shows, and what is handed to `opentemplate`.
struct clsList {
    QString FileName;
    int FileNo = 0;
    QString PrintCaption;

    bool operator==(const clsList&) const = default;
};

/// Saves the report's shape and opens it again: rows of `frms` and `frms2`, and the older files, each of
/// which moves into the database when it is first opened. Failures of the database, of files and of names
/// reach the caller.
class TemplateStore {
public:
    /// `applicationFolder` tells where the folders of the older files stand.
    TemplateStore(TemplateState& templates, RecordSource& source, SavedProperties& properties,
                  MessageBoxes& boxes, std::function<QString()> applicationFolder)
        : templates_(templates)
        , source_(source)
        , properties_(properties)
        , boxes_(boxes)
        , applicationFolder_(std::move(applicationFolder)) {}

    /// The older files of "\Forms" for -1 and nothing, of "\Reports" for any other number: an entry for each
    /// and one empty entry behind them; none at all without files. Empties `FileName`, as wanted.
    std::vector<std::optional<clsList>> FillTemplates(const QVariant& mFileNo);
    void SaveTemplate(const QString& mfilename);
    /// What is left out comes from `FileName` and the folder for `fileno`. Loads no data.
    void opentemplate(const ado::ConnectionPtr& connection, const QVariant& mPath, const QVariant& mfilename);

private:
    struct Source {
        TemplatePlace place;
        QString folder;
        QString name;
    };

    QString folder(const char16_t* name) const;
    QVariant bytesOf(const Source& source, const TemplateRows& rows);
    QVariant migrated(const Source& source, const TemplateRows& rows);
    void apply(const QByteArray& bytes, const QString& name);

    TemplateState& templates_;
    RecordSource& source_;
    SavedProperties& properties_;
    MessageBoxes& boxes_;
    std::function<QString()> applicationFolder_;
};

} // namespace zkp
