#include "window_templates_fixture.h"

namespace {

using namespace zkp;
namespace texts = zkp::app::texts;

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

} // namespace
