#include "template/template_store.h"

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "base/texts/failures.h"
#include "base/value.h"
#include "template/template_file.h"

namespace zkp {

namespace {

constexpr int kNoFileNo = -1;

/// The bag that bytes make. Error kErrInvalidFormat names the template.
PropertyBagPtr bagOf(const QByteArray& bytes, const QString& name) {
    auto bag = std::make_shared<PropertyBag>();
    try {
        bag->setContents(bytes);
    } catch (const Error& error) {
        throw Error(error.number(), QStringLiteral("%1: %2").arg(name, error.description()));
    }
    return bag;
}

clsList entryOf(const PropertyBag& bag) {
    const QString blank = QStringLiteral(" ");
    return {bag.read<QString>(u"Filename", blank), bag.read<std::int32_t>(u"FileNo", kNoFileNo),
            bag.read<QString>(u"PrintCaption", blank)};
}

QByteArray contentOf(const QString& folder, const QString& name) {
    std::optional<QByteArray> bytes = readTemplateFile(folder, name);
    if (!bytes)
        throw Error(kErrInvalidFormat, QStringLiteral("%1 holds no template").arg(name));
    return std::move(*bytes);
}

} // namespace

QString TemplateStore::folder(const char16_t* name) const {
    return applicationFolder_() + u'\\' + QString::fromUtf16(name);
}

/// Only -1 itself means "\Forms" here, while opening goes by the sign; wanted.
std::vector<std::optional<clsList>> TemplateStore::FillTemplates(const QVariant& mFileNo) {
    const bool isForms = !mFileNo.isValid() || toInt32(mFileNo) == kNoFileNo;
    const QString place = folder(isForms ? u"Forms" : u"Reports");
    std::vector<std::optional<clsList>> entries;
    for (const QString& name : templateFileNames(place)) {
        templates_.FileName = name;
        entries.emplace_back(entryOf(*bagOf(contentOf(place, name), name)));
    }
    templates_.FileName.clear();
    if (!entries.empty())
        entries.emplace_back();
    return entries;
}

void TemplateStore::SaveTemplate(const QString& mfilename) {
    PropertyBag bag;
    properties_.writeWhole(bag);
    const TemplatePlace place = placeToSave(mfilename);
    TemplateRows(source_.state().Cn).store(place, bag.Contents());
}

void TemplateStore::opentemplate(const ado::ConnectionPtr& connection, const QVariant& mPath,
                                 const QVariant& mfilename) {
    const QString name = mfilename.isValid() ? mfilename.toString() : templates_.FileName;
    const QString path =
        mPath.isValid() ? mPath.toString() : folder(templates_.fileno < 0 ? u"Forms" : u"Reports");
    source_.connect(connection);
    const QVariant held = bytesOf({placeToOpen(name), path, name}, TemplateRows(connection));
    if (isNull(held))
        return;
    const QByteArray bytes = held.toByteArray();
    if (bytes.size() != 1) // an upper bound of 0 counts as no template, as wanted
        apply(bytes, name);
}

/// The template's bytes; null when there is nothing to apply.
QVariant TemplateStore::bytesOf(const Source& source, const TemplateRows& rows) {
    const QVariant held = rows.read(source.place);
    const bool isFile = isTemplateFile(source.folder, source.name);
    if (isNull(held) && isFile)
        return migrated(source, rows);
    if (isFile)
        retireTemplateFile(source.folder, source.name); // left behind by an earlier opening
    else if (isNull(held) && source.place.number)
        boxes_.msgBox(texts::templateFileMissing(source.folder + u'\\' + source.name), kMsgBoxInformation);
    return held;
}

/// Takes the file into the database and renames it out of the way. A template of `frms2` is applied here
/// and once more by the caller, as wanted.
QVariant TemplateStore::migrated(const Source& source, const TemplateRows& rows) {
    QVariant bytes;
    if (source.place.number) {
        bytes = bagOf(contentOf(source.folder, source.name), source.name)->Contents();
    } else if (const auto content = readTemplateFile(source.folder, source.name)) {
        apply(*content, source.name);
        bytes = *content;
    }
    rows.store(source.place, bytes);
    retireTemplateFile(source.folder, source.name);
    return bytes;
}

void TemplateStore::apply(const QByteArray& bytes, const QString& name) {
    properties_.UserControl_ReadProperties(bagOf(bytes, name));
}

} // namespace zkp
