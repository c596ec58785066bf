#include "case_file.h"
#include "case_runner.h"

#include "case_rules.h"

#include <QCoreApplication>
#include <QDir>

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

} // namespace

TEST(SqlRules, EachHasACaseAndEachCaseNamesOne) {
    cases::expectRulesAreShown(cases::readRuleIds(kFolder + u"rules.txt"_s), allCases());
}

} // namespace zkp::sqlcases

int main(int argc, char** argv) {
    using namespace zkp::sqlcases;
    using zkp::cases::testName;
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
