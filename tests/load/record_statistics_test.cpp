#include "load/record_statistics.h"

#include "support_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// An entry as one line: field | caption | width | align | its flags.
QString line(const StatField& field) {
    QStringList flags;
    if (field.IsGroup)
        flags << u"group"_s;
    if (field.IsTot)
        flags << u"total"_s;
    if (field.CrossTabDate)
        flags << u"date"_s;
    return u"%1|%2|%3|%4|%5"_s.arg(field.DataField, field.Caption, field.Width.toPlainText())
        .arg(field.Align)
        .arg(flags.join(u' '));
}

QStringList lines(const StatFieldList& fields) {
    QStringList result;
    for (int i = 1; i <= fields.Count(); ++i) {
        result << line(fields.Item(i));
        EXPECT_EQ(fields.Item(i).Extra1, 0);
        EXPECT_EQ(fields.Item(i).Extra2, 0);
    }
    return result;
}

const QStringList kCounts{u"Cnt|Αριθμός|735|7|total"_s, u"POS_CNT|Αριθμός (Ποσ %)|735|7|"_s};

class RecordStatistics : public test::DatabaseTest {
protected:
    RecordStatistics() {
        run(u"create table dict (dtfld TEXT, Cptn TEXT, wdth MONEY, isgroup BIT, isTot BIT, Algn SMALLINT, "
            u"crosstabdate BIT, [Sum] BIT, [Avg] BIT, [Min] BIT, [Max] BIT)"_s);
    }

    /// A row from its values in the order of the table.
    void row(const QString& values) { run(u"insert into dict values (%1)"_s.arg(values)); }
    ado::RecordsetPtr rows() { return open(u"select * from dict order by rowid"_s); }
    QStringList statistics() {
        StatFieldList fields;
        buildStatisticsFields(*rows(), fields);
        return lines(fields);
    }
    QStringList plain() {
        StatFieldList fields;
        appendPlainFields(*rows(), fields);
        return lines(fields);
    }
};

} // namespace

TEST(StatFieldList, IsNumberedFromOne) {
    StatFieldList fields;
    fields.Add().DataField = u"a"_s;
    fields.Add().DataField = u"b"_s;
    EXPECT_EQ(fields.Count(), 2);
    EXPECT_EQ(fields.Item(1).DataField, u"a"_s);
    EXPECT_EQ(fields.Item(2).DataField, u"b"_s);
    EXPECT_EQ(test::errorNumber([&] { fields.Item(0); }), 9u);
    EXPECT_EQ(test::errorNumber([&] { fields.Item(3); }), 9u);
    fields.Clear();
    EXPECT_EQ(fields.Count(), 0);
}

TEST(StatFieldList, TheProcessHasOne) {
    EXPECT_EQ(&statFields(), &statFields());
}

TEST_F(RecordStatistics, ThePlainBuilderCopiesRowByRow) {
    row(u"'BRANCH ', ' Κλάδος', 1200.5, 1, 0, 1, 1, 1, 1, 1, 1"_s);
    row(u"'Premium', 'Ασφάλιστρα', 900, 0, 1, 7, 0, 0, 0, 0, 0"_s);
    // The flags of the aggregates and of the cross table count for nothing here; no text is trimmed.
    EXPECT_EQ(plain(),
              (QStringList{u"BRANCH | Κλάδος|1200.5|1|group"_s, u"Premium|Ασφάλιστρα|900|7|total"_s}));
}

TEST_F(RecordStatistics, ThePlainBuilderReadsNullFlagsAsTheirDefaults) {
    row(u"'A', 'Α', 10, null, null, null, null, null, null, null, null"_s);
    EXPECT_EQ(plain(), QStringList{u"A|Α|10|0|"_s});
}

TEST_F(RecordStatistics, ThePlainBuilderAppends) {
    row(u"'A', 'Α', 10, 0, 0, 0, 0, 0, 0, 0, 0"_s);
    StatFieldList fields;
    appendPlainFields(*rows(), fields);
    appendPlainFields(*rows(), fields);
    EXPECT_EQ(lines(fields), (QStringList{u"A|Α|10|0|"_s, u"A|Α|10|0|"_s}));
}

TEST_F(RecordStatistics, AnEmptyDictionaryLeavesThePlainListAsItWas) {
    StatFieldList fields;
    fields.Add().DataField = u"before"_s;
    appendPlainFields(*rows(), fields);
    EXPECT_EQ(lines(fields), QStringList{u"before||0|0|"_s});
}

TEST_F(RecordStatistics, BothBuildersRewindAndStopAtTheEnd) {
    row(u"'A', 'Α', 10, 1, 0, 0, 0, 0, 0, 0, 0"_s);
    row(u"'B', 'Β', 10, 1, 0, 0, 0, 0, 0, 0, 0"_s);
    const auto records = rows();
    records->MoveLast();
    StatFieldList fields;
    appendPlainFields(*records, fields);
    EXPECT_EQ(fields.Count(), 2);
    EXPECT_TRUE(records->Eof());
    buildStatisticsFields(*records, fields); // from the end
    EXPECT_EQ(fields.Count(), 4);
    EXPECT_TRUE(records->Eof());
}

TEST_F(RecordStatistics, TheStatisticsOfAnEmptyDictionaryAreTheTwoCounts) {
    StatFieldList fields;
    fields.Add().DataField = u"before"_s;
    fields.Item(1).CrossTabDate = true;
    buildStatisticsFields(*rows(), fields);
    EXPECT_EQ(lines(fields), kCounts);
}

TEST_F(RecordStatistics, ARowThatAllowsEverythingGivesSixEntriesInTheirOrder) {
    row(u"' Premium ', 'Ασφάλιστρα', 1200, 1, 1, 4, 1, 1, 1, 1, 1"_s);
    EXPECT_EQ(statistics(), kCounts + QStringList({
                                          u" Premium |Ασφάλιστρα|1200|4|group"_s,
                                          u"SUM_Premium|Ασφάλιστρα (Αθροισμα)|1050|7|total date"_s,
                                          u"Avg_Premium|Ασφάλιστρα (Μέσος Ορος)|1050|7|total date"_s,
                                          u"Min_Premium|Ασφάλιστρα (Minimum)|1050|7|total date"_s,
                                          u"Max_Premium|Ασφάλιστρα (Maximum)|1050|7|total date"_s,
                                          u"POS_Premium|Ασφάλιστρα (Ποσ %)|1050|7|total date"_s,
                                      }));
}

TEST_F(RecordStatistics, AGroupThatMayBeSummedGivesGroupSumAndShare) {
    row(u"'A', 'Α', 500, 1, 0, 1, 0, 1, 0, 0, 0"_s);
    EXPECT_EQ(statistics(), kCounts + QStringList({u"A|Α|500|1|group"_s, u"SUM_A|Α (Αθροισμα)|1050|7|total"_s,
                                                   u"POS_A|Α (Ποσ %)|1050|7|total"_s}));
}

TEST_F(RecordStatistics, TheShareFollowsTheSumAlone) {
    row(u"'A', 'Α', 500, 0, 0, 1, 0, 0, 1, 0, 0"_s);
    row(u"'B', 'Β', 500, 0, 0, 1, 0, 0, 0, 1, 0"_s);
    row(u"'C', 'Γ', 500, 0, 0, 1, 0, 0, 0, 0, 1"_s);
    EXPECT_EQ(statistics(), kCounts + QStringList({u"Avg_A|Α (Μέσος Ορος)|1050|7|total"_s,
                                                   u"Min_B|Β (Minimum)|1050|7|total"_s,
                                                   u"Max_C|Γ (Maximum)|1050|7|total"_s}));
}

TEST_F(RecordStatistics, ARowThatAllowsNothingGivesNothing) {
    row(u"'A', 'Α', 500, 0, 1, 1, 1, 0, 0, 0, 0"_s);
    row(u"'B', 'Β', null, null, null, null, null, null, null, null, null"_s); // nothing of it is read
    EXPECT_EQ(statistics(), kCounts);
}

TEST_F(RecordStatistics, MinusOneIsTrueAndANullAlignmentIsZero) {
    row(u"'A', 'Α', 500, -1, 0, null, -1, 0, 0, 0, -1"_s);
    EXPECT_EQ(statistics(),
              kCounts + QStringList({u"A|Α|500|0|group"_s, u"Max_A|Α (Maximum)|1050|7|total date"_s}));
}

TEST_F(RecordStatistics, AFilteredDictionaryGivesItsFilteredRows) {
    row(u"'A', 'Α', 500, 1, 0, 1, 0, 0, 0, 0, 0"_s);
    row(u"'B', 'Β', 500, 1, 0, 1, 0, 0, 0, 0, 0"_s);
    const auto records = rows();
    records->setFilter(u"dtfld = 'B'"_s);
    StatFieldList fields;
    appendPlainFields(*records, fields);
    EXPECT_EQ(lines(fields), QStringList{u"B|Β|500|1|group"_s});
}

TEST_F(RecordStatistics, OtherNullsAreErrors) {
    for (const QString& values :
         {u"null, 'Α', 1, 1, 0, 0, 0, 1, 0, 0, 0"_s, u"'A', null, 1, 1, 0, 0, 0, 1, 0, 0, 0"_s,
          u"'A', 'Α', null, 1, 0, 0, 0, 1, 0, 0, 0"_s}) {
        run(u"delete from dict"_s);
        row(values);
        EXPECT_EQ(test::errorNumber([&] { plain(); }), 94u);
        EXPECT_EQ(test::errorNumber([&] { statistics(); }), 94u);
    }
    run(u"delete from dict"_s);
    row(u"'A', 'Α', 1, 1, 0, 0, null, 1, 0, 0, 0"_s);
    EXPECT_EQ(plain().size(), 1); // the plain builder does not ask for the cross table's date
    EXPECT_EQ(test::errorNumber([&] { statistics(); }), 94u);
}

TEST_F(RecordStatistics, AMissingColumnIsTheDataLayersError) {
    run(u"create table small (dtfld TEXT, Cptn TEXT, wdth MONEY, isgroup BIT, isTot BIT, Algn SMALLINT)"_s);
    StatFieldList fields;
    buildStatisticsFields(*open(u"select * from small"_s), fields); // without rows nothing is missed
    EXPECT_EQ(lines(fields), kCounts);
    run(u"insert into small values ('A', 'Α', 500, 1, 0, 1)"_s);
    EXPECT_EQ(test::errorNumber([&] { buildStatisticsFields(*open(u"select * from small"_s), fields); }),
              3265u);
    EXPECT_EQ(lines(fields), kCounts + QStringList{u"A|Α|500|1|group"_s}); // what stood before it stays
    fields.Clear();
    appendPlainFields(*open(u"select * from small"_s), fields); // it asks for no more than these
    EXPECT_EQ(fields.Count(), 1);
}

TEST_F(RecordStatistics, AClosedDictionaryIsAnError) {
    StatFieldList fields;
    ado::Recordset closed;
    EXPECT_EQ(test::errorNumber([&] { appendPlainFields(closed, fields); }), 3704u);
}

TEST(PadLeft, FillsUpToTheLengthBeforeTheTrimmedText) {
    EXPECT_EQ(PadLeft(u"12"_s, 5, u" "_s), u"   12"_s);
    EXPECT_EQ(PadLeft(u"  12 "_s, 4, u"0"_s), u"0012"_s);
    EXPECT_EQ(PadLeft(u"ΑΒ"_s, 2, u"0"_s), u"ΑΒ"_s);
    EXPECT_EQ(PadLeft(u"   "_s, 3, u"*"_s), u"***"_s);
    EXPECT_EQ(PadLeft(u""_s, 0, u" "_s), u""_s);
    EXPECT_EQ(PadLeft(u"1"_s, 3, u"xy"_s), u"xx1"_s); // the repeat operation takes the first character
}

TEST(PadLeft, ALongerTextIsAnError) {
    EXPECT_EQ(test::errorNumber([] { PadLeft(u"123"_s, 2, u" "_s); }), 5u);
    EXPECT_EQ(test::errorNumber([] { PadLeft(u"1"_s, 3, u""_s); }), 5u);
}
