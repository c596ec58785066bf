#include "report_case.h"
#include "report_case_runner.h"

#include <QDir>
#include <QFile>
#include <QSet>

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

/// One test a case. Files that can't be read are left to ReportRules, which fails on them.
bool registerCases() {
    try {
        for (const Case& one : allCases())
            testing::RegisterTest(("Report_" + testName(one.file)).c_str(), testName(one.title).c_str(),
                                  nullptr, nullptr, __FILE__, __LINE__,
                                  [one]() -> testing::Test* { return new CaseTest(one); });
    } catch (const BadCase&) {
        return false;
    }
    return true;
}

const bool kRegistered = registerCases();

QStringList ruleIds() {
    QFile file(kFolder + u"report_rules.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList ids;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (!line.trimmed().isEmpty() && !line.startsWith(u'#'))
            ids << line.section(u' ', 0, 0);
    return ids;
}

} // namespace

TEST(ReportRules, EachHasACaseAndEachCaseNamesOne) {
    const QStringList ids = ruleIds();
    const QSet<QString> known(ids.begin(), ids.end());
    EXPECT_EQ(known.size(), ids.size()) << "an id stands twice";
    QSet<QString> shown, titles;
    for (const Case& one : allCases()) {
        const std::string title = (one.file + u": "_s + one.title).toStdString();
        EXPECT_FALSE(one.shows.isEmpty()) << title << " names no rule";
        EXPECT_FALSE(titles.contains(one.file + one.title)) << title << " stands twice";
        titles << one.file + one.title;
        for (const QString& id : one.shows) {
            EXPECT_TRUE(known.contains(id)) << title << ": no rule " << id.toStdString();
            shown << id;
        }
    }
    for (const QString& id : ids)
        EXPECT_TRUE(shown.contains(id)) << "no case shows the rule " << id.toStdString();
    EXPECT_TRUE(kRegistered);
}

} // namespace zkp::reportcases
