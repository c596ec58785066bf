#include "rights/made_database.h"

#include "demo/demo_database.h"

#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

namespace zkp::rights {

const QString& madeFile() {
    static const QTemporaryDir folder;
    static const QString file = [] {
        const QString made = folder.filePath(QStringLiteral("office.db"));
        demo::makeDatabase({made, 2000, 1});
        return made;
    }();
    return file;
}

const demo::test::Reader& madeDatabase() {
    static const demo::test::Reader reader(madeFile());
    return reader;
}

void copyMadeDatabase(const QString& file) {
    if (!QFile::copy(madeFile(), file))
        throw std::runtime_error("cannot copy to " + file.toStdString());
}

const std::vector<User>& users() {
    static const std::vector<User> all = [] {
        std::vector<User> found;
        for (const auto& row :
             madeDatabase().rows("SELECT UserID, Ierarxia, IerID FROM SECUSERS ORDER BY 2, 1"))
            found.push_back({row.at(0), row.at(1), row.at(2)});
        return found;
    }();
    return all;
}

std::string rightsOf(const User& user) {
    const std::string own = "ProductIdentity = '" + user.id + "'";
    const auto withLevel = [&](const char* column) {
        return "(" + own + " OR " + column + " = '" + user.identity + "')";
    };
    if (user.level == "0" || user.level == "5")
        return own;
    if (user.level == "1")
        return withLevel("AgencyIdentity");
    if (user.level == "2")
        return withLevel("AssistantIdentity");
    if (user.level == "3")
        return withLevel("UnitIdentity");
    if (user.level == "4")
        return withLevel("ManagerIdentity");
    return "1 = 1";
}

} // namespace zkp::rights
