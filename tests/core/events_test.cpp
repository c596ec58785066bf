#include "grid_fixture.h"

#include <QMetaMethod>

#include <set>

using namespace Qt::StringLiterals;
using namespace zkp;

TEST(Events, AllThirtyThreeAndThePropertyChangeCanBeBound) {
    const std::set<QString> expected = {u"Compare"_s,
                                        u"Click"_s,
                                        u"DblClick"_s,
                                        u"KeyDown"_s,
                                        u"KeyPress"_s,
                                        u"KeyUp"_s,
                                        u"MouseDown"_s,
                                        u"MouseUp"_s,
                                        u"Selecting"_s,
                                        u"MenuExportTable"_s,
                                        u"PrintCommand"_s,
                                        u"StartSorting"_s,
                                        u"StopSorting"_s,
                                        u"StartFilling"_s,
                                        u"StopFillIng"_s,
                                        u"StartInterface"_s,
                                        u"StopInterface"_s,
                                        u"MenuSaveTemplate"_s,
                                        u"MenuSaveTemplateAs"_s,
                                        u"MenuLoadTemplate"_s,
                                        u"MenuTitle"_s,
                                        u"addcolumn"_s,
                                        u"FirstRetrieved"_s,
                                        u"DelColumn"_s,
                                        u"InsertColumn"_s,
                                        u"LeaveEdit"_s,
                                        u"StartEdit"_s,
                                        u"Groupby"_s,
                                        u"GroupBy1"_s,
                                        u"GroupBy2"_s,
                                        u"GroupBy3"_s,
                                        u"GroupBy4"_s,
                                        u"RetrieveRow"_s,
                                        u"PropertyChanged"_s};
    std::set<QString> found;
    const QMetaObject& meta = Events::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            found.insert(QString::fromLatin1(meta.method(i).name()));
    EXPECT_EQ(found, expected);
}

TEST(Events, AHandlerThatThrowsReachesTheRaiser) {
    Events events;
    QObject::connect(&events, &Events::Click, [] { throw Error(1, u"no"_s); });
    EXPECT_EQ(errorNumber([&] { Q_EMIT events.Click(); }), 1u);
    // The object still works afterwards.
    EXPECT_EQ(errorNumber([&] { Q_EMIT events.Click(); }), 1u);
}

TEST(Events, KnowsWhetherRetrieveRowIsHeard) {
    Events events;
    EXPECT_FALSE(events.isRetrieveRowHeard());
    const auto connection = QObject::connect(&events, &Events::RetrieveRow, [](RetrieveRowArgs&) {});
    EXPECT_TRUE(events.isRetrieveRowHeard());
    QObject::disconnect(connection);
    EXPECT_FALSE(events.isRetrieveRowHeard());
}

TEST(Enumerations, HaveTheirPublishedValues) {
    EXPECT_EQ(ZKPSingleRow, 1);
    EXPECT_EQ(ZKPSubTotals, 9);
    EXPECT_EQ(ZKPTotals, 10);
    EXPECT_EQ(ZKPScrollup, 0);
    EXPECT_EQ(ZKPScrollDown, 1);
    EXPECT_EQ(ZKPScrollHorizontaly, 2);
    EXPECT_EQ(ZKPSectionFixed, 0);
    EXPECT_EQ(ZKPSectionGroup, 1);
    EXPECT_EQ(ZKPSectionDetail, 2);
    EXPECT_EQ(ZKPSectionSubTotals, 3);
    EXPECT_EQ(ZKPSectionTotals, 4);
    EXPECT_EQ(ZKP_SQLStatement, 0);
    EXPECT_EQ(ZKP_Table_QUERY, 1);
    EXPECT_EQ(ZKP_RecordSet, 2);
    EXPECT_EQ(ZKP_Command, 3);
}
