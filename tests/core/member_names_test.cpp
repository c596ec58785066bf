#include "grid_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

// Members by their names as text.

using MemberNamesTest = GridTest;

TEST_F(MemberNamesTest, ANameIsFoundWithoutRegardToCaseAndBlanksAround) {
    grid->setMember(u"fIlTeR"_s, u"A>1"_s);
    EXPECT_EQ(grid->getMember(u" FILTER "_s), QVariant(u"A>1"_s));
    EXPECT_EQ(grid->getMember(u"CLMNS"_s), QVariant(QString()));
}

TEST_F(MemberNamesTest, AnUnknownNameIsAnErrorThatNamesIt) {
    const Error error = errorOf([&] { grid->getMember(u"Filtre"_s); });
    EXPECT_EQ(error.number(), kErrNoSuchMember);
    EXPECT_EQ(error.description(), u"Filtre is no member of ZkpGrid"_s);
    for (const QString& name : {u""_s, u"deleteLater"_s, u"objectName"_s, u"setFilter"_s, u"Filter()"_s}) {
        EXPECT_EQ(errorNumber([&] { grid->getMember(name); }), kErrNoSuchMember) << qPrintable(name);
        EXPECT_EQ(errorNumber([&] { grid->setMember(name, 1); }), kErrNoSuchMember) << qPrintable(name);
        EXPECT_EQ(errorNumber([&] { grid->callMember(name); }), kErrNoSuchMember) << qPrintable(name);
    }
}

TEST_F(MemberNamesTest, IndexedPropertiesTakeTheirPlaces) {
    grid->setMember(u"colwidth"_s, 900, {1});
    EXPECT_EQ(grid->getMember(u"ColWidth"_s, {1}), QVariant(900.0));
    grid->setMember(u"textmatrix"_s, u"κείμενο"_s, {1, 0});
    EXPECT_EQ(grid->getMember(u"TextMatrix"_s, {1, 0}), QVariant(u"κείμενο"_s));
    EXPECT_EQ(errorNumber([&] { grid->getMember(u"ColWidth"_s); }), kErrArgumentMissing);
    EXPECT_EQ(errorNumber([&] { grid->setMember(u"ColWidth"_s, 1); }), kErrArgumentMissing);
    EXPECT_EQ(errorNumber([&] { grid->getMember(u"ColWidth"_s, {1, 2}); }), kErrArgumentCount);
    EXPECT_EQ(errorNumber([&] { grid->getMember(u"Filter"_s, {1}); }), kErrArgumentCount);
    EXPECT_EQ(errorNumber([&] { grid->setMember(u"Filter"_s, u""_s, {1}); }), kErrArgumentCount);
    EXPECT_EQ(errorNumber([&] { grid->getMember(u"ColTotals"_s, {9}); }), kErrSubscript);
}

TEST_F(MemberNamesTest, MethodsAreCalledWithAsManyArgumentsAsTheyHave) {
    grid->callMember(u"additem"_s, {u"a"_s});
    grid->callMember(u"ADDITEM"_s, {u"b"_s, 1});
    EXPECT_EQ(grid->TextMatrix(1, 0), u"b"_s);
    EXPECT_EQ(grid->Rows(), 4);
    EXPECT_EQ(grid->callMember(u"FindGroupNum"_s), QVariant::fromValue<short>(0));
    EXPECT_EQ(grid->callMember(u"findcolumnbyfield"_s, {u"NIX"_s}).toInt(), -1);
    EXPECT_FALSE(grid->callMember(u"Clear"_s).isValid()) << "it gives nothing";
    EXPECT_EQ(errorNumber([&] { grid->callMember(u"AddItem"_s); }), kErrArgumentMissing);
    EXPECT_EQ(errorNumber([&] { grid->callMember(u"AddItem"_s, {u"a"_s, 1, 2}); }), kErrArgumentCount);
}

TEST_F(MemberNamesTest, ArgumentsThatAMethodChangesComeBack) {
    QVariantList arguments{u"PREMIUM"_s, 1, {}, u"before"_s};
    EXPECT_FALSE(grid->callMember(u"percentofparent"_s, arguments).isValid());
    EXPECT_EQ(arguments, (QVariantList{u"PREMIUM"_s, 1, {}, u"0.00"_s})) << "there are no records to share";
}

TEST_F(MemberNamesTest, AMethodIsNotReadAndAPropertyNotCalled) {
    EXPECT_EQ(errorNumber([&] { grid->getMember(u"refresh"_s); }), kErrNoSuchMember);
    EXPECT_EQ(errorNumber([&] { grid->setMember(u"refresh"_s, 1); }), kErrNoSuchMember);
    EXPECT_EQ(errorNumber([&] { grid->callMember(u"Filter"_s); }), kErrNoSuchMember);
    EXPECT_EQ(errorNumber([&] { grid->callMember(u"ColWidth"_s, {1}); }), kErrNoSuchMember);
    EXPECT_EQ(errorNumber([&] { grid->callMember(u"ProductID"_s, {u"1"_s}); }), kErrNoSuchMember);
}

TEST_F(MemberNamesTest, ValuesBecomeTheTypeThatIsWanted) {
    grid->setMember(u"CommandTimeout"_s, 2.5);
    EXPECT_EQ(grid->CommandTimeout(), 2) << "half to even";
    grid->setMember(u"CommandTimeout"_s, true);
    EXPECT_EQ(grid->CommandTimeout(), -1);
    grid->setMember(u"EuroVer"_s, 0);
    EXPECT_FALSE(grid->EuroVer());
    grid->setMember(u"BackColor"_s, -2147483643);
    EXPECT_EQ(grid->BackColor(), 0x80000005u);
    grid->setMember(u"KeyName"_s, 7);
    EXPECT_EQ(grid->KeyName(), u"7"_s);
    grid->setMember(u"PrintLeftMargin"_s, 1.25);
    EXPECT_EQ(grid->PrintLeftMargin().scaled, 12500);
    grid->setMember(u"SQLRun"_s, 5);
    EXPECT_EQ(grid->SQLRun(), QVariant(5));
    grid->setMember(u"RCrw"_s, {});
    EXPECT_EQ(grid->RCrw(), nullptr);
}

TEST_F(MemberNamesTest, AValueThatDoesNotFitIsRefusedAndLeavesTheOldOne) {
    grid->setMinRows(5);
    const std::pair<QString, QVariant> mismatches[] = {
        {u"MinRows"_s, u"6"_s}, {u"Filter"_s, {}}, {u"Font"_s, u"Arial"_s}, {u"Cn"_s, 1}, {u"Locale"_s, 1}};
    for (const auto& [name, value] : mismatches)
        EXPECT_EQ(errorNumber([&] { grid->setMember(name, value); }), kErrTypeMismatch) << qPrintable(name);
    EXPECT_EQ(grid->MinRows(), 5);
    EXPECT_EQ(errorNumber([&] { grid->setMember(u"ColWidth"_s, 900, {u"1"_s}); }), kErrTypeMismatch);
    EXPECT_EQ(errorNumber([&] { grid->setMember(u"CommandTimeout"_s, 40000); }), kErrOverflow);
    EXPECT_EQ(errorNumber([&] { grid->setMember(u"BackColor"_s, 5e9); }), kErrOverflow);
    EXPECT_EQ(errorNumber([&] { grid->setMember(u"PrintTopMargin"_s, 1e30); }), kErrOverflow);
}

TEST_F(MemberNamesTest, WhatStandsOnTheControlIsReadAsAPointer) {
    EXPECT_EQ(grid->getMember(u"msflexgrid1"_s).value<GridSurface*>(), &grid->MSFlexGrid1());
    EXPECT_EQ(grid->getMember(u"Columns"_s).value<ColumnList*>(), &grid->Columns());
    EXPECT_EQ(grid->getMember(u"Picture1"_s).value<MenuBar*>(), &grid->Picture1());
    EXPECT_EQ(grid->getMember(u"lblTemplate"_s).value<Label*>(), &grid->lbltemplate());
    EXPECT_EQ(grid->getMember(u"Events"_s).value<Events*>(), &grid->events());
    EXPECT_EQ(errorNumber([&] { grid->setMember(u"Columns"_s, 1); }), kErrNoSuchMember);
}

TEST_F(MemberNamesTest, AFailureOfTheMemberIsItsOwn) {
    EXPECT_EQ(errorNumber([&] { grid->setMember(u"Rows"_s, -1); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { grid->callMember(u"refresh"_s); }), kErrPropertyNotSet);
}

TEST_F(MemberNamesTest, AHandlerMayDestroyTheControl) {
    QObject::connect(&grid->events(), &Events::PropertyChanged, [this](PropertyArgs&) { grid.reset(); });
    ZkpGrid* control = grid.get();
    control->setMember(u"Filter"_s, u"x"_s);
    EXPECT_EQ(grid, nullptr);
}
