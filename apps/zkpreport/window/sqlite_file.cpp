#include "window/sqlite_file.h"

#include "window/texts.h"

#include <QFile>
#include <QFileInfo>

namespace zkp::app {

QString whyNoDatabase(const QString& file) {
    const QByteArray signature("SQLite format 3", 16); // with the zero at its end
    const QString name = QFileInfo(file).fileName();
    QFile opened(file);
    if (!opened.exists())
        return texts::noFile(name);
    if (!opened.open(QIODevice::ReadOnly))
        return texts::fileNotReadable(name);
    const QByteArray start = opened.read(signature.size());
    return start.isEmpty() || start == signature ? QString() : texts::noDatabase(name);
}

} // namespace zkp::app
