#include "case_file.h"
#include "case_runner.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

#include <iostream>

using namespace Qt::StringLiterals;

namespace zkp::sqlcases {

namespace {

const QString kFolder = QStringLiteral(ZKP_SOURCE_DIR "/tests/sql/");

class CaseTest : public testing::Test {
public:
    explicit CaseTest(Case one)
        : one_(std::move(one)) {}
    void TestBody() override { CaseRunner().run(one_); }

private:
    Case one_;
};

std::vector<Case> allCases() {
    const std::vector<Step> database = readSharedSteps(kFolder + u"cases/_database.txt"_s);
    std::vector<Case> cases;
    for (const QString& name : QDir(kFolder + u"cases"_s).entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
        if (name.startsWith(u'_'))
            continue;
        for (Case& one : readCases(kFolder + u"cases/"_s + name, database))
            cases.push_back(std::move(one));
    }
    return cases;
}

/// The title as CTest can carry it: letters, digits and underscores.
std::string testName(const QString& title) {
    std::string name;
    for (const QChar c : title) {
        const bool plain = c.isLetterOrNumber() && c.unicode() < 128;
        if (plain)
            name += c.toLatin1();
        else if (!name.empty() && name.back() != '_')
            name += '_';
    }
    return name;
}

QStringList ruleIds() {
    QFile file(kFolder + u"rules.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList ids;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (!line.trimmed().isEmpty() && !line.startsWith(u'#'))
            ids << line.section(u' ', 0, 0);
    return ids;
}

} // namespace

TEST(SqlRules, EachHasACaseAndEachCaseNamesOne) {
    const QStringList ids = ruleIds();
    const QSet<QString> known(ids.begin(), ids.end());
    EXPECT_EQ(known.size(), ids.size()) << "an id stands twice";
    QSet<QString> shown, titles;
    for (const Case& one : allCases()) {
        EXPECT_FALSE(one.shows.isEmpty()) << one.title.toStdString() << " names no rule";
        const QString title = one.file + u": "_s + one.title;
        EXPECT_FALSE(titles.contains(title)) << title.toStdString() << " stands twice";
        titles << title;
        for (const QString& id : one.shows) {
            EXPECT_TRUE(known.contains(id)) << one.title.toStdString() << ": no rule " << id.toStdString();
            shown << id;
        }
    }
    for (const QString& id : ids)
        EXPECT_TRUE(shown.contains(id)) << "no case shows the rule " << id.toStdString();
}

} // namespace zkp::sqlcases

int main(int argc, char** argv) {
    using namespace zkp::sqlcases;
    QCoreApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    try {
        for (const Case& one : allCases()) {
            const std::string suite = "Sql_" + testName(one.file);
            testing::RegisterTest(suite.c_str(), testName(one.title).c_str(), nullptr, nullptr, __FILE__,
                                  __LINE__, [one]() -> testing::Test* { return new CaseTest(one); });
        }
    } catch (const BadCase& bad) {
        std::cerr << bad.what() << '\n';
        return 1;
    }
    return RUN_ALL_TESTS();
}
