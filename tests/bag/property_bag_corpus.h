#pragma once

#include "bag/property_bag.h"
#include "base/error.h"

#include <QDir>
#include <QFile>

#include <vector>

namespace zkp::test {

/// One file of tests/bag/property_bag_corpus: good_* must be read, bad_* refused.
struct CorpusFile {
    QString name;
    QByteArray bytes;
    bool isGood = false;
};

/// The files with such an ending, "bag" or "txt".
inline std::vector<CorpusFile> corpus(const QString& ending) {
    const QDir folder(QStringLiteral(ZKP_SOURCE_DIR "/tests/bag/property_bag_corpus"));
    std::vector<CorpusFile> files;
    for (const QString& name : folder.entryList({QStringLiteral("*.") + ending}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            files.push_back({name, file.readAll(), name.startsWith(QLatin1String("good_"))});
    }
    return files;
}

inline QByteArray corpusFile(const char* name) {
    QFile file(QStringLiteral(ZKP_SOURCE_DIR "/tests/bag/property_bag_corpus/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// One value of each type, as good_every_type.bag and good_every_type.txt hold them.
inline PropertyBag everyType() {
    PropertyBag bag;
    bag.WriteProperty(QStringLiteral("Width"), 1250.0);
    bag.WriteProperty(QStringLiteral("Size"), 8.0f);
    bag.WriteProperty(QStringLiteral("Rows"), std::int32_t{0x01020304});
    bag.WriteProperty(QStringLiteral("Level"), std::int16_t{-2});
    bag.WriteProperty(QStringLiteral("Font"), BagFont{QStringLiteral("Xy"), 8.5, true, false, true, false});
    bag.WriteProperty(QStringLiteral("Colour"), Color{0x80000005});
    bag.WriteProperty(QStringLiteral("Caption"), QStringLiteral("α€"));
    bag.WriteProperty(QStringLiteral("Bold"), true);
    return bag;
}

} // namespace zkp::test
