#include "template/template_file.h"

#include "bag/property_bag.h"
#include "base/error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace zkp {

namespace {

constexpr std::uint16_t kEmptyVariant = 0;
constexpr std::uint16_t kByteArrayVariant = 8209;
constexpr qsizetype kHeadSize = 12; // type, dimensions, element count, lower bound

/// Names are found in whatever case, as they are listed: a folder may come from a system that doesn't tell
/// cases apart.
QString inFolder(const QDir& folder, const QString& name) {
    if (name.isEmpty() || folder.exists(name))
        return folder.filePath(name);
    for (const QString& entry : folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return folder.filePath(entry);
    return folder.filePath(name);
}

/// The folder's own last part in whatever case too; what stands above it is the system's.
QDir onDisk(QString folder) {
    folder.replace(u'\\', u'/');
    const QFileInfo info(folder);
    return info.exists() ? QDir(folder) : QDir(inFolder(info.dir(), info.fileName()));
}

QString onDisk(const QString& folder, const QString& name) {
    return inFolder(onDisk(folder), QString(name).replace(u'\\', u'/'));
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

void openFor(QFile& file, const QString& path) {
    if (!file.exists())
        throw Error(kErrFileNotFound, QStringLiteral("File not found: %1").arg(path));
    if (!file.open(QIODevice::ReadOnly))
        throw Error(kErrFileAccess, QStringLiteral("%1: %2").arg(path, file.errorString()));
}

/// As many bytes as there are, up to `most`.
QByteArray bytesFrom(QFile& file, qint64 most, const QString& path) {
    const QByteArray bytes = file.read(most);
    if (file.error() != QFile::NoError)
        throw Error(kErrFileAccess, QStringLiteral("%1: %2").arg(path, file.errorString()));
    return bytes;
}

} // namespace

QStringList templateFileNames(const QString& folder) {
    return onDisk(folder).entryList({QStringLiteral("*.Zkp")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

bool isTemplateFile(const QString& folder, const QString& name) {
    return QFileInfo(onDisk(folder, name)).isFile();
}

/// What the head promises is held against the file's size before it is read.
std::optional<QByteArray> readTemplateFile(const QString& folder, const QString& name) {
    const QString path = joined(folder, name);
    QFile file(onDisk(folder, name));
    openFor(file, path);
    const QByteArray head = bytesFrom(file, kHeadSize, path);
    if (head.isEmpty())
        return std::nullopt;
    if (head.size() < 2)
        refuse(path);
    const auto type = numberAt<std::uint16_t>(head, 0);
    if (type == kEmptyVariant)
        return std::nullopt;
    if (type != kByteArrayVariant || head.size() < kHeadSize || numberAt<std::uint16_t>(head, 2) != 1)
        refuse(path);
    const qint64 count =
        numberAt<std::uint32_t>(head, 4); // the lower bound behind it says nothing about bytes
    if (count > file.size() - kHeadSize)
        refuse(path);
    QByteArray bytes = bytesFrom(file, count, path);
    if (bytes.size() != count)
        refuse(path);
    return bytes;
}

void retireTemplateFile(const QString& folder, const QString& name) {
    const QString old = QStringLiteral("OLD_") + name;
    QFile file(onDisk(folder, name));
    if (QFileInfo::exists(onDisk(folder, old)))
        throw Error(kErrFileExists, QStringLiteral("File already exists: %1").arg(joined(folder, old)));
    if (!file.rename(onDisk(folder, old)))
        throw Error(kErrFileAccess, QStringLiteral("%1: %2").arg(joined(folder, name), file.errorString()));
}

} // namespace zkp
