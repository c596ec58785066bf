#include "random_report.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <random>

namespace zkp::reportcases {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostFactors = 4;

/// Numbers from a seed, the same ones with every standard library.
class Dice {
public:
    explicit Dice(std::uint32_t seed)
        : random_(seed) {}
    int below(int end) { return static_cast<int>(random_() % static_cast<std::uint32_t>(end)); }
    bool chance(int percent) { return below(100) < percent; }

private:
    std::mt19937 random_;
};

/// Some blank, some that read alike when joined, some that differ in capitals alone.
RandomReport::Key randomKey(Dice& dice) {
    static const QStringList texts{u"Α"_s, u"Β"_s, u"Α Β"_s, u"Α"_s, u"Β"_s, u"α"_s};
    if (dice.chance(8))
        return std::nullopt;
    if (dice.chance(6))
        return u""_s;
    return texts[dice.below(static_cast<int>(texts.size()))];
}

/// Often whole or half, often cancelling; in a totals report in cents, so that the database's sums are
/// not in doubt.
std::optional<std::int64_t> randomAmount(Dice& dice, bool totalForm) {
    if (dice.chance(5))
        return std::nullopt;
    if (dice.chance(30))
        return (dice.below(7) - 3) * 10'000;
    if (dice.chance(15))
        return (dice.below(7) - 3) * 5'000;
    if (dice.chance(5))
        return (dice.below(2'000'000) - 1'000'000) * std::int64_t{10'000'100};
    return totalForm ? (dice.below(2001) - 1000) * std::int64_t{100}
                     : dice.below(200'001) - std::int64_t{100'000};
}

void addColumns(RandomReport& report, Dice& dice) {
    const auto add = [&](int percent, const QString& field, bool sum, bool balance = false) {
        if (dice.chance(percent))
            report.columns.push_back({field, false, sum, balance});
    };
    for (int k = 0; k < report.factors; ++k)
        report.columns.push_back({u"K%1"_s.arg(k), true, false, false});
    if (report.totalForm) {
        add(100, u"SUM_AMOUNT"_s, true, dice.chance(20));
        add(40, u"CNT"_s, dice.chance(50));
        add(60, u"POS_AMOUNT"_s, dice.chance(30));
        add(40, u"POS_CNT"_s, dice.chance(30));
    } else {
        add(100, u"NOTE"_s, false);
        add(85, u"AMOUNT"_s, true);
        add(30, u"ID"_s, true);
        add(25, u"AMOUNT"_s, true, true);
        add(20, u"AMOUNT"_s, false);
    }
}

QString literal(const RandomReport::Key& key) {
    return key ? u'\'' + *key + u'\'' : u"null"_s;
}

QString literal(const std::optional<std::int64_t>& amount) {
    if (!amount)
        return u"null"_s;
    const std::int64_t magnitude = *amount < 0 ? -*amount : *amount;
    return u"%1%2.%3"_s.arg(*amount < 0 ? u"-"_s : QString())
        .arg(magnitude / 10'000)
        .arg(magnitude % 10'000, 4, 10, QLatin1Char('0'));
}

void fillTable(const RandomReport& report, const ado::ConnectionPtr& connection) {
    QStringList values;
    for (const auto& record : report.stored) {
        QStringList row;
        for (int k = 0; k < kMostFactors; ++k)
            row << (k < report.factors ? literal(record.keys[static_cast<std::size_t>(k)]) : u"null"_s);
        row << literal(record.amount) << QString::number(values.size() + 1) << u"'ν'"_s;
        values << u'(' + row.join(u',') + u')';
    }
    connection->Execute(u"delete from T"_s);
    connection->Execute(u"insert into T values "_s + values.join(u','));
}

} // namespace

RandomReport randomReport(std::uint32_t seed, bool totalForm) {
    Dice dice(seed);
    RandomReport report;
    report.totalForm = totalForm;
    report.euro = dice.chance(70);
    report.sorted = dice.chance(60);
    report.runTime = totalForm && dice.chance(50);
    report.factors = totalForm ? 1 + dice.below(kMostFactors) : dice.below(kMostFactors + 1);
    for (int count = 1 + dice.below(dice.chance(50) ? 8 : 40); count > 0; --count) {
        auto& record = report.stored.emplace_back();
        std::generate_n(std::back_inserter(record.keys), report.factors, [&] { return randomKey(dice); });
        record.amount = randomAmount(dice, totalForm);
        record.count = static_cast<std::int64_t>(report.stored.size()); // the ID in a plain report
    }
    addColumns(report, dice);
    report.heard = dice.chance(30);
    return report;
}

std::vector<RandomReport::Record> RandomReport::shown() const {
    std::vector<Record> records = stored;
    if (totalForm) {
        std::map<std::vector<Key>, Record> groups;
        for (const Record& record : stored) {
            Record& group = groups.try_emplace(record.keys, Record{record.keys, 0, 0}).first->second;
            *group.amount += record.amount.value_or(0);
            ++group.count;
        }
        records.clear();
        for (const auto& [keys, group] : groups)
            records.push_back(group);
    } else if (sorted) {
        std::ranges::stable_sort(records, {}, &Record::keys);
    }
    return records;
}

QString RandomReport::description() const {
    QStringList words;
    for (const Column& column : columns)
        words << column.field + (column.sum ? u" sum"_s : QString()) +
                     (column.balance ? u" balance"_s : QString());
    return u"%1 form%2%3%4, cents %5, factors %6, columns %7\n"_s.arg(totalForm ? u"totals"_s : u"plain"_s)
        .arg(runTime ? u" at run time"_s : QString())
        .arg(heard ? u", heard"_s : QString())
        .arg(sorted ? u", sorted"_s : QString())
        .arg(euro ? u"on"_s : u"off"_s)
        .arg(factors)
        .arg(words.join(u", "_s));
}

void makeTables(const ado::ConnectionPtr& connection) {
    for (const QString& statement : {
             u"create table T (K0 text, K1 text, K2 text, K3 text, AMOUNT money, ID integer, NOTE text)"_s,
             u"create table DICT (dtfld text, Cptn text, wdth money, Algn integer, isgroup bit, isTot bit, "
             "visbl integer, IsPublic integer, [Sum] bit, [Avg] bit, [Min] bit, [Max] bit, crosstabdate bit, "
             "SOURCEFIELDNAME text, SourceTableName text, Expr text, KeyMaster text, foreignkey text)"_s,
             u"create table Reports (RecSource text, MasterTable text, RKeyname text, MasterFilter text)"_s,
             u"create table QRN_Main (GenKey integer, GenSubKey integer, GenValue text)"_s,
             u"insert into QRN_Main values (2, 6, '30'), (2, 7, '120')"_s,
             u"insert into Reports values ('T', 'T', null, null)"_s,
         })
        connection->Execute(statement);
    for (const QString& field : {u"AMOUNT"_s, u"K0"_s, u"K1"_s, u"K2"_s, u"K3"_s})
        connection->Execute(u"insert into DICT values ('%1', '%1', 1000, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, '%1', "
                            "'T', null, null, null)"_s.arg(field));
}

void setUp(ZkpGrid& grid, const ado::ConnectionPtr& connection, const RandomReport& report) {
    fillTable(report, connection);
    grid.setCols(static_cast<int>(report.columns.size()));
    for (int c = 0; c < grid.Cols(); ++c) {
        const auto& column = report.columns[static_cast<std::size_t>(c)];
        grid.setColDataField(c, column.field);
        grid.setColForTot(c, column.factor);
        grid.setColTotals(c, column.sum);
        grid.setColBalance(c, column.balance);
    }
    grid.setEuroVer(report.euro);
    grid.setTotalForm(report.totalForm);
    grid.setSqlOnRunTime(report.runTime);
    grid.setclmns(report.totalForm ? u"DICT"_s : QString());
    grid.setFilter(report.totalForm ? u"0=0"_s : QString());
    QStringList order;
    for (int k = 0; report.sorted && k < report.factors; ++k)
        order << u"K%1"_s.arg(k);
    order << u"ID"_s;
    if (report.totalForm)
        grid.Fill(connection, u"T"_s, ZKP_Table_QUERY);
    else
        grid.Fill(connection, u"select * from T order by "_s + order.join(u','), ZKP_SQLStatement);
}

} // namespace zkp::reportcases
