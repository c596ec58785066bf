#include "grid_fixture.h"
#include "property_values.h"

#include "base/text.h"

#include <QMetaProperty>

using namespace Qt::StringLiterals;
using namespace zkp;

// Walks the property list itself, so that a property that is added there is tested.

namespace {

/// One plain property of the list. `key` is empty where nothing is reported.
struct PlainCase {
    QString name;
    QString key;
    std::function<QVariant(ZkpGrid&)> get;
    std::function<void(ZkpGrid&, const QVariant&)> set;
    std::function<QVariant(const QVariant&)> other; ///< another value
};

/// One property by the position of a column, or of a row or cell.
struct IndexedCase {
    QString name;
    std::function<QVariant(ZkpGrid&, int)> get;
    std::function<void(ZkpGrid&, int, const QVariant&)> set;
    std::function<QVariant(const QVariant&)> other;
};

template <class Type>
QVariant otherThan(const QVariant& value) {
    return QVariant::fromValue<Type>(another<Type>(value.value<Type>()));
}

#define PLAIN(Type, Name, Key)                                                                               \
    PlainCase{QStringLiteral(#Name), QStringLiteral(Key),                                                    \
              [](ZkpGrid& g) { return QVariant::fromValue<Type>(g.Name()); },                                \
              [](ZkpGrid& g, const QVariant& v) { g.set##Name(v.value<Type>()); }, otherThan<Type>},
#define KEYED(Type, Name, Key, ...) PLAIN(Type, Name, Key)
#define BY_ITS_NAME(Type, Name, ...) PLAIN(Type, Name, #Name)
#define SILENT(Type, Name, ...) PLAIN(Type, Name, "")
#define INDEXED(Type, Name, ...)                                                                             \
    IndexedCase{                                                                                             \
        QStringLiteral(#Name), [](ZkpGrid& g, int i) { return QVariant::fromValue<Type>(g.Name(i)); },       \
        [](ZkpGrid& g, int i, const QVariant& v) { g.set##Name(i, v.value<Type>()); }, otherThan<Type>},

/// Those that don't come back as they were given; each has a test of its own.
bool isException(const QString& name) {
    return QStringList{u"PrintCenter"_s, u"RecordSource"_s, u"ColCredit"_s}.contains(name);
}

std::vector<PlainCase> plainCases() {
    return {ZKP_SURFACE_PROPERTIES(BY_ITS_NAME) ZKP_LOOK_PROPERTIES(BY_ITS_NAME) ZKP_HAND_WRITTEN(BY_ITS_NAME)
                ZKP_MEMBER_PROPERTIES(KEYED) ZKP_KEPT_MEMBERS(KEYED) ZKP_SILENT_PROPERTIES(SILENT)
                    ZKP_HAND_WRITTEN_SILENT(SILENT)};
}

std::vector<IndexedCase> indexedCases() {
    return {ZKP_SURFACE_INDEXED(INDEXED) ZKP_COLUMN_PROPERTIES(INDEXED) ZKP_HAND_WRITTEN_INDEXED(INDEXED)};
}

#define NAME(Type, Name, ...) QStringLiteral(#Name),
QStringList readOnlyNames() {
    return {ZKP_READ_ONLY_MEMBERS(NAME) ZKP_READ_ONLY_ANSWERS(NAME)};
}
QStringList identityNames() {
    return {ZKP_IDENTITY_PROPERTIES(NAME)};
}

} // namespace

class PropertyListTest : public GridTest {
protected:
    PropertyListTest() { renew(); }

    /// A control with room on all sides of its current cell.
    void renew() {
        grid = std::make_unique<ZkpGrid>(host);
        grid->setRows(12);
        grid->setCols(8);
        grid->setRow(1);
        grid->setCol(1);
        QObject::connect(&grid->events(), &Events::PropertyChanged,
                         [this](PropertyArgs& e) { changed << e.name; });
    }

    static QStringList once(const QString& key) { return key.isEmpty() ? QStringList{} : QStringList{key}; }
};

// A header that the meta-object compiler misses drops properties without a word.
TEST_F(PropertyListTest, TheMetaObjectHasThePropertiesOfTheListAndNoOthers) {
    QStringList listed = readOnlyNames();
    for (const PlainCase& c : plainCases())
        listed << c.name;
    QStringList known;
    const QMetaObject& meta = ZkpGrid::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        known << QString::fromLatin1(meta.property(i).name());
    listed.sort();
    known.sort();
    EXPECT_EQ(known, listed);
}

TEST_F(PropertyListTest, TheMetaObjectHasBothMethodsOfEachIndexedProperty) {
    const QMetaObject& meta = ZkpGrid::staticMetaObject;
    int setters = 0;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        setters += meta.method(i).parameterCount() > 1 && meta.method(i).name().startsWith("set") ? 1 : 0;
    EXPECT_EQ(setters, static_cast<int>(indexedCases().size()) + 1); // and TextMatrix
    for (const IndexedCase& c : indexedCases())
        EXPECT_GE(meta.indexOfMethod(qPrintable(c.name + u"(int)"_s)), 0) << qPrintable(c.name);
}

TEST_F(PropertyListTest, NamesDifferByMoreThanTheirCase) {
    QStringList keys;
    for (const PlainCase& c : plainCases())
        keys << nameKey(c.name);
    for (const IndexedCase& c : indexedCases())
        keys << nameKey(c.name);
    for (const QString& name : readOnlyNames() + identityNames())
        keys << nameKey(name);
    const auto count = keys.size();
    keys.removeDuplicates();
    EXPECT_EQ(keys.size(), count);
}

TEST_F(PropertyListTest, EachTakesAnotherValueByMethodAsQtPropertyAndByNameAndReportsItOnce) {
    for (const PlainCase& c : plainCases()) {
        if (isException(c.name))
            continue;
        renew();
        QVariant value = c.other(c.get(*grid));
        EXPECT_NE(value, c.get(*grid)) << qPrintable(c.name);
        EXPECT_EQ(keysOf([&] { c.set(*grid, value); }), once(c.key)) << qPrintable(c.name);
        EXPECT_EQ(c.get(*grid), value) << qPrintable(c.name);

        value = c.other(value);
        const QByteArray latin = c.name.toLatin1();
        EXPECT_EQ(keysOf([&] { EXPECT_TRUE(grid->setProperty(latin, value)); }), once(c.key))
            << qPrintable(c.name);
        EXPECT_EQ(grid->property(latin), value) << qPrintable(c.name);

        value = c.other(value);
        EXPECT_EQ(keysOf([&] { grid->setMember(c.name.toUpper(), value); }), once(c.key))
            << qPrintable(c.name);
        EXPECT_EQ(grid->getMember(c.name.toLower()), value) << qPrintable(c.name);
        EXPECT_EQ(c.get(*grid), value) << qPrintable(c.name);
    }
}

TEST_F(PropertyListTest, EachIndexedOneTakesAnotherValueAtItsPlaceAndReportsItOnce) {
    for (const IndexedCase& c : indexedCases()) {
        if (isException(c.name) || c.name == u"ColAlignment"_s)
            continue;
        renew();
        const QVariant neighbour = c.get(*grid, 2);
        QVariant value = c.other(c.get(*grid, 3));
        EXPECT_EQ(keysOf([&] { c.set(*grid, 3, value); }), QStringList{c.name});
        EXPECT_EQ(c.get(*grid, 3), value) << qPrintable(c.name);

        value = c.other(value);
        EXPECT_EQ(keysOf([&] { grid->setMember(c.name.toUpper(), value, {3}); }), QStringList{c.name});
        EXPECT_EQ(grid->getMember(c.name.toLower(), {3}), value) << qPrintable(c.name);
        EXPECT_EQ(c.get(*grid, 3), value) << qPrintable(c.name);
        EXPECT_EQ(c.get(*grid, 2), neighbour) << qPrintable(c.name);
    }
}

TEST_F(PropertyListTest, WhatIsWrittenOnTheSurfaceIsReadOnTheControlAndTheOtherWayRound){
#define BOTH_WAYS(Type, Name, ...)                                                                           \
    {                                                                                                        \
        renew();                                                                                             \
        GridSurface& surface = grid->MSFlexGrid1();                                                          \
        const Type value = another<Type>(surface.Name());                                                    \
        surface.set##Name(value);                                                                            \
        EXPECT_EQ(grid->Name(), value) << #Name;                                                             \
        const Type back = another<Type>(value);                                                              \
        grid->set##Name(back);                                                                               \
        EXPECT_EQ(surface.Name(), back) << #Name;                                                            \
    }
    ZKP_SURFACE_PROPERTIES(BOTH_WAYS) BOTH_WAYS(int, Row) BOTH_WAYS(int, Rows) BOTH_WAYS(int, Cols)
        BOTH_WAYS(BagFont, Font)}

TEST_F(PropertyListTest, TheSurfacesSettingsAreThoseOfTheControl){
#define SETTING_BOTH_WAYS(Type, Name, ...)                                                                   \
    {                                                                                                        \
        renew();                                                                                             \
        GridSurface::Look look = grid->MSFlexGrid1().look();                                                 \
        look.Name = another<Type>(look.Name);                                                                \
        grid->MSFlexGrid1().setLook(look);                                                                   \
        EXPECT_EQ(grid->Name(), look.Name) << #Name;                                                         \
        const Type back = another<Type>(look.Name);                                                          \
        grid->set##Name(back);                                                                               \
        EXPECT_EQ(grid->MSFlexGrid1().look().Name, back) << #Name;                                           \
    }
    ZKP_LOOK_PROPERTIES(SETTING_BOTH_WAYS) SETTING_BOTH_WAYS(QVariant, Panel)}

TEST_F(PropertyListTest, TheSurfacesIndexedPropertiesAreThoseOfTheControl){
#define INDEXED_BOTH_WAYS(Type, Name)                                                                        \
    {                                                                                                        \
        renew();                                                                                             \
        GridSurface& surface = grid->MSFlexGrid1();                                                          \
        const Type value = another<Type>(surface.Name(3));                                                   \
        surface.set##Name(3, value);                                                                         \
        EXPECT_EQ(grid->Name(3), value) << #Name;                                                            \
        const Type back = another<Type>(value);                                                              \
        grid->set##Name(3, back);                                                                            \
        EXPECT_EQ(surface.Name(3), back) << #Name;                                                           \
    }
    ZKP_SURFACE_INDEXED(INDEXED_BOTH_WAYS)}

TEST_F(PropertyListTest, IdentityCanBeSetByMethodAndByNameAndNotRead) {
    for (const QString& name : identityNames()) {
        EXPECT_EQ(grid->metaObject()->indexOfProperty(qPrintable(name)), -1) << qPrintable(name);
        EXPECT_EQ(grid->metaObject()->indexOfMethod(qPrintable(name + u"()"_s)), -1) << qPrintable(name);
        EXPECT_EQ(errorNumber([&] { grid->getMember(name); }), kErrNoSuchMember) << qPrintable(name);
        const bool isText = name.startsWith(u'I') || name == u"ProductID"_s;
        const QVariant value = isText ? QVariant(u"1"_s) : QVariant(1);
        EXPECT_EQ(keysOf([&] { grid->setMember(name.toLower(), value); }), QStringList{}) << qPrintable(name);
    }
}

TEST_F(PropertyListTest, ReadOnlyOnesAreReadAndRefuseAValue) {
    for (const QString& name : readOnlyNames()) {
        EXPECT_EQ(grid->getMember(name.toUpper()), grid->property(qPrintable(name))) << qPrintable(name);
        EXPECT_TRUE(grid->getMember(name).isValid()) << qPrintable(name);
        EXPECT_FALSE(grid->setProperty(qPrintable(name), u"1"_s)) << qPrintable(name);
        EXPECT_EQ(errorNumber([&] { grid->setMember(name, u"1"_s); }), kErrNoSuchMember)
            << qPrintable(name);
    }
}
