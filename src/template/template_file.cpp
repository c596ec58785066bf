#include "template/template_file.h"

#include "base/error.h"
#include "platform/property_bag.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace zkp {

namespace {

constexpr std::uint16_t kEmptyVariant = 0;
constexpr std::uint16_t kByteArrayVariant = 8209;
constexpr qsizetype kHeadSize = 12; // type, dimensions, element count, lower bound

QString onDisk(QString path) {
    return path.replace(u'\\', u'/');
}

QString joined(const QString& folder, const QString& name) {
    return folder + u'\\' + name;
}

[[noreturn]] void refuse(const QString& path) {
    throw Error(kErrInvalidFormat, QStringLiteral("%1 is no template file of this system").arg(path));
}

template <class T>
T numberAt(const QByteArray& bytes, qsizetype place) {
    return qFromLittleEndian<T>(bytes.constData() + place);
}

QByteArray fileBytes(const QString& path) {
    QFile file(onDisk(path));
    if (!file.exists())
        throw Error(kErrFileNotFound, QStringLiteral("File not found: %1").arg(path));
    if (!file.open(QIODevice::ReadOnly))
        throw Error(kErrFileAccess, QStringLiteral("%1: %2").arg(path, file.errorString()));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        throw Error(kErrFileAccess, QStringLiteral("%1: %2").arg(path, file.errorString()));
    return bytes;
}

} // namespace

QStringList templateFileNames(const QString& folder) {
    return QDir(onDisk(folder))
        .entryList({QStringLiteral("*.Zkp")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

bool isTemplateFile(const QString& folder, const QString& name) {
    return QFileInfo(onDisk(joined(folder, name))).isFile();
}

std::optional<QByteArray> readTemplateFile(const QString& folder, const QString& name) {
    const QString path = joined(folder, name);
    const QByteArray bytes = fileBytes(path);
    if (bytes.isEmpty())
        return std::nullopt;
    if (bytes.size() < 2)
        refuse(path);
    const auto type = numberAt<std::uint16_t>(bytes, 0);
    if (type == kEmptyVariant)
        return std::nullopt;
    if (type != kByteArrayVariant || bytes.size() < kHeadSize || numberAt<std::uint16_t>(bytes, 2) != 1)
        refuse(path);
    const auto count =
        numberAt<std::uint32_t>(bytes, 4); // the lower bound behind it says nothing about bytes
    if (count > static_cast<std::uint64_t>(bytes.size() - kHeadSize))
        refuse(path);
    return bytes.mid(kHeadSize, static_cast<qsizetype>(count));
}

void retireTemplateFile(const QString& folder, const QString& name) {
    const QString from = joined(folder, name);
    const QString to = folder + QStringLiteral("\\OLD_") + name;
    QFile file(onDisk(from));
    if (QFileInfo::exists(onDisk(to)))
        throw Error(kErrFileExists, QStringLiteral("File already exists: %1").arg(to));
    if (!file.rename(onDisk(to)))
        throw Error(kErrFileAccess, QStringLiteral("%1: %2").arg(from, file.errorString()));
}

} // namespace zkp
