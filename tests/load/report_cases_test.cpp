#include "report_case.h"
#include "report_case_runner.h"

#include "case_rules.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zkp::reportcases {

namespace {

const QString kFolder = QStringLiteral(ZKP_SOURCE_DIR "/tests/load/");

class CaseTest : public testing::Test {
public:
    explicit CaseTest(Case one)
        : one_(std::move(one)) {}
    void TestBody() override {
        const bool handles =
            std::ranges::any_of(one_.steps, [](const Step& step) { return step.verb == u"at"; });
        run(true);
        if (!handles)
            run(false);
    }

private:
    void run(bool withHandler) {
        SCOPED_TRACE(withHandler ? "somebody hears RetrieveRow" : "nobody hears RetrieveRow");
        try {
            CaseRunner(one_, withHandler).run();
        } catch (const BadCase& bad) {
            FAIL() << bad.what();
        }
    }

    Case one_;
};

std::vector<Case> allCases() {
    std::vector<Case> cases;
    for (const QString& name : QDir(kFolder + u"cases"_s).entryList({u"*.txt"_s}, QDir::Files, QDir::Name))
        for (Case& one : readCases(kFolder + u"cases/"_s + name))
            cases.push_back(std::move(one));
    return cases;
}

/// One test a case. Files that can't be read are left to ReportRules, which fails on them.
bool registerCases() {
    try {
        for (const Case& one : allCases())
            testing::RegisterTest(("Report_" + cases::testName(one.file)).c_str(),
                                  cases::testName(one.title).c_str(), nullptr, nullptr, __FILE__, __LINE__,
                                  [one]() -> testing::Test* { return new CaseTest(one); });
    } catch (const BadCase&) {
        return false;
    }
    return true;
}

const bool kRegistered = registerCases();

} // namespace

TEST(ReportRules, EachHasACaseAndEachCaseNamesOne) {
    cases::expectRulesAreShown(cases::readRuleIds(kFolder + u"report_rules.txt"_s), allCases());
    EXPECT_TRUE(kRegistered);
}

} // namespace zkp::reportcases
