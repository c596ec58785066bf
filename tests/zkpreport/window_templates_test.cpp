#include "base/error.h"
#include "platform/property_bag.h"
#include "widgets/palette_colors.h"
#include "window/texts.h"
#include "window_fixture.h"

#include <QAction>

#include <filesystem>

#include <unistd.h>

namespace {

using namespace zkp;
namespace texts = zkp::app::texts;

const QString kCategory = QStringLiteral("CATEGORY");
const QString kMonthly = QStringLiteral("Μηνιαίο");
const QString kOther = QStringLiteral("Άλλο");
constexpr Color kPink = 0x00C0C0FF;

/// The demonstration database in a copy of its own, with what a user does about templates.
class WindowTemplates : public WindowTest {
protected:
    WindowTemplates() {
        QFile::copy(demoFile(), file);
        host->onInputBox = [this](const QString&, const QString&, const QString& text) {
            offered = text;
            return answer;
        };
    }

    bool openCopy(const zkp::app::FirstReport& first = {}) {
        const bool isOpen = window->showDatabase(file, first);
        settle();
        return isOpen;
    }
    QListView& templates() { return part<QListView>("templates"); }
    QStringList names() {
        QStringList all;
        for (int row = 0; row < templates().model()->rowCount(); ++row)
            all += templates().model()->index(row, 0).data().toString();
        return all;
    }
    QStringList boldNames() {
        QStringList bold;
        for (int row = 0; row < templates().model()->rowCount(); ++row)
            if (const QModelIndex index = templates().model()->index(row, 0);
                index.data(Qt::FontRole).value<QFont>().bold())
                bold += index.data().toString();
        return bold;
    }
    void choose(const QString& name) {
        const auto row = static_cast<int>(names().indexOf(name));
        ASSERT_GE(row, 0) << qPrintable(name);
        templates().setCurrentIndex(templates().model()->index(row, 0));
    }
    void openTemplate(const QString& name) {
        choose(name);
        templates().setFocus();
        QTest::keyClick(&templates(), Qt::Key_Return);
        settle();
    }
    void saveAs(const QString& name) {
        answer = name;
        QTest::keyClick(window.get(), Qt::Key_F12);
        settle();
    }
    void save() {
        QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
        settle();
    }

    ado::ConnectionPtr database() const {
        const auto connection = std::make_shared<ado::Connection>();
        connection->Open(QStringLiteral("sqlite:") + file);
        return connection;
    }
    void execute(const QString& statement) const { database()->Execute(statement); }
    PropertyBag bagOf(const QString& name) const {
        PropertyBag bag;
        bag.setContents(database()
                            ->Execute(QStringLiteral("SELECT ZKP_ FROM frms2 WHERE lstCode='%1'").arg(name))
                            ->Fields()
                            .Item(0)
                            .Value()
                            .toByteArray());
        return bag;
    }
    /// Puts a bag into the database, as another program might.
    void store(const QString& name, const PropertyBag& bag) const {
        execute(QStringLiteral("DELETE FROM frms2 WHERE lstCode='%1'").arg(name));
        execute(QStringLiteral("INSERT INTO frms2 VALUES ('%1', x'%2', NULL)")
                    .arg(name, QString::fromLatin1(bag.Contents().toHex())));
    }

    /// One box with these words, and the report that was there before it.
    void expectRefusal(const QString& refusal, const QString& reason) {
        ASSERT_EQ(host->messages.size(), 1u);
        const QString box = host->messages.front().text;
        EXPECT_TRUE(box.startsWith(refusal)) << qPrintable(box);
        EXPECT_TRUE(box.contains(reason)) << qPrintable(box);
        EXPECT_EQ(host->messages.front().title, texts::templateBoxTitle());
        host->messages.clear();
    }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("demo.db"));
    QString answer;  // to the question for a name
    QString offered; // with that question
};

TEST_F(WindowTemplates, AShapeComesBackWithItsRows) {
    ASSERT_TRUE(openCopy());
    EXPECT_EQ(names(), QStringList());
    chooseGroup(1, kCategory);
    grid().setColWidth(2, 3210);
    grid().setColCaption(1, QStringLiteral("Δική μου"));
    grid().setSubTotalsBackColor(kPink);
    applyFilter(QStringLiteral("PREMIUM>100"));
    const QStringList shape = captions();
    const QStringList before = rows();
    saveAs(kMonthly);
    EXPECT_EQ(window->message(), texts::templateSaved(kMonthly));
    EXPECT_EQ(names(), QStringList{kMonthly});
    EXPECT_EQ(boldNames(), QStringList{kMonthly});
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Μηνιαίο – Συμβόλαια – demo.db"));

    grid().setColWidth(2, 500);
    grid().setSubTotalsBackColor(0x00123456);
    applyFilter(QString());
    chooseGroup(1, QStringLiteral("STATUS"));
    chooseGroup(1, QString());
    EXPECT_EQ(recordCount(), 600);

    openTemplate(kMonthly);
    EXPECT_EQ(captions(), shape);
    EXPECT_EQ(grid().ColDataField(0), kCategory);
    EXPECT_TRUE(grid().ColForTot(0));
    EXPECT_EQ(grid().ColWidth(2), 3210);
    EXPECT_EQ(grid().SubTotalsBackColor(), kPink);
    EXPECT_EQ(groupList(1).currentData(), kCategory);
    EXPECT_EQ(filter().text(), QStringLiteral("PREMIUM>100"));
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM POLICIESDATA WHERE PREMIUM>100")));
    EXPECT_EQ(rows(), before);
    EXPECT_FALSE(rowsOfKind(ZKPSubTotals).empty());
    EXPECT_EQ(window->templateName(), kMonthly);
    EXPECT_EQ(window->message(), QString());
    EXPECT_TRUE(templates().hasFocus());
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTemplates, TheColumnsAreThoseOfTheTemplateAndTheUsersRefreshLoads) {
    ASSERT_TRUE(openCopy());
    grid().Columns().Item(3).EditTag = QStringLiteral("δεμένο");
    grid().setCols(4);
    saveAs(kMonthly);
    chooseReport(1);
    openTemplate(kMonthly);
    EXPECT_EQ(grid().Cols(), 4);
    EXPECT_EQ(grid().Columns().Count(), 4);
    EXPECT_EQ(grid().Columns().Item(3).EditTag, QStringLiteral("δεμένο")) << "each member, not some";
    EXPECT_TRUE(grid().DesignMode());
    EXPECT_EQ(recordCount(), 600);
    grid().refresh();
    EXPECT_EQ(recordCount(), 600);
}

TEST_F(WindowTemplates, ATemplateThatHoldsItsRowsIsLoadedAllTheSame) {
    ASSERT_TRUE(openCopy());
    grid().setRefreshOnChange(false);
    saveAs(kMonthly);
    chooseReport(1);
    openTemplate(kMonthly);
    EXPECT_EQ(recordCount(), 600);
    EXPECT_FALSE(grid().RefreshOnChange()) << "it stays as saved";
}

TEST_F(WindowTemplates, SavingUnderItsOwnNameReplacesWhatWasSaved) {
    ASSERT_TRUE(openCopy());
    saveAs(kMonthly);
    grid().setColWidth(0, 2222);
    answer = kOther;
    offered.clear();
    save();
    EXPECT_EQ(offered, QString()) << "nothing was asked";
    EXPECT_EQ(names(), QStringList{kMonthly});
    chooseReport(2);
    EXPECT_EQ(window->templateName(), QString());
    EXPECT_EQ(boldNames(), QStringList());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Δείκτης Ζημιών – demo.db"));
    openTemplate(kMonthly);
    EXPECT_EQ(grid().ColWidth(0), 2222);
}

TEST_F(WindowTemplates, WithoutATemplateSavingAsksForAName) {
    ASSERT_TRUE(openCopy());
    answer = QStringLiteral("  ");
    save();
    EXPECT_EQ(offered, QStringLiteral("Συμβόλαια"));
    EXPECT_EQ(names(), QStringList());
    host->onInputBox = [](auto&&...) { return std::nullopt; };
    save();
    EXPECT_EQ(names(), QStringList());
    EXPECT_TRUE(host->messages.empty());
    host->onInputBox = [](auto&&...) { return QStringLiteral(" Μηνιαίο "); };
    save();
    EXPECT_EQ(names(), QStringList{kMonthly});
}

TEST_F(WindowTemplates, TwoTemplatesKeepTheirOwnShapes) {
    ASSERT_TRUE(openCopy());
    chooseGroup(1, kCategory);
    saveAs(kMonthly);
    chooseGroup(1, QStringLiteral("STATUS"));
    toggleTotals();
    const QStringList totalsShape = captions();
    saveAs(kOther);
    EXPECT_EQ(names(), (QStringList{kOther, kMonthly}));
    EXPECT_EQ(boldNames(), QStringList{kOther});
    openTemplate(kMonthly);
    EXPECT_FALSE(grid().TotalForm());
    EXPECT_FALSE(totals().isChecked());
    EXPECT_EQ(grid().ColDataField(0), kCategory);
    openTemplate(kOther);
    EXPECT_TRUE(grid().TotalForm());
    EXPECT_TRUE(totals().isChecked());
    EXPECT_EQ(captions(), totalsShape);
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(DISTINCT STATUS) FROM POLICIESDATA")));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTemplates, ADoubleClickOpens) {
    ASSERT_TRUE(openCopy());
    grid().setColWidth(0, 2222);
    saveAs(kMonthly);
    chooseReport(1);
    const QPoint place = templates().visualRect(templates().model()->index(0, 0)).center();
    QTest::mouseClick(templates().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    settle();
    EXPECT_EQ(window->templateName(), QString());
    QTest::mouseDClick(templates().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    settle();
    EXPECT_EQ(window->templateName(), kMonthly);
    EXPECT_EQ(grid().ColWidth(0), 2222);
}

TEST_F(WindowTemplates, ATemplateOpensTheReportItIsAShapeOf) {
    ASSERT_TRUE(openCopy({QStringLiteral("CLAIMSDATA"), {}, {}}));
    const QStringList claims = captions();
    saveAs(kMonthly);
    EXPECT_EQ(templates().model()->index(0, 0).data(Qt::ToolTipRole).toString(),
              texts::templateTip(kMonthly, QStringLiteral("Ζημίες")));
    chooseReport(0);
    openTemplate(kMonthly);
    EXPECT_EQ(reports().currentIndex().row(), 1);
    EXPECT_EQ(captions(), claims);
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM CLAIMSDATA WHERE STATUS<>'Άκυρη'")));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Μηνιαίο – Ζημίες – demo.db"));
}

TEST_F(WindowTemplates, TheOrderComesBackAndTurnsWithTheNextClick) {
    ASSERT_TRUE(openCopy());
    const int premium = columnOf(QStringLiteral("PREMIUM"));
    clickHeading(premium);
    clickHeading(premium);
    const QString greatest = cell(1, QStringLiteral("PREMIUM"));
    saveAs(kMonthly);
    chooseReport(1);
    openTemplate(kMonthly);
    EXPECT_EQ(cell(1, QStringLiteral("PREMIUM")), greatest);
    EXPECT_EQ(grid().TextMatrix(0, premium), texts::sortedHeading(grid().ColCaption(premium), true));
    clickHeading(premium);
    EXPECT_EQ(grid().TextMatrix(0, premium), texts::sortedHeading(grid().ColCaption(premium), false));
}

TEST_F(WindowTemplates, TheControlsMenuDoesTheSame) {
    ASSERT_TRUE(openCopy());
    answer = kMonthly;
    grid().mnuSaveAs_Click();
    EXPECT_EQ(names(), QStringList{kMonthly});
    grid().setColWidth(0, 2222);
    grid().mnuSave_Click();
    chooseReport(1);
    openTemplate(kMonthly);
    EXPECT_EQ(grid().ColWidth(0), 2222);
    grid().setColWidth(0, 1111);
    grid().mnuSave_Click();
    EXPECT_EQ(bagOf(kMonthly).read<double>(u"ColWidth0", 0.0), 1111) << "a control of the window's own too";
    grid().mnuLoad_Click();
    EXPECT_TRUE(templates().hasFocus());
}

TEST_F(WindowTemplates, WhatIsSavedIsTheUsersFilterWithoutRightsAndWithoutTheWindowsShades) {
    ASSERT_TRUE(openCopy({{}, QStringLiteral("P0019"), QStringLiteral("PREMIUM>100")}));
    const QString filterInForce = grid().Filter();
    const Color shade = grid().TotalsBackcolor();
    saveAs(kMonthly);
    const PropertyBag bag = bagOf(kMonthly);
    EXPECT_EQ(bag.read<QString>(u"Filter", QString()), QStringLiteral("PREMIUM>100"));
    EXPECT_EQ(bag.read<QString>(u"FileName", QString()), kMonthly);
    EXPECT_FALSE(bag.find(u"TotalsBackColor")) << "the shade of a palette";
    EXPECT_EQ(grid().Filter(), filterInForce) << "the report goes on as it was";
    EXPECT_EQ(grid().TotalsBackcolor(), shade);

    users().setCurrentIndex(0);
    openTemplate(kMonthly);
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM POLICIESDATA WHERE PREMIUM>100")));
    chooseUser(QStringLiteral("P0001"));
    openTemplate(kMonthly);
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM POLICIESDATA WHERE PREMIUM>100 AND "
                                                   "ProductIdentity='P0001'")));
}

TEST_F(WindowTemplates, ShadesAreThoseOfThePaletteItIsOpenedOn) {
    ASSERT_TRUE(openCopy());
    chooseGroup(1, kCategory);
    grid().setTotalsBackcolor(kPink);
    saveAs(kMonthly);
    const Color light = grid().SubTotalsBackColor();
    QPalette dark = window->palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(220, 220, 220));
    window->setPalette(dark);
    EXPECT_EQ(grid().TotalsBackcolor(), kPink) << "a chosen colour stays on another palette";
    const Color shade = grid().SubTotalsBackColor();
    EXPECT_NE(shade, light);
    openTemplate(kMonthly);
    EXPECT_EQ(grid().SubTotalsBackColor(), shade);
    EXPECT_EQ(grid().TotalsBackcolor(), kPink);
}

TEST_F(WindowTemplates, AFilterAUserAndGroupsLeaveTheShape) {
    ASSERT_TRUE(openCopy());
    grid().setColCaption(1, QStringLiteral("Δική μου"));
    grid().setTitleBackColor(kPink);
    grid().setCols(5);
    const QStringList shape = captions();
    saveAs(kMonthly);
    applyFilter(QStringLiteral("PREMIUM>100"));
    EXPECT_EQ(captions(), shape);
    chooseUser(QStringLiteral("P0019"));
    EXPECT_EQ(captions(), shape);
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM POLICIESDATA WHERE PREMIUM>100 AND "
                                                   "(ProductIdentity='P0019' OR UnitIdentity='U02')")));
    chooseGroup(1, kCategory);
    EXPECT_EQ(captions(), QStringList{QStringLiteral("Κλάδος")} + shape);
    EXPECT_EQ(grid().TitleBackColor(), kPink);
    EXPECT_EQ(window->templateName(), kMonthly);
    applyFilter(QStringLiteral("NOSUCHFIELD=1"));
    EXPECT_EQ(recordCount(), 0);
    applyFilter(QString());
    EXPECT_EQ(captions(), QStringList{QStringLiteral("Κλάδος")} + shape) << "a refused filter costs nothing";
    save();
    chooseReport(1);
    openTemplate(kMonthly);
    EXPECT_EQ(captions(), QStringList{QStringLiteral("Κλάδος")} + shape);
    EXPECT_EQ(host->messages.size(), 1u) << "the filter's";
}

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
                  texts::templateFilterRefused(breakout, texts::bracketClosedFirst()));
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
    expectRefusal(texts::templateNotSaved(QStringLiteral("Του Γ'")), QString());
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
