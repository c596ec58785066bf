#include "grid_fixture.h"

#include <QMetaProperty>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

#define COUNT(...) +1
constexpr int kListed =
    0 ZKP_SURFACE_PROPERTIES(COUNT) ZKP_LOOK_PROPERTIES(COUNT) ZKP_MEMBER_PROPERTIES(COUNT)
        ZKP_KEPT_MEMBERS(COUNT) ZKP_SILENT_PROPERTIES(COUNT) ZKP_PLAIN_MEMBERS(COUNT) ZKP_READ_ONLY_MEMBERS(COUNT);
constexpr int kByHand =
    10; // Rows, Cols, Row, RecordSource, Width, Height, MousePointer, Locale, RecordsourceSTR, HasTotals
constexpr int kIndexed = 0 ZKP_SURFACE_INDEXED(COUNT) ZKP_COLUMN_PROPERTIES(COUNT);
#undef COUNT

/// A value other than the present one, of the same type.
QVariant another(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::QString:
        return value.toString() + u"x"_s;
    case QMetaType::UInt:
        return QVariant::fromValue<Color>(value.toUInt() ^ 0x00010203u);
    case QMetaType::Short:
        return QVariant::fromValue<short>(static_cast<short>(value.toInt() + 1));
    case QMetaType::Int:
        return value.toInt() + 1;
    case QMetaType::Double:
        return value.toDouble() + 1;
    default:
        return QVariant::fromValue(Currency::fromWhole(7));
    }
}

} // namespace

using PropertyListTest = GridTest;

// A header that the meta-object compiler misses drops properties without a word.
TEST_F(PropertyListTest, TheMetaObjectHasEveryPropertyOfTheList) {
    const QMetaObject& meta = ZkpGrid::staticMetaObject;
    EXPECT_EQ(meta.propertyCount() - meta.propertyOffset(), kListed + kByHand);
    int setters = 0;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        setters += meta.method(i).parameterCount() == 2 && meta.method(i).name().startsWith("set") ? 1 : 0;
    EXPECT_EQ(setters, kIndexed + 4); // and ColAlignment, ColCaption, ColCredit, ColWidth
}

TEST_F(PropertyListTest, EveryStoredPropertyReadsBackWhatWasWrittenAndReportsItsKeyOnce) {
    const auto check = [&](const QString& name, const QString& key) {
        const QByteArray latin = name.toLatin1();
        const QVariant value = another(grid->property(latin));
        const QStringList keys = keysOf([&] { EXPECT_TRUE(grid->setProperty(latin, value)); });
        EXPECT_EQ(grid->property(latin), value) << latin.constData();
        EXPECT_EQ(keys, key.isEmpty() ? QStringList{} : QStringList{key}) << latin.constData();
    };
#define KEYED(Type, Name, Key, ...) check(QStringLiteral(#Name), QStringLiteral(Key));
    ZKP_MEMBER_PROPERTIES(KEYED)
#define LOOK(Type, Name) check(QStringLiteral(#Name), QStringLiteral(#Name));
    ZKP_LOOK_PROPERTIES(LOOK)
}

TEST_F(PropertyListTest, SilentPropertiesAndPlainMembersReportNothing) {
    EXPECT_EQ(keysOf([&] {
                  grid->setCommandTimeout(60);
                  grid->setDesignMode(true);
                  grid->setTotalForm(true);
                  grid->setRowByRow(true);
                  grid->setSourceType(ZKP_Table_QUERY);
                  grid->setRecordSource(u"POLICIES"_s);
                  grid->setProductID(u"1"_s);
                  grid->setIerarxia(u"1"_s);
                  grid->setIerID(u"1"_s);
                  grid->setRemote(1);
                  grid->setUserID(1);
                  grid->setRecCount(5);
                  grid->setSQLRun(u"x"_s);
                  grid->setParamValue(7);
                  grid->setPrintLeftMargin(Currency::fromWhole(3));
              }),
              QStringList{});
    EXPECT_EQ(grid->RecCount(), 5);
    EXPECT_EQ(grid->ParamValue(), QVariant(7));
    EXPECT_EQ(grid->CommandTimeout(), 60);
}

TEST_F(PropertyListTest, IdentityCanBeSetAndNotRead) {
    for (const char* name : {"ProductID", "Ierarxia", "IerID", "Remote", "UserID"}) {
        EXPECT_EQ(grid->metaObject()->indexOfProperty(name), -1) << name;
        EXPECT_EQ(grid->metaObject()->indexOfMethod(QByteArray(name) + "()"), -1) << name;
    }
}

TEST_F(PropertyListTest, SurfacePropertiesShowOnTheSurfaceAndBack) {
    grid->setRows(5);
    grid->setCols(4);
    EXPECT_EQ(keysOf([&] { grid->setBackColor(0x00010203); }), QStringList{u"BackColor"_s});
    EXPECT_EQ(grid->MSFlexGrid1().BackColor(), 0x00010203u);
    grid->MSFlexGrid1().setForeColorFixed(0x00030201);
    EXPECT_EQ(grid->ForeColorFixed(), 0x00030201u);
    grid->setRow(2);
    grid->setCol(3);
    grid->setText(u"κείμενο"_s);
    EXPECT_EQ(grid->MSFlexGrid1().TextMatrix(2, 3), u"κείμενο"_s);
    EXPECT_EQ(grid->TextArray(2 * 4 + 3), u"κείμενο"_s);
    EXPECT_EQ(keysOf([&] { grid->setRowData(2, 9); }), QStringList{u"RowData"_s});
    EXPECT_EQ(grid->MSFlexGrid1().RowData(2), 9);
    grid->setMergeCol(1, true);
    EXPECT_TRUE(grid->MSFlexGrid1().MergeCol(1));
}
