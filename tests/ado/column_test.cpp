#include "store/column_builder.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace zkp::store::test {

namespace {

std::shared_ptr<const Column> column(const std::vector<QVariant>& values) {
    ColumnBuilder builder;
    for (const QVariant& value : values)
        builder.append(value);
    return builder.finish();
}

void expectValues(const Column& column, const std::vector<QVariant>& values) {
    ASSERT_EQ(column.size(), values.size());
    for (std::size_t row = 0; row < values.size(); ++row) {
        ASSERT_EQ(column.value(row), values[row]) << row;
        ASSERT_EQ(column.isNull(row), !values[row].isValid()) << row;
    }
}

QVariant whole(qlonglong value) {
    return QVariant::fromValue(value);
}
QVariant amount(std::int64_t scaled) {
    return QVariant::fromValue(Currency{scaled});
}

double bytesPerCell(const Column& c) {
    return static_cast<double>(c.memoryUsed()) / static_cast<double>(c.size());
}

} // namespace

TEST(Column, KeepsValuesOfEachKind) {
    const QDateTime noon(QDate(2026, 11, 20), QTime(12, 0, 1, 5));
    expectValues(*column({whole(-128), whole(127), QVariant(), whole(0)}),
                 {whole(-128), whole(127), QVariant(), whole(0)});
    expectValues(*column({whole(INT64_MIN), whole(INT64_MAX)}), {whole(INT64_MIN), whole(INT64_MAX)});
    expectValues(*column({amount(1), amount(-10'000), QVariant()}), {amount(1), amount(-10'000), QVariant()});
    expectValues(*column({noon, QDateTime(QDate(1899, 12, 31), QTime(0, 0))}),
                 {noon, QDateTime(QDate(1899, 12, 31), QTime(0, 0))});
    expectValues(*column({true, false, QVariant()}), {true, false, QVariant()});
    expectValues(*column({0.1, -2.0, QVariant(), 1e300}), {0.1, -2.0, QVariant(), 1e300});
    expectValues(*column({QVariant(), QVariant()}), {QVariant(), QVariant()});
    expectValues(*column({}), {});
}

TEST(Column, NullEmptyTextAndEmptyBytesStayApart) {
    const auto c = column({QVariant(), QString::fromLatin1(""), QByteArray("")});
    EXPECT_EQ(c->kind(0), ValueKind::Null);
    EXPECT_EQ(c->kind(1), ValueKind::Text);
    EXPECT_EQ(c->kind(2), ValueKind::Binary);
}

TEST(Column, MixesKinds) {
    const std::vector<QVariant> values{
        QVariant(),  QStringLiteral("α"), whole(5),  QByteArray("\0x", 2), 2.5,
        amount(123), QStringLiteral("α"), whole(-1), QVariant(),           true};
    expectValues(*column(values), values);
    const std::vector<QVariant> numbers{whole(1), amount(1), QVariant(), QStringLiteral("late")};
    expectValues(*column(numbers), numbers);
    const std::vector<QVariant> binary{QByteArray("ab"), QByteArray(), QVariant(), whole(3), QByteArray("c")};
    expectValues(*column(binary), binary);
}

TEST(Column, WholeNumbersAmongFractionsBecomeDoublesWhereThatIsExact) {
    const auto c = column({whole(3), 2.5, whole(7)});
    EXPECT_EQ(c->kind(0), ValueKind::Double);
    EXPECT_EQ(c->real(0), 3.0);
    EXPECT_EQ(c->real(2), 7.0);
    const auto large = column({whole(INT64_MAX), 2.5});
    EXPECT_EQ(large->kind(0), ValueKind::Integer);
    EXPECT_EQ(large->integer(0), INT64_MAX);
}

TEST(Column, ANegativeZeroKeepsItsSign) {
    const auto c = column({-0.0, 1.0});
    EXPECT_TRUE(std::signbit(c->real(0)));
}

TEST(Column, RandomValuesOverManyChunksComeBack) {
    std::mt19937 random(7);
    for (const unsigned distinct : {3u, 300u, 70'000u, 1'000'000u}) {
        ColumnBuilder builder;
        std::vector<std::string> expected;
        for (int i = 0; i < 100'000; ++i) {
            expected.push_back("Όνομα " + std::to_string(random() % distinct));
            if (i % 1000 == 17)
                builder.appendNull();
            else
                builder.appendText(expected.back());
        }
        const auto c = builder.finish();
        for (std::size_t i = 0; i < expected.size(); ++i) {
            if (i % 1000 == 17)
                ASSERT_TRUE(c->isNull(i));
            else
                ASSERT_EQ(c->bytes(i), expected[i]);
        }
    }
}

TEST(Column, RepeatedTextsHaveOneNumberEach) {
    const auto c = column({QStringLiteral("a"), QStringLiteral("b"), QVariant(), QStringLiteral("a"),
                           QStringLiteral("b"), QStringLiteral("a")});
    EXPECT_EQ(c->textCode(0), c->textCode(3));
    EXPECT_NE(c->textCode(0), c->textCode(1));
    EXPECT_EQ(c->textCode(2), Column::kNoTextCode);
    EXPECT_EQ(c->textCodes(), 2u);
}

TEST(Column, ALongTextEndsTheDictionaryAndNothingIsLost) {
    ColumnBuilder builder;
    const std::string large(3'000'000, 'x');
    for (int i = 0; i < 20'000; ++i)
        builder.appendText(i == 17'000 ? std::string_view(large) : std::string_view("short"));
    const auto c = builder.finish();
    EXPECT_EQ(c->bytes(16'999), "short");
    EXPECT_EQ(c->bytes(17'000), large);
    EXPECT_EQ(c->bytes(19'999), "short");
}

TEST(Column, BytesThatAreNoUtf8AreKeptAndReplacedOnlyInTheText) {
    ColumnBuilder builder;
    builder.appendText("a\xff"
                       "b");
    const auto c = builder.finish();
    EXPECT_EQ(c->bytes(0), "a\xff"
                           "b");
    EXPECT_EQ(c->value(0).toString(), QStringLiteral("a\uFFFDb"));
}

TEST(Column, ValuesTakeTheRoomThatTheyNeed) {
    ColumnBuilder flags, ages, amounts, days, branches;
    for (int i = 0; i < 100'000; ++i) {
        flags.appendBoolean(i % 3 == 0);
        ages.appendInteger(i % 100);
        amounts.appendAmount({(i % 90'000) * 100ll * 1234});
        days.appendDate((20'000ll + i % 3000) * 86'400'000);
        branches.appendText("Κατάστημα " + std::to_string(i % 50));
    }
    EXPECT_LT(bytesPerCell(*flags.finish()), 1.1);
    EXPECT_LT(bytesPerCell(*ages.finish()), 1.1);
    EXPECT_LT(bytesPerCell(*amounts.finish()), 4.1);
    EXPECT_LT(bytesPerCell(*days.finish()), 2.1);
    EXPECT_LT(bytesPerCell(*branches.finish()), 1.1);
}

TEST(Column, AChangedValueLeavesTheFormerColumnAsItWas) {
    std::vector<QVariant> values;
    for (int i = 0; i < 40'000; ++i)
        values.push_back(QStringLiteral("t%1").arg(i % 10));
    const auto before = column(values);
    const auto changed = withValue(before, 20'000, QStringLiteral("new"));
    const auto longer = withValue(changed, 40'000, QVariant());
    EXPECT_EQ(before->value(20'000), QStringLiteral("t0"));
    EXPECT_EQ(changed->value(20'000), QStringLiteral("new"));
    EXPECT_EQ(changed->value(20'001), QStringLiteral("t1"));
    EXPECT_EQ(changed->value(39'999), QStringLiteral("t9"));
    EXPECT_EQ(longer->size(), 40'001u);
    EXPECT_TRUE(longer->isNull(40'000));
    const auto first = withValue(column({}), 0, whole(5));
    EXPECT_EQ(first->value(0), whole(5));
}

} // namespace zkp::store::test
