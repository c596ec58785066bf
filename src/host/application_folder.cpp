#include "host/application_folder.h"

#include <QCoreApplication>

namespace zkp {

namespace {

QString& given() {
    static QString folder;
    return folder;
}

} // namespace

QString applicationFolder() {
    return given().isEmpty() ? QCoreApplication::applicationDirPath() : given();
}

void setApplicationFolder(const QString& folder) {
    given() = folder;
}

} // namespace zkp
