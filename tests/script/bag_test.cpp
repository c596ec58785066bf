#include "script_fixture.h"

#include "bag/property_bag.h"

namespace {

class Bag : public ScriptTest {
protected:
    Bag() { run(QStringLiteral("var bag = new PropertyBag();")); }

    QString valueOf(const char* expression) {
        return linesOf(QStringLiteral("print(%1)").arg(QString::fromUtf8(expression))).value(0);
    }
};

TEST_F(Bag, AValueComesBackUnderItsKeyInAnyCase) {
    run(QStringLiteral("bag.WriteProperty('Cols', 4); bag.WriteProperty('Filter', 'α > 1');"
                       "bag.WriteProperty('Width', 900.5); bag.WriteProperty('TotalForm', true);"
                       "bag.WriteProperty('BackColor', 0x80000005); bag.WriteProperty('RecCount', 1e12);"));
    EXPECT_EQ(valueOf("bag.ReadProperty('COLS', 2) === 4"), QStringLiteral("true"));
    EXPECT_EQ(valueOf("bag.ReadProperty('filter')"), QStringLiteral("α > 1"));
    EXPECT_EQ(valueOf("bag.ReadProperty('Width', 1250)"), QStringLiteral("900.5"));
    EXPECT_EQ(valueOf("bag.ReadProperty('TotalForm', false) === true"), QStringLiteral("true"));
    EXPECT_EQ(valueOf("bag.ReadProperty('BackColor', 0) === 0x80000005"), QStringLiteral("true"));
    EXPECT_EQ(valueOf("bag.ReadProperty('RecCount', 0) === 1e12"), QStringLiteral("true"));
}

TEST_F(Bag, AMissingKeyGivesTheDefaultOrNull) {
    EXPECT_EQ(valueOf("bag.ReadProperty('Cols', 2)"), QStringLiteral("2"));
    EXPECT_EQ(valueOf("bag.ReadProperty('Cols') === null"), QStringLiteral("true"));
}

TEST_F(Bag, AValueEqualToItsDefaultIsNotStored) {
    run(QStringLiteral("bag.WriteProperty('A', 5, 5); bag.WriteProperty('B', true, -1);"
                       "bag.WriteProperty('C', ' ', ''); bag.WriteProperty('D', 5);"));
    EXPECT_EQ(valueOf("['A', 'B', 'C', 'D'].map((key) => bag.ReadProperty(key, 'none')).join('|')"),
              QStringLiteral("none|none| |5"));
}

TEST_F(Bag, ContentsMakeAnotherBagTheSame) {
    run(QStringLiteral("bag.WriteProperty('PrintCaption', 'Παραγωγή'); var copy = new PropertyBag();"
                       "copy.WriteProperty('gone', 1); copy.Contents = bag.Contents;"));
    EXPECT_EQ(valueOf("copy.ReadProperty('printcaption')"), QStringLiteral("Παραγωγή"));
    EXPECT_EQ(valueOf("copy.ReadProperty('gone') === null"), QStringLiteral("true"));
    EXPECT_EQ(valueOf("bag.Contents instanceof ArrayBuffer"), QStringLiteral("true"));
    EXPECT_EQ(valueOf("String.fromCharCode(...new Uint8Array(bag.Contents).slice(0, 4))"),
              QStringLiteral("ZKPB"));
}

TEST_F(Bag, ContentsPassThroughADatabase) {
    run(QStringLiteral(
        "bag.WriteProperty('Cols', 7);"
        "cn.Execute('CREATE TABLE STORED (ID INTEGER PRIMARY KEY, BYTES BLOB)');"
        "var rs = new Recordset(); rs.Open('SELECT * FROM STORED', cn, 2, 3);"
        "rs.AddNew(); rs.setCollect('ID', 1); rs.setCollect('BYTES', bag.Contents); rs.Update();"
        "var other = new PropertyBag();"
        "other.Contents = cn.Execute('SELECT BYTES FROM STORED').Collect('BYTES');"));
    EXPECT_TRUE(errors.isEmpty()) << errors.join(QLatin1Char('\n')).toStdString();
    EXPECT_EQ(valueOf("other.ReadProperty('Cols', 0)"), QStringLiteral("7"));
}

TEST_F(Bag, NoBytesAreAnEmptyBag) {
    run(QStringLiteral("bag.WriteProperty('A', 1); bag.Contents = new ArrayBuffer(0);"));
    EXPECT_TRUE(errors.isEmpty()) << errors.join(QLatin1Char('\n')).toStdString();
    EXPECT_EQ(valueOf("bag.ReadProperty('A') === null"), QStringLiteral("true"));
}

TEST_F(Bag, DamagedContentsAreOneErrorAndLeaveTheBagAsItWas) {
    run(QStringLiteral("bag.WriteProperty('A', 1);"));
    EXPECT_EQ(errorNumber(QStringLiteral("bag.Contents = bag.Contents.slice(0, 20)")),
              static_cast<int>(zkp::kErrInvalidFormat));
    EXPECT_EQ(errorNumber(QStringLiteral("bag.Contents = new ArrayBuffer(100)")),
              static_cast<int>(zkp::kErrInvalidFormat));
    EXPECT_EQ(errorNumber(QStringLiteral("bag.Contents = null")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("bag.Contents = 'ZKPB'")), 13);
    EXPECT_EQ(valueOf("bag.ReadProperty('A', 0)"), QStringLiteral("1"));
}

TEST_F(Bag, WhatIsNoValueOfABagIsATypeMismatch) {
    for (const char* value : {"null", "cn", "[1]", "bag", "bag.Contents", "{}"}) {
        const QString statement = QStringLiteral("bag.WriteProperty('A', %1)").arg(QLatin1String(value));
        EXPECT_EQ(errorNumber(statement), 13) << value;
    }
    EXPECT_EQ(errorNumber(QStringLiteral("bag.WriteProperty('', 1)")), 5);
    EXPECT_EQ(errorNumber(QStringLiteral("bag.WriteProperty('A')")), 449);
    EXPECT_EQ(errorNumber(QStringLiteral("bag.Count")), 438);
}

TEST_F(Bag, AFontIsSavedAndGivenBack) {
    run(QStringLiteral("grid.FontName = 'Liberation Serif'; grid.FontSize = 10.5; grid.FontItalic = true;"
                       "bag.WriteProperty('Font', grid.Font); grid.FontSize = 8; grid.FontItalic = false;"
                       "var copy = new PropertyBag(); copy.Contents = bag.Contents;"
                       "var font = copy.ReadProperty('Font');"));
    EXPECT_TRUE(errors.isEmpty()) << errors.join(QLatin1Char('\n')).toStdString();
    EXPECT_EQ(valueOf("[font, font.Name, font.Size, font.Bold, font.Italic, font.Underline, "
                      "font.Strikethrough].join('|')"),
              QStringLiteral("[object Font]|Liberation Serif|10.5|false|true|false|false"));
    run(QStringLiteral("grid.Font = font; copy.WriteProperty('Font', font, grid.Font);"));
    EXPECT_EQ(valueOf("[grid.FontSize, grid.FontItalic, copy.ReadProperty('Font')].join('|')"),
              QStringLiteral("10.5|true|"));
}

} // namespace
