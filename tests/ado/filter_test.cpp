#include "ado/ado_fixture.h"

#include <QDate>

#include <random>

namespace zkp::ado::test {

class FilterTest : public AdoTest {
protected:
    FilterTest() {
        run("CREATE TABLE T (ID INTEGER, NAME NVARCHAR(50), N INTEGER, PREMIUM MONEY, RATE DOUBLE, START "
            "DATE, "
            "ACTIVE BIT, [My Field] TEXT)");
        run("INSERT INTO T VALUES (1, 'Νίκος', 5, 12.34, 0.1, '2026-11-20', 1, 'O''Neil'), "
            "(2, 'ΝΊΚΟΣ', -5, 12.35, 0.2, '2026-11-21', 0, ''), (3, 'Νικος', NULL, NULL, NULL, NULL, NULL, "
            "NULL), "
            "(4, 'άννα', 0, -0.5, 1e3, '2025-01-01', 1, 'a and b')");
        rs = open("SELECT * FROM T ORDER BY ID");
    }

    QStringList shown(const char* filter) {
        rs->setFilter(u(filter));
        return firstField(rs);
    }

    static QStringList ids(std::initializer_list<int> values) {
        QStringList list;
        for (const int value : values)
            list << QString::number(value);
        return list;
    }

    RecordsetPtr rs;
};

TEST_F(FilterTest, ComparesNumbers) {
    EXPECT_EQ(shown("N=5"), ids({1}));
    EXPECT_EQ(shown("N = -5"), ids({2}));
    EXPECT_EQ(shown("N<>5"), ids({2, 4})) << "null never matches";
    EXPECT_EQ(shown("N<=0"), ids({2, 4}));
    EXPECT_EQ(shown("PREMIUM>=12.35"), ids({2}));
    EXPECT_EQ(shown("PREMIUM = 12.34"), ids({1}));
    EXPECT_EQ(shown("PREMIUM<-.4"), ids({4}));
    EXPECT_EQ(shown("RATE=0.1"), ids({1}));
    EXPECT_EQ(shown("RATE=1e3"), ids({4}));
    EXPECT_EQ(shown("RATE>0.1 and RATE<1000.5"), ids({2, 4}));
    EXPECT_EQ(shown("ACTIVE=True"), ids({1, 4}));
    EXPECT_EQ(shown("ACTIVE<>-1"), ids({2}));
}

TEST_F(FilterTest, ComparesTextsWithoutCaseWithAccents) {
    EXPECT_EQ(shown("NAME='νίκος'"), ids({1, 2}));
    EXPECT_EQ(shown("NAME= 'νίκοσ'"), ids({1, 2})) << "final sigma equals sigma";
    EXPECT_EQ(shown("NAME='ΝΙΚΟΣ'"), ids({3}));
    EXPECT_EQ(shown("NAME<'Β'"), ids({4})) << "ά is a capital Ά before all";
    EXPECT_EQ(shown("[My Field]='o''neil'"), ids({1}));
    EXPECT_EQ(shown("[my field]=''"), ids({2})) << "the empty text is not null";
    EXPECT_EQ(shown("[My Field]='a and b'"), ids({4}));
}

TEST_F(FilterTest, ComparesDates) {
    EXPECT_EQ(shown("START= Convert(Datetime,'11/20/2026',102)"), ids({1}));
    EXPECT_EQ(shown("START>convert( datetime , '1/1/2025' , 102 )"), ids({1, 2}));
    EXPECT_EQ(shown("START<='2025-01-01'"), ids({4}));
}

TEST_F(FilterTest, JoinsByAndOrAndBrackets) {
    EXPECT_EQ(shown("ID=1 or ID=2 and N=5"), ids({1})) << "and binds more tightly";
    EXPECT_EQ(shown("(ID=1 OR ID=2) AND N=-5"), ids({2}));
    EXPECT_EQ(shown(" (NAME = 'ΝΊΚΟΣ' or NAME = 'άννα')"), ids({1, 2, 4}));
    EXPECT_EQ(shown("((((ID=3))))"), ids({3}));
    EXPECT_EQ(shown("ID=1 or ID=2 or ID=3 or (ID=4 and (N=0 and PREMIUM<0))"), ids({1, 2, 3, 4}));
}

TEST_F(FilterTest, GoesToTheFirstRecordLeftAndAnEmptyFilterShowsAll) {
    rs->MoveLast();
    EXPECT_EQ(shown("N<>5"), ids({2, 4}));
    EXPECT_EQ(rs->AbsolutePosition(), 1);
    EXPECT_EQ(rs->Filter(), u("N<>5"));
    rs->setFilter({});
    EXPECT_EQ(rs->RecordCount(), 4);
    EXPECT_EQ(rs->Collect(u("ID")).toInt(), 1);
    EXPECT_TRUE(shown("ID=77").isEmpty());
    EXPECT_TRUE(rs->Bof() && rs->Eof());
}

TEST_F(FilterTest, AFilterThatCannotBeReadIsAnErrorAndChangesNothing) {
    rs->setFilter(u("ID>1"));
    for (const char* bad : {"ID",
                            "ID=",
                            "ID=1 and",
                            "(ID=1",
                            "ID=1)",
                            "=1",
                            "ID==1",
                            "ID=1 ID=2",
                            "NAME='x",
                            "N='abc'",
                            "START=5",
                            "START=Convert(Datetime,'13/45/2026',102)",
                            "START=Convert(Datetime,'1/1/2026')",
                            "ID=1,5",
                            "NAME='O'Neil'",
                            "ID like 1",
                            "ID=NULL",
                            "and",
                            "1=1",
                            "ID=N",
                            "ID!=1",
                            "--"})
        EXPECT_EQ(errorNumber([&] { rs->setFilter(u(bad)); }), kErrBadArgument) << bad;
    EXPECT_EQ(errorNumber([&] { rs->setFilter(u("NOPE=1")); }), kErrItemNotFound);
    EXPECT_EQ(errorNumber([&] { rs->setFilter(QString(100'000, u'(') + u("ID=1")); }), kErrBadArgument);
    EXPECT_EQ(rs->Filter(), u("ID>1"));
    EXPECT_EQ(rs->RecordCount(), 3);
}

TEST_F(FilterTest, LargeNumbersCompareExactly) {
    const auto big = open("SELECT 9007199254740993 AS B UNION ALL SELECT 9007199254740992 UNION ALL "
                          "SELECT 9223372036854775807");
    for (const char* filter : {"B=9007199254740993", "B>9007199254740992 and B<9223372036854775807"}) {
        big->setFilter(u(filter));
        EXPECT_EQ(firstField(big), QStringList(u("9007199254740993"))) << filter;
    }
    big->setFilter(u("B=9223372036854775807"));
    EXPECT_EQ(big->RecordCount(), 1);
}

TEST_F(FilterTest, SortsByFieldsWithoutCase) {
    rs->setSort(u("NAME, ID desc"));
    EXPECT_EQ(firstField(rs), ids({4, 2, 1, 3})) << "Ά, Ί, Ι is the order of the capitals";
    rs->setSort(u("N"));
    EXPECT_EQ(firstField(rs), ids({3, 2, 4, 1})) << "null comes first";
    rs->setSort(u("[PREMIUM] DESC"));
    EXPECT_EQ(firstField(rs), ids({2, 1, 4, 3}));
    EXPECT_EQ(rs->AbsolutePosition(), 1);
    rs->setFilter(u("ACTIVE=1"));
    EXPECT_EQ(firstField(rs), ids({1, 4})) << "the sort holds under a filter";
    rs->setSort({});
    rs->setFilter({});
    EXPECT_EQ(firstField(rs), ids({1, 2, 3, 4}));
    for (const char* bad : {"N,", "N up", ",N", "N desc asc"})
        EXPECT_EQ(errorNumber([&] { rs->setSort(u(bad)); }), kErrBadArgument) << bad;
    EXPECT_EQ(errorNumber([&] { rs->setSort(u("NOPE")); }), kErrItemNotFound);
}

/// Filters of random depth, each also asked of the database.
class RandomFilterTest : public AdoTest {
protected:
    RandomFilterTest() {
        run("CREATE TABLE R (ID INTEGER, NAME NVARCHAR(20), CODE TEXT, N INTEGER, PREMIUM MONEY, RATE "
            "DOUBLE, START DATE)");
        cn->BeginTrans();
        for (int i = 0; i < 400; ++i)
            cn->Execute(QStringLiteral("INSERT INTO R VALUES (%1,%2,%3,%4,%5,%6,%7)")
                            .arg(QString::number(i), orNull(name()), orNull(code(i)), orNull(number()),
                                 orNull(amount()), orNull(number() + u(".25")),
                                 orNull(u'\'' + date() + u'\'')));
        cn->CommitTrans();
    }

    unsigned below(unsigned n) { return static_cast<unsigned>(random_() % n); }
    QString orNull(const QString& value) { return below(10) == 0 ? u("NULL") : value; }
    QString name() {
        static const char* const names[] = {"'Νίκος'", "'νίκος'", "'ΝΊΚΟΣ'",    "'Νικος'",
                                            "'Άννα'",  "'άννα'",  "''",         "'O''Neil'",
                                            "'zeta'",  "'ΖΉΤΑ'",  "'Ὀδυσσεύς'", "'ὀδυσσεύσ'"};
        return u(names[below(12)]);
    }
    QString code(int i) { return QStringLiteral("'c%1'").arg(i % 97); }
    QString number() { return QString::number(static_cast<int>(below(21)) - 10); }
    QString amount() { return number() + QStringLiteral(".%1").arg(below(100), 2, 10, QLatin1Char('0')); }
    QString date() {
        return QDate(2026, 1 + static_cast<int>(below(3)), 1 + static_cast<int>(below(20)))
            .toString(Qt::ISODate);
    }

    /// The same condition as a filter and as SQL.
    struct Both {
        QString filter;
        QString sql;
    };

    Both comparison() {
        static const char* const signs[] = {"=", "<>", "<", ">", "<=", ">="};
        const QString sign = u(signs[below(6)]);
        switch (below(6)) {
        case 0: {
            const QString value = name();
            return {u("NAME") + sign + value, u("NAME ") + sign + value + u(" COLLATE ZKP_TEXT")};
        }
        case 1: {
            const QString value = code(static_cast<int>(below(97))).toUpper();
            return {u("[CODE] ") + sign + u' ' + value, u("CODE ") + sign + value + u(" COLLATE ZKP_TEXT")};
        }
        case 2: {
            const QString value = number();
            return {u("n") + sign + value, u("N") + sign + value};
        }
        case 3: {
            const QString value = amount();
            return {u("PREMIUM") + sign + value, u("PREMIUM") + sign + value};
        }
        case 4: {
            const QString value = number() + u(".25");
            return {u("RATE") + sign + value, u("RATE") + sign + value};
        }
        default: {
            const QString value = date();
            const QString american = QDate::fromString(value, Qt::ISODate).toString(u("MM/dd/yyyy"));
            return {u("START") + sign + u(" Convert(Datetime,'") + american + u("',102)"),
                    u("START") + sign + u'\'' + value + u'\''};
        }
        }
    }

    Both condition(int depth) {
        if (depth == 0 || below(4) == 0)
            return comparison();
        const QString word = below(2) == 0 ? u(" and ") : u(" or ");
        const Both a = condition(depth - 1);
        const Both b = condition(depth - 1);
        const bool bracketed = below(2) == 0;
        const QString open = bracketed ? u("(") : QString();
        const QString close = bracketed ? u(")") : QString();
        return {open + a.filter + word + b.filter + close, open + a.sql + word + b.sql + close};
    }

private:
    std::mt19937 random_{20261120};
};

TEST_F(RandomFilterTest, AnswerAsTheDatabaseDoes) {
    const auto all = open("SELECT ID FROM R ORDER BY ID")->RecordCount();
    const auto rs = open("SELECT * FROM R ORDER BY ID");
    int some = 0;
    for (int i = 0; i < 400; ++i) {
        const Both both = condition(static_cast<int>(below(5)));
        rs->setFilter(both.filter);
        const QStringList expected =
            firstField(open(u("SELECT ID FROM R WHERE ") + both.sql + u(" ORDER BY ID")));
        ASSERT_EQ(firstField(rs), expected) << both.filter.toStdString();
        some += !expected.isEmpty() && expected.size() < all;
    }
    EXPECT_GT(some, 200) << "the filters tell records apart";
}

/// The group report's percentages ask for the same keys again and again.
class KeyIndexTest : public AdoTest {
protected:
    KeyIndexTest() {
        run("CREATE TABLE G AS WITH RECURSIVE i(n) AS (SELECT 0 UNION ALL SELECT n+1 FROM i WHERE n<19999) "
            "SELECT 'Κατάστημα ' || (n % 20) AS BRANCH, n % 7 AS KIND, 'p' || (n % 400) AS PRODUCT, n AS S "
            "FROM i");
        rs = open("SELECT * FROM G");
    }
    RecordsetPtr rs;
};

TEST_F(KeyIndexTest, RepeatedKeysAreFoundWithoutWalking) {
    const auto clone = rs->Clone();
    for (int i = 0; i < 2000; ++i) {
        clone->setFilter(QStringLiteral("BRANCH= 'ΚΑΤΆΣΤΗΜΑ %1' and KIND=%2 and PRODUCT= 'P%3'")
                             .arg(i % 20)
                             .arg(i % 7)
                             .arg(i % 400));
        // n is known modulo 400 (which settles it modulo 20) and modulo 7: one in 2800.
        ASSERT_EQ(clone->RecordCount(), i % 2800 < 20000 % 2800 ? 8 : 7) << i;
    }
    EXPECT_LE(rs->rowsWalked(), 6u * 20'000u) << "some walks to make the index, none for a filter";
    const auto walked = rs->rowsWalked();
    rs->setFilter(u("BRANCH= 'Κατάστημα 3' and KIND=2 and PRODUCT= 'p23'"));
    EXPECT_EQ(rs->rowsWalked(), walked) << "clones share the index";
    rs->setFilter(u("BRANCH= 'Κατάστημα 3'"));
    EXPECT_EQ(rs->RecordCount(), 1000);
    EXPECT_EQ(rs->rowsWalked(), walked) << "a shorter list of the same keys has its index already";
    rs->setFilter(u("BRANCH= 'nowhere' and KIND=2"));
    EXPECT_EQ(rs->RecordCount(), 0);
}

TEST_F(KeyIndexTest, AFilterThatIsNoListOfKeysWalksOnce) {
    rs->setFilter(u("KIND=2 or KIND=3"));
    EXPECT_EQ(rs->rowsWalked(), 20'000u);
}

TEST_F(KeyIndexTest, AnEditIsSeenByTheIndex) {
    run("CREATE TABLE E (K TEXT, V INTEGER)");
    run("INSERT INTO E VALUES ('a', 1), ('b', 2)");
    const auto edited = open("SELECT * FROM E");
    edited->setFilter(u("K='a'"));
    edited->setCollect(u("K"), u("c"));
    edited->Update();
    edited->setFilter(u("K='a'"));
    EXPECT_EQ(edited->RecordCount(), 0);
    edited->setFilter(u("K='c'"));
    EXPECT_EQ(edited->RecordCount(), 1);
}

} // namespace zkp::ado::test
