#include "base/texts/filters.h"
#include "window_templates_fixture.h"

#include <filesystem>

#include <unistd.h>

namespace {

using namespace zkp;
namespace texts = zkp::app::texts;

TEST_F(WindowTemplates, FieldsThatTheUserMayNotSeeStayOut) {
    ASSERT_TRUE(openCopy({QStringLiteral("CLAIMSDATA"), {}, {}}));
    ASSERT_TRUE(captions().contains(QStringLiteral("Πελάτης")));
    grid().setColCaption(0, QStringLiteral("Δική μου"));
    saveAs(kMonthly);
    chooseUser(QStringLiteral("P0019"));
    EXPECT_FALSE(captions().contains(QStringLiteral("Πελάτης")));
    EXPECT_EQ(window->message(), texts::templateLeft(kMonthly));
    EXPECT_EQ(window->templateName(), QString());
    const QStringList before = rows();
    openTemplate(kMonthly);
    expectRefusal(texts::templateNotOpened(kMonthly), texts::templateDenied(QStringLiteral("CUSTOMER")));
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(window->templateName(), QString());
}

TEST_F(WindowTemplates, ATemplateThatHasGoneIsToldAndLeavesTheReport) {
    ASSERT_TRUE(openCopy());
    saveAs(kMonthly);
    saveAs(kOther);
    applyFilter(QStringLiteral("PREMIUM>100"));
    const QStringList before = rows();
    execute(QStringLiteral("DELETE FROM frms2 WHERE lstCode='Μηνιαίο'"));
    openTemplate(kMonthly);
    expectRefusal(texts::templateNotOpened(kMonthly), texts::templateGone());
    EXPECT_EQ(names(), QStringList{kOther}) << "the list is that of now";
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(filter().text(), QStringLiteral("PREMIUM>100"));
    EXPECT_EQ(window->templateName(), kOther);
    openTemplate(kOther);
    EXPECT_EQ(recordCount(), 600);
}

TEST_F(WindowTemplates, DamagedBytesAreToldAndLeaveTheReport) {
    ASSERT_TRUE(openCopy());
    saveAs(kMonthly);
    execute(QStringLiteral("UPDATE frms2 SET ZKP_ = substr(ZKP_, 1, 100)"));
    window->showDatabase(file);
    EXPECT_EQ(names(), QStringList{kMonthly});
    const QStringList before = rows();
    openTemplate(kMonthly);
    expectRefusal(texts::templateNotOpened(kMonthly), QString());
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(window->templateName(), QString());
}

TEST_F(WindowTemplates, ATemplateOfADictionaryThatNoReportHasIsTold) {
    ASSERT_TRUE(openCopy());
    saveAs(kMonthly);
    PropertyBag bag = bagOf(kMonthly);
    bag.WriteProperty(QStringLiteral("Clmns"), QStringLiteral("NOSUCH"));
    store(kMonthly, bag);
    openTemplate(kMonthly);
    expectRefusal(texts::templateNotOpened(kMonthly), texts::templateOfNoReport(QStringLiteral("NOSUCH")));
    EXPECT_EQ(recordCount(), 600);
}

TEST_F(WindowTemplates, ATemplatesFilterIsCheckedLikeAUsers) {
    ASSERT_TRUE(openCopy({{}, QStringLiteral("P0001"), {}}));
    const QStringList before = rows();
    saveAs(kMonthly);
    PropertyBag bag = bagOf(kMonthly);
    const QString breakout = QStringLiteral("1=1) or (1=1");
    bag.WriteProperty(QStringLiteral("Filter"), breakout);
    store(kMonthly, bag);
    openTemplate(kMonthly);
    expectRefusal(texts::templateNotOpened(kMonthly),
                  texts::templateFilterRefused(breakout, zkp::texts::bracketClosedFirst(4)));
    EXPECT_EQ(rows(), before);
}

TEST_F(WindowTemplates, ATemplateWhoseLoadFailsLeavesTheReport) {
    ASSERT_TRUE(openCopy());
    const QStringList before = rows();
    saveAs(kMonthly);
    PropertyBag bag = bagOf(kMonthly);
    bag.WriteProperty(QStringLiteral("Filter"), QStringLiteral("NOSUCHFIELD=1"));
    store(kMonthly, bag);
    openTemplate(kMonthly);
    EXPECT_EQ(host->messages.size(), 1u) << "the control's own box";
    EXPECT_EQ(window->message(), texts::templateNotOpened(kMonthly));
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(filter().text(), QString());
}

TEST_F(WindowTemplates, AValueOfTheWrongTypeLeavesTheReport) {
    ASSERT_TRUE(openCopy());
    const QStringList before = rows();
    saveAs(kMonthly);
    PropertyBag bag = bagOf(kMonthly);
    bag.WriteProperty(QStringLiteral("Cols"), QStringLiteral("πολλές"));
    store(kMonthly, bag);
    openTemplate(kMonthly);
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(window->message(), texts::templateNotOpened(kMonthly));
    EXPECT_EQ(rows(), before);
}

TEST_F(WindowTemplates, NamesThatTheTablesCannotTakeAreTold) {
    ASSERT_TRUE(openCopy());
    saveAs(kMonthly);
    const QStringList before = rows();
    saveAs(QStringLiteral("Του Γ'"));
    expectRefusal(texts::templateNotSaved(QStringLiteral("Του Γ'")), texts::quoteInName());
    saveAs(QStringLiteral("Έτος 2024")); // no row of frms
    expectRefusal(texts::templateNotSaved(QStringLiteral("Έτος 2024")), texts::numberedTemplate());
    saveAs(QStringLiteral("ABCD12.Zkp"));
    expectRefusal(texts::templateNotSaved(QStringLiteral("ABCD12.Zkp")), texts::numberedTemplate());
    saveAs(QStringLiteral("ABCD99999"));
    expectRefusal(texts::templateNotSaved(QStringLiteral("ABCD99999")), texts::numberedTemplate());
    EXPECT_EQ(names(), QStringList{kMonthly});
    EXPECT_EQ(window->templateName(), kMonthly);
    EXPECT_EQ(grid().FileName(), kMonthly);
    EXPECT_EQ(rows(), before);
    save();
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTemplates, ANumberedTemplateGoesByTheNameItGivesItself) {
    execute(QStringLiteral("INSERT INTO frms (lstCode) VALUES (12), (13)"));
    ASSERT_TRUE(openCopy());
    EXPECT_EQ(names(), QStringList()) << "rows without a template";
    grid().setColWidth(0, 2222);
    saveAs(QStringLiteral("ABCD12"));
    EXPECT_EQ(names(), QStringList{QStringLiteral("ABCD12")});
    execute(QStringLiteral("UPDATE frms SET ZKP_ = (SELECT ZKP_ FROM frms WHERE lstCode=12)"));
    window->showDatabase(file);
    EXPECT_EQ(names(), (QStringList{QStringLiteral("ABCD12"), QStringLiteral("frms13")}));
    chooseReport(1);
    openTemplate(QStringLiteral("frms13"));
    EXPECT_EQ(grid().ColWidth(0), 2222);
    EXPECT_EQ(window->templateName(), QStringLiteral("frms13"));
}

TEST_F(WindowTemplates, AnotherTemplateIsReplacedOnlyWhenTheUserSaysSo) {
    ASSERT_TRUE(openCopy());
    saveAs(kMonthly);
    saveAs(kOther);
    grid().setColWidth(0, 2222);
    host->onMsgBox = [](const auto&) { return kAnswerNo; };
    saveAs(QStringLiteral("ΜΗΝΙΑίΟ"));
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages.front().style & 0x300, 0x100) << "Enter says no";
    EXPECT_EQ(host->messages.front().text, texts::replaceTemplate(QStringLiteral("ΜΗΝΙΑίΟ")));
    EXPECT_NE(bagOf(kMonthly).read<double>(u"ColWidth0", 0.0), 2222);
    EXPECT_EQ(window->templateName(), kOther);
    host->onMsgBox = [](const auto&) { return kAnswerYes; };
    saveAs(kMonthly);
    EXPECT_EQ(bagOf(kMonthly).read<double>(u"ColWidth0", 0.0), 2222);
    EXPECT_EQ(window->templateName(), kMonthly);
    EXPECT_EQ(names().size(), 2);
    host->messages.clear();
    saveAs(kMonthly);
    EXPECT_TRUE(host->messages.empty()) << "its own name needs no question";
}

TEST_F(WindowTemplates, ALockedFileRefusesForAWhile) {
    ASSERT_TRUE(openCopy());
    saveAs(kMonthly);
    const QStringList before = rows();
    grid().setColWidth(0, 2222);
    {
        const ado::ConnectionPtr owner = database();
        owner->Execute(QStringLiteral("BEGIN EXCLUSIVE"));
        save();
        expectRefusal(texts::templateNotSaved(kMonthly), QStringLiteral("database is locked"));
        openTemplate(kMonthly);
        expectRefusal(texts::templateNotOpened(kMonthly), QStringLiteral("database is locked"));
        EXPECT_EQ(names(), QStringList{kMonthly});
        owner->Execute(QStringLiteral("ROLLBACK"));
    }
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(grid().ColWidth(0), 2222) << "what was not saved is still there";
    save();
    EXPECT_EQ(bagOf(kMonthly).read<double>(u"ColWidth0", 0.0), 2222);
}

TEST_F(WindowTemplates, AFileThatIsGoneIsNamed) {
    ASSERT_TRUE(openCopy());
    ASSERT_TRUE(QFile::remove(file));
    saveAs(kMonthly);
    expectRefusal(texts::templateNotSaved(kMonthly), texts::fileGone(QStringLiteral("demo.db")));
    chooseReport(1);
    settle();
    EXPECT_EQ(window->message(), texts::fileGone(QStringLiteral("demo.db")));
}

/// The process without the right to write the file, root or not.
class WithoutWriting {
public:
    WithoutWriting(const QString& folder, const QString& file)
        : isRoot_(geteuid() == 0) {
        namespace fs = std::filesystem;
        fs::permissions(folder.toStdString(), fs::perms(0555));
        fs::permissions(file.toStdString(), fs::perms(0444));
        if (isRoot_) {
            EXPECT_EQ(seteuid(65534), 0);
        }
        folder_ = folder.toStdString();
    }
    ~WithoutWriting() {
        if (isRoot_) {
            EXPECT_EQ(seteuid(0), 0);
        }
        std::filesystem::permissions(folder_, std::filesystem::perms(0755));
    }

private:
    bool isRoot_;
    std::string folder_;
};

TEST_F(WindowTemplates, AReadOnlyFileRefusesTheSaveAndLosesNothing) {
    ASSERT_TRUE(openCopy());
    saveAs(kMonthly);
    const WithoutWriting readOnly(folder.path(), file);
    ASSERT_TRUE(openCopy());
    openTemplate(kMonthly);
    EXPECT_EQ(window->templateName(), kMonthly) << "opening reads";
    grid().setColWidth(0, 2222);
    grid().setSubTotalsBackColor(kPink);
    applyFilter(QStringLiteral("PREMIUM>100"));
    const QString filterInForce = grid().Filter();
    const QStringList before = rows();
    save();
    expectRefusal(texts::templateNotSaved(kMonthly), QStringLiteral("readonly database"));
    saveAs(kOther);
    expectRefusal(texts::templateNotSaved(kOther), QStringLiteral("readonly database"));
    EXPECT_EQ(names(), QStringList{kMonthly});
    EXPECT_EQ(window->templateName(), kMonthly);
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(grid().ColWidth(0), 2222);
    EXPECT_EQ(grid().SubTotalsBackColor(), kPink);
    EXPECT_EQ(grid().Filter(), filterInForce);
    applyFilter(QString());
    EXPECT_EQ(recordCount(), 600);
    EXPECT_EQ(grid().ColWidth(0), 2222);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTemplates, WithoutTheTablesThereIsNoListAndNothingToPress) {
    execute(QStringLiteral("DROP TABLE frms"));
    ASSERT_TRUE(openCopy());
    EXPECT_TRUE(templates().isVisible()) << "one table will do";
    saveAs(kMonthly);
    EXPECT_EQ(names(), QStringList{kMonthly});
    execute(QStringLiteral("DROP TABLE frms2"));
    ASSERT_TRUE(openCopy());
    EXPECT_FALSE(templates().isVisible());
    offered.clear();
    save();
    EXPECT_EQ(offered, QString());
    grid().mnuSave_Click();
    expectRefusal(texts::templateNotSaved(kMonthly), QStringLiteral("frms2"));
}

} // namespace
