#include "template_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;
using namespace zkp::test;

namespace {

class SavedPropertiesTest : public GridTest {
protected:
    /// A new control that has read the bag.
    std::unique_ptr<ZkpGrid> reader(const PropertyBagPtr& bag) {
        auto other = std::make_unique<ZkpGrid>(host);
        other->UserControl_ReadProperties(bag);
        return other;
    }
    std::unique_ptr<ZkpGrid> copy() { return reader(shapeOf(*grid)); }

    static const BagValue* held(const PropertyBag& bag, const char16_t* key) { return bag.find(key); }
};

PropertyBagPtr bagWith(const QString& key, BagValue value) {
    PropertyBagPtr bag = newBag();
    bag->WriteProperty(key, std::move(value));
    return bag;
}

} // namespace

// --- Values that come back changed

TEST_F(SavedPropertiesTest, StoixeiaFlagsThatAreOffComeBackOn) {
    grid->setStoixeiaUnderLine(false);
    grid->setStoixeiaOnEveryPage(false);
    const auto other = copy();
    EXPECT_TRUE(other->StoixeiaUnderLine());
    EXPECT_TRUE(other->StoixeiaOnEveryPage());
}

TEST_F(SavedPropertiesTest, WindowColoursOfFrozenAndAlternatingRowsComeBackAsOthers) {
    grid->setFreezeBackColor(systemColor(5));
    grid->setRow1BackColor(systemColor(5));
    grid->setRow1ForeColor(systemColor(5));
    const auto other = copy();
    EXPECT_EQ(other->FreezeBackColor(), systemColor(4));
    EXPECT_EQ(other->Row1BackColor(), systemColor(15));
    EXPECT_EQ(other->Row1ForeColor(), systemColor(18));
}

TEST_F(SavedPropertiesTest, AnEmptyEditTagComesBackAsABlank) {
    grid->setColEditTag(0, u""_s);
    EXPECT_EQ(copy()->ColEditTag(0), u" "_s);
}

TEST_F(SavedPropertiesTest, ColoursThatAreNeverStoredComeBackAsASystemColourAndAsTheControlsOwn) {
    grid->setForeColorSel(0x123456);
    grid->setGridColor(0x123456);
    const PropertyBagPtr bag = shapeOf(*grid);
    EXPECT_EQ(bag->find(u"ForeColorSel"), nullptr);
    EXPECT_EQ(bag->find(u"GridColor"), nullptr);
    grid->setGridColor(0x654321);
    grid->UserControl_ReadProperties(bag);
    EXPECT_EQ(grid->ForeColorSel(), systemColor(14));
    EXPECT_EQ(grid->GridColor(), 0x654321u);
}

TEST_F(SavedPropertiesTest, BackStyleAndFontThatAreNotStoredStayAsTheyAre) {
    const PropertyBagPtr bag = shapeOf(*grid);
    EXPECT_EQ(bag->find(u"BackStyle"), nullptr);
    EXPECT_EQ(bag->find(u"Font"), nullptr);
    ZkpGrid other(host);
    other.setBackStyle(1);
    other.setFontStrikethru(true);
    other.UserControl_ReadProperties(bag);
    EXPECT_EQ(other.BackStyle(), 1);
    EXPECT_TRUE(other.FontStrikethru());
}

TEST_F(SavedPropertiesTest, EuroVerComesBackTrueUnlessABagSpellsItAsItIsRead) {
    grid->setEuroVer(false);
    EXPECT_TRUE(copy()->EuroVer());
    EXPECT_FALSE(reader(bagWith(u"mEuroVer"_s, false))->EuroVer());
}

TEST_F(SavedPropertiesTest, WhatNoCodeWritesComesBackAsItsDefault) {
    grid->setUnionFilter(u"A=1"_s);
    grid->seteditenable(true);
    grid->setFormatString(u"<A"_s);
    grid->UserControl_ReadProperties(shapeOf(*grid));
    EXPECT_EQ(grid->UnionFilter(), u"true"_s);
    EXPECT_FALSE(grid->editenable());
    EXPECT_EQ(grid->FormatString(), u""_s);
}

TEST_F(SavedPropertiesTest, WhatOlderBagsHoldUnderKeysThatNoCodeWritesIsRead) {
    const PropertyBagPtr bag = bagWith(u"EditEnable"_s, true);
    bag->WriteProperty(u"UnionFilter"_s, u"B=2"_s);
    bag->WriteProperty(u"FormatString"_s, u"<B"_s);
    const auto other = reader(bag);
    EXPECT_TRUE(other->editenable());
    EXPECT_EQ(other->UnionFilter(), u"B=2"_s);
    EXPECT_EQ(other->FormatString(), u"<B"_s);
}

TEST_F(SavedPropertiesTest, AHiddenColumnComesBackVisibleWithItsWidth) {
    grid->setColWidth(0, 900);
    grid->setColWidth(0, 0);
    ASSERT_TRUE(grid->MSFlexGrid1().ColHidden(0));
    const PropertyBagPtr bag = shapeOf(*grid);
    grid->UserControl_ReadProperties(bag);
    EXPECT_FALSE(grid->MSFlexGrid1().ColHidden(0));
    EXPECT_EQ(grid->ColWidth(0), 900);
}

// --- What is stored

TEST_F(SavedPropertiesTest, AFilterOfTrueIsStored) {
    grid->setFilter(u"true"_s);
    const PropertyBagPtr bag = shapeOf(*grid);
    ASSERT_NE(bag->find(u"Filter"), nullptr);
    EXPECT_EQ(*bag->find(u"Filter"), BagValue(u"true"_s));
}

TEST_F(SavedPropertiesTest, RowsAreAlwaysStored) {
    grid->setRows(9);
    EXPECT_EQ(*shapeOf(*grid)->find(u"Rows"), BagValue(std::int32_t{9}));
}

TEST_F(SavedPropertiesTest, EditableIsStoredWhenFalseAndReadsTrueWhenItIsMissing) {
    grid->setColEditable(0, true);
    const PropertyBagPtr bag = shapeOf(*grid);
    EXPECT_EQ(bag->find(u"ColEditable0"), nullptr);
    EXPECT_EQ(*bag->find(u"ColEditable1"), BagValue(false));
    const auto other = reader(bag);
    EXPECT_TRUE(other->ColEditable(0));
    EXPECT_FALSE(other->ColEditable(1));
}

TEST_F(SavedPropertiesTest, TheCreditFlagIsStoredThoughItsGetterGivesFalse) {
    grid->setColCredit(0, true);
    ASSERT_FALSE(grid->ColCredit(0));
    EXPECT_EQ(*shapeOf(*grid)->find(u"ColCredit0"), BagValue(true));
}

TEST_F(SavedPropertiesTest, AControlWithoutColumnsStoresNoColumnKeys) {
    grid->MSFlexGrid1().setCols(0);
    const PropertyBagPtr bag = shapeOf(*grid);
    for (const PropertyBag::Entry& entry : bag->entries())
        EXPECT_FALSE(entry.key.endsWith(u'0')) << entry.key.toStdString();
    EXPECT_EQ(*bag->find(u"Cols"), BagValue(std::int32_t{0}));
    const auto other = reader(bag);
    EXPECT_EQ(other->Cols(), 0);
    EXPECT_EQ(other->Columns().Count(), 0);
}

TEST_F(SavedPropertiesTest, ASizeOfASingleComesBackExactly) {
    for (const double size : {8.25, 9.1, 10.05, 123456.7}) {
        grid->setTotalsFontSize(size);
        EXPECT_EQ(copy()->TotalsFontSize(), size);
    }
}

TEST_F(SavedPropertiesTest, TemplateMenuVisibleIsTheStateOfItsTool) {
    Tool& tool = grid->Picture1().Bands(u"mnuTemplate").Tools(u"mnuSaveTemplate");
    tool.Visible = true;
    const PropertyBagPtr bag = shapeOf(*grid);
    EXPECT_EQ(*bag->find(u"TemplateMenuVisible"), BagValue(true));
    EXPECT_TRUE(reader(bag)->Picture1().Tools(u"mnuSaveTemplate").Visible);
    grid->UserControl_ReadProperties(newBag());
    EXPECT_FALSE(tool.Visible);
}

// --- Reading

TEST_F(SavedPropertiesTest, KeysAreFoundWithoutRegardToCase) {
    const PropertyBagPtr bag = bagWith(u"ORDERBY"_s, u"A ASC"_s);
    bag->WriteProperty(u"coltotals0"_s, true);
    bag->WriteProperty(u"PRINT_COLORS"_s, false);
    const auto other = reader(bag);
    EXPECT_EQ(other->OrderBy(), u"A ASC"_s);
    EXPECT_TRUE(other->ColTotals(0));
    EXPECT_FALSE(other->Print_Colors());
}

TEST_F(SavedPropertiesTest, ReadingAgainAppendsColumnsAndBringsElevenMembersUpToDate) {
    grid->setCols(2);
    grid->setColCaption(0, u"A"_s);
    grid->setColEditTag(0, u"old"_s);
    const PropertyBagPtr bag = shapeOf(*grid);
    bag->WriteProperty(u"ColCaption0"_s, u"B"_s);
    bag->WriteProperty(u"ColEditTag0"_s, u"new"_s);
    bag->WriteProperty(u"ColDatafield0"_s, u"F"_s);
    bag->WriteProperty(u"ColWidth0"_s, 700.0);
    bag->WriteProperty(u"ColAlignment0"_s, std::int16_t{7});
    for (const char16_t* flag : {u"ColBalance0", u"ColTotals0", u"ColStatic0", u"ColLR0", u"ColForTot0",
                                 u"ColPerCnt0", u"ColIndexKey0", u"ColCnt0", u"ColDebit0"})
        bag->WriteProperty(QString::fromUtf16(flag), true);
    grid->UserControl_ReadProperties(bag);

    EXPECT_EQ(grid->Columns().Count(), 4);
    const Column& old = grid->Columns().Item(1);
    EXPECT_EQ(old.Caption, u"B"_s);
    EXPECT_EQ(old.Datafield, u"F"_s);
    EXPECT_EQ(old.Width, 700);
    EXPECT_EQ(old.Alignment, 7);
    EXPECT_TRUE(old.Balance && old.Totals && old.Stat_ic && old.lR && old.ForTot && old.PerCnt);
    EXPECT_TRUE(old.Index_Key);
    EXPECT_FALSE(old.cnt || old.Debit) << "what isn't among the eleven stays";
    EXPECT_EQ(old.EditTag, u"old"_s);
    EXPECT_EQ(grid->Columns().Item(3).EditTag, u"new"_s);

    grid->setCols(grid->Cols());
    EXPECT_EQ(grid->Columns().Count(), 2) << "how a host trims";
}

TEST_F(SavedPropertiesTest, WithFewerOldColumnsTheEntriesMixTwoColumnsOfTheBag) {
    grid->setCols(3);
    for (int i = 0; i < 3; ++i) {
        grid->setColCaption(i, QString::number(i));
        grid->setColEditTag(i, QString::number(i));
    }
    const PropertyBagPtr bag = shapeOf(*grid);
    ZkpGrid other(host);
    other.setCols(1);
    other.UserControl_ReadProperties(bag);
    EXPECT_EQ(other.Columns().Count(), 4);
    EXPECT_EQ(other.ColCaption(1), u"1"_s);
    EXPECT_EQ(other.ColEditTag(1), u"0"_s) << "entry 2 is the object of column 0";
}

TEST_F(SavedPropertiesTest, ReadingReportsWhatTheColumnsSettersReportAndNothingElse) {
    const PropertyBagPtr bag = shapeOf(*grid);
    const QStringList column{u"ColCaption"_s, u"ColDataField"_s, u"ColWidth"_s,   u"ColAlignment"_s,
                             u"ColBalance"_s, u"ColTotals"_s,    u"ColStatic"_s,  u"ColLR"_s,
                             u"ColForTot"_s,  u"ColPercnt"_s,    u"ColIndexKey"_s};
    EXPECT_EQ(keysOf([&] { grid->UserControl_ReadProperties(bag); }), column + column);
}

TEST_F(SavedPropertiesTest, ReadingEndsByDrawingTheInterfaceAndLaysOutTheChoices) {
    int drawn = 0;
    QObject::connect(&grid->events(), &Events::StopInterface, [&] { ++drawn; });
    grid->setWidth(9000);
    grid->setHeight(5000);
    grid->UserControl_ReadProperties(bagWith(u"ChoicesVisible"_s, false));
    EXPECT_EQ(drawn, 1);
    EXPECT_FALSE(grid->Picture1().Visible);
    EXPECT_EQ(grid->MSFlexGrid1().place().Height, 5000);
    grid->UserControl_ReadProperties(newBag());
    EXPECT_TRUE(grid->Picture1().Visible);
    EXPECT_EQ(drawn, 2);
}

TEST_F(SavedPropertiesTest, RowsGoToTheGridAndLeaveTheMark) {
    grid->setPreRow(1);
    grid->UserControl_ReadProperties(newBag());
    EXPECT_EQ(grid->Rows(), 1);
    EXPECT_EQ(grid->PreRow(), 1) << "without a record source nothing is painted, and the mark stays";
}

TEST_F(SavedPropertiesTest, WithARecordSourceTheDrawingForgetsTheMark) {
    const auto cn = std::make_shared<ado::Connection>();
    cn->Open(u"sqlite:"_s);
    cn->Execute(u"create table T as select 1 as A"_s);
    grid->setColDataField(0, u"A"_s);
    grid->Fill(cn, u"select * from T"_s, ZKP_SQLStatement);
    grid->refresh();
    ASSERT_TRUE(host->messages.empty());
    grid->setPreRow(1);
    grid->UserControl_ReadProperties(newBag());
    EXPECT_EQ(grid->PreRow(), 0);
}

TEST_F(SavedPropertiesTest, FixedRowsFallBackWhenRowsAreMissing) {
    grid->UserControl_ReadProperties(bagWith(u"FixedRows"_s, std::int32_t{2}));
    EXPECT_EQ(grid->FixedRows(), 2);
    EXPECT_EQ(grid->Rows(), 2);
}

TEST_F(SavedPropertiesTest, TheCountOfGroupFactorsStaysUntilTheNextLoad) {
    grid->setColDataField(0, u"REGION"_s);
    grid->setColForTot(0, true);
    const PropertyBagPtr bag = shapeOf(*grid);
    ZkpGrid other(host);
    other.UserControl_ReadProperties(bag);
    EXPECT_EQ(other.GroupFactorCount(), 0);
    other.CheckGroupBy();
    EXPECT_EQ(other.GroupFactorCount(), 1);
}

TEST_F(SavedPropertiesTest, ATextOfGroupFactorsThatIsReadMakesColumnsInTheNextLoad) {
    const auto other = reader(bagWith(u"GroupBy"_s, u"REGION"_s));
    other->MakeFixedForGroup();
    EXPECT_EQ(other->ColDataField(0), u"REGION"_s);
    EXPECT_EQ(other->Cols(), 3);
}

TEST_F(SavedPropertiesTest, ColumnsOfAFreshControlAreNobodysAndMakeWay) {
    grid->UserControl_ReadProperties(newBag());
    EXPECT_EQ(grid->Columns().Count(), 2);
    grid->UserControl_ReadProperties(newBag());
    EXPECT_EQ(grid->Columns().Count(), 4) << "those that a bag brought are the control's";
}

TEST_F(SavedPropertiesTest, ColumnsThatAHostHasWrittenToStayBehindAsAnyOther) {
    grid->setColEditTag(0, u"mine"_s);
    grid->UserControl_ReadProperties(newBag());
    EXPECT_EQ(grid->Columns().Count(), 4);
    EXPECT_EQ(grid->ColEditTag(0), u"mine"_s);
    ZkpGrid other(host);
    other.Columns().Item(2).Debit = true;
    other.UserControl_ReadProperties(newBag());
    EXPECT_EQ(other.Columns().Count(), 4);
}

TEST_F(SavedPropertiesTest, EntriesLeftBehindAreNoGroupFactors) {
    const PropertyBagPtr two = shapeOf(*grid);
    two->WriteProperty(u"GroupBy"_s, u"REGION"_s);
    grid->setCols(4);
    grid->setColForTot(3, true);
    grid->setColForTot(2, true);
    grid->UserControl_ReadProperties(two);
    ASSERT_EQ(grid->Columns().Count(), 4 + 2);
    EXPECT_EQ(grid->FindGroupNum(), 0);
    EXPECT_FALSE(grid->HasTotals());
    grid->MakeFixedForGroup();
    EXPECT_EQ(grid->ColDataField(0), u"REGION"_s) << "the text that was read still makes its column";
}

TEST_F(SavedPropertiesTest, TheOrderInWhichKeysStandChangesNothing) {
    applyGolden(*grid, "changed_control.txt");
    const PropertyBagPtr bag = shapeOf(*grid);
    const PropertyBagPtr turned = newBag();
    const std::vector<PropertyBag::Entry>& entries = bag->entries();
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry)
        turned->WriteProperty(entry->key, entry->value);
    EXPECT_EQ(bagLines(*shapeOf(*reader(bag))), bagLines(*shapeOf(*reader(turned))));
}

// --- Failures

TEST_F(SavedPropertiesTest, AFailureAmongTheFirstKeysShowsTheBoxAndEndsTheReading) {
    int drawn = 0;
    QObject::connect(&grid->events(), &Events::StopInterface, [&] { ++drawn; });
    const PropertyBagPtr bag = bagWith(u"Cols"_s, u"many"_s);
    bag->WriteProperty(u"BackColor"_s, Color{0x010203});
    bag->WriteProperty(u"Orderby"_s, u"A"_s);
    bag->WriteProperty(u"KeyName"_s, u"K"_s);
    grid->UserControl_ReadProperties(bag);
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].style, kMsgBoxCritical);
    EXPECT_EQ(host->messages[0].title, u"QRN Insurance"_s);
    EXPECT_EQ(grid->BackColor(), 0x010203u) << "what stands before it has been set";
    EXPECT_EQ(grid->OrderBy(), u""_s);
    EXPECT_EQ(grid->KeyName(), u""_s);
    EXPECT_EQ(grid->Columns().Count(), 2);
    EXPECT_EQ(drawn, 0);
}

TEST_F(SavedPropertiesTest, ColumnsThatNoSurfaceTakesAreSuchAFailure) {
    for (const int cols : {-1, 40000, 2147483647}) {
        host->messages.clear();
        grid->UserControl_ReadProperties(bagWith(u"Cols"_s, std::int32_t{cols}));
        EXPECT_EQ(host->messages.size(), 1u) << cols;
        EXPECT_EQ(grid->Cols(), 2) << cols;
    }
}

TEST_F(SavedPropertiesTest, AFailureInALaterKeyLeavesThatValueAndGoesOn) {
    int drawn = 0;
    QObject::connect(&grid->events(), &Events::StopInterface, [&] { ++drawn; });
    grid->setMinRows(8);
    const PropertyBagPtr bag = bagWith(u"MinRows"_s, u"text"_s);
    bag->WriteProperty(u"FixedCols"_s, std::int32_t{99});
    bag->WriteProperty(u"AlignTitle"_s, std::int32_t{70000});
    bag->WriteProperty(u"TitleFontName"_s, true);
    bag->WriteProperty(u"Rows"_s, std::int32_t{-5});
    bag->WriteProperty(u"ColEditField10"_s, false);
    bag->WriteProperty(u"ColWidth0"_s, BagFont{});
    bag->WriteProperty(u"ColCaption1"_s, u"after"_s);
    bag->WriteProperty(u"KeyName"_s, u"K"_s);
    grid->UserControl_ReadProperties(bag);
    EXPECT_TRUE(host->messages.empty());
    EXPECT_EQ(grid->MinRows(), 8);
    EXPECT_EQ(grid->FixedCols(), 0);
    EXPECT_EQ(grid->AlignTitle(), 1);
    EXPECT_EQ(grid->TitleFontName(), u"Arial"_s);
    EXPECT_EQ(grid->ColEditField1(0), u" "_s) << "as a new column has it";
    EXPECT_EQ(grid->Columns().Item(1).Width, 1250);
    EXPECT_EQ(grid->ColCaption(1), u"after"_s);
    EXPECT_EQ(grid->KeyName(), u"K"_s);
    EXPECT_EQ(drawn, 1);
}

TEST_F(SavedPropertiesTest, NumbersOfAnotherTypeBecomeTheOneThatIsWanted) {
    const PropertyBagPtr bag = bagWith(u"MinRows"_s, std::int16_t{6});
    bag->WriteProperty(u"RowSelect"_s, std::int32_t{5});
    bag->WriteProperty(u"AlignTitle"_s, 2.5);
    bag->WriteProperty(u"TitleBackColor"_s, std::int32_t{-2147483643});
    const auto other = reader(bag);
    EXPECT_EQ(other->MinRows(), 6);
    EXPECT_TRUE(other->RowSelect());
    EXPECT_EQ(other->AlignTitle(), 2) << "half to even";
    EXPECT_EQ(other->TitleBackColor(), systemColor(5));
}

TEST_F(SavedPropertiesTest, AFailureWhileWritingShowsTheBoxAndKeepsWhatIsWritten) {
    grid->MSFlexGrid1().setCols(3); // past the control: the third column has no entry
    const PropertyBagPtr bag = shapeOf(*grid);
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_NE(bag->find(u"ColEditField21"), nullptr);
    EXPECT_EQ(bag->find(u"ColCalcEuro2"), nullptr);
    EXPECT_EQ(bag->find(u"Rows"), nullptr);
}

TEST_F(SavedPropertiesTest, NoBagAtAllShowsTheBox) {
    grid->UserControl_WriteProperties({});
    grid->UserControl_ReadProperties({});
    EXPECT_EQ(host->messages.size(), 2u);
}

TEST_F(SavedPropertiesTest, AHandlerMayDestroyTheControlWhileItReads) {
    const PropertyBagPtr bag = shapeOf(*grid);
    QObject::connect(&grid->events(), &Events::PropertyChanged, [&](PropertyArgs& e) {
        if (e.name == u"ColWidth"_s)
            grid.reset();
    });
    grid->UserControl_ReadProperties(bag);
    EXPECT_EQ(grid, nullptr);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(SavedPropertiesTest, AHandlerThatThrowsLosesOneValueOnly) {
    const PropertyBagPtr bag = bagWith(u"KeyName"_s, u"K"_s);
    QObject::connect(&grid->events(), &Events::PropertyChanged,
                     [](PropertyArgs&) { throw Error(kErrInvalidCall, u"no"_s); });
    grid->UserControl_ReadProperties(bag);
    EXPECT_EQ(grid->KeyName(), u"K"_s);
}

TEST_F(SavedPropertiesTest, AHandlerMayEmptyTheBag) {
    PropertyBagPtr bag = bagWith(u"KeyName"_s, u"K"_s);
    QObject::connect(&grid->events(), &Events::PropertyChanged, [&](PropertyArgs&) {
        if (bag)
            bag->setContents({});
        bag.reset();
    });
    grid->UserControl_ReadProperties(bag);
    EXPECT_EQ(grid->KeyName(), u""_s);
}
