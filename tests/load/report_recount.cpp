#include "report_recount.h"

#include <algorithm>
#include <numeric>

namespace zkp::reportcases {

using namespace Qt::StringLiterals;

namespace {

const QString kBlankMark = u"----"_s;

/// Divides and rounds half away from zero.
std::int64_t rounded(std::int64_t value, std::int64_t unit) {
    const std::int64_t magnitude = (std::abs(value) * 2 + unit) / (unit * 2);
    return value < 0 ? -magnitude : magnitude;
}

/// Digits in threes, with a point between them when `grouped`.
QString whole(std::int64_t magnitude, bool grouped) {
    QString text = QString::number(magnitude);
    for (qsizetype at = text.size() - 3; grouped && at > 0; at -= 3)
        text.insert(at, u'.');
    return text;
}

QString greekText(std::int64_t cents, bool withCents, bool grouped = true) {
    const std::int64_t units = withCents ? cents : rounded(cents, 100);
    const std::int64_t magnitude = std::abs(units);
    const QString text = withCents ? whole(magnitude / 100, grouped) + u',' +
                                         u"%1"_s.arg(magnitude % 100, 2, 10, QLatin1Char('0'))
                                   : whole(magnitude, grouped);
    return units < 0 ? u'-' + text : text;
}

/// Cents of a text such as "-1.234,50", "7" or "0.00".
std::int64_t centsOf(QString text) {
    text.remove(u'.');
    const QString fraction = text.section(u',', 1);
    return (text.section(u',', 0, 0) + fraction.leftJustified(2, u'0')).toLongLong();
}

bool isBlankRow(const TextRow& row) {
    return std::all_of(row.begin() + 1, row.end(),
                       [](const QString& cell) { return cell == u"" || cell == u"·" || cell == u"··"; });
}

/// The row above a removed one is passed over; the last row stays.
void removeBlankRows(TextRows& rows) {
    for (auto i = static_cast<std::ptrdiff_t>(rows.size()) - 2; i >= 0; --i)
        if (isBlankRow(rows[static_cast<std::size_t>(i)]))
            rows.erase(rows.begin() + i--);
}

QString folded(QString text) {
    return text.replace(u'α', u'Α');
}

bool isPercent(const RandomReport::Column& column) {
    return column.field.startsWith(u"POS_");
}

std::vector<std::size_t> range(std::size_t first, std::size_t end) {
    std::vector<std::size_t> all(end - first);
    std::iota(all.begin(), all.end(), first);
    return all;
}

/// What the named records show in a cell, added up.
std::int64_t shownSum(const TextRows& records, const std::vector<std::size_t>& which, qsizetype cell) {
    std::int64_t sum = 0;
    for (const std::size_t i : which)
        sum += centsOf(records[i][cell]);
    return sum;
}

} // namespace

TextRows ReportRecount::records() const {
    TextRows rows;
    for (const auto& record : groups_) {
        rows.push_back({u"record"_s});
        for (const Column& column : report_.columns)
            rows.back() << cellOf(record, column);
    }
    return rows;
}

QString ReportRecount::cellOf(const RandomReport::Record& record, const Column& column) const {
    QStringList keys;
    for (const auto& key : record.keys)
        keys << key.value_or(QString());
    if (column.factor) {
        const QString key = keys[column.field.mid(1).toInt()];
        return key.isEmpty() ? kBlankMark : key;
    }
    if (isPercent(column))
        return share(keys, report_.factors - 1, column.field.mid(4));
    if (column.field == u"NOTE")
        return u"ν"_s;
    if (column.field == u"ID" || column.field == u"CNT")
        return column.sum ? figure(record.count * 100, column) : QString::number(record.count);
    const std::int64_t amount = record.amount.value_or(0);
    const bool withCents = report_.euro || (column.sum && column.balance);
    return greekText(withCents ? rounded(amount, 100) : rounded(amount, 10'000) * 100, withCents);
}

TextRows ReportRecount::rebuilt(const TextRows& records) const {
    const bool sums = std::ranges::any_of(report_.columns, &Column::sum);
    if (!sums || records.empty())
        return records;
    OpenGroups open{keysOf(records[0]), std::vector<std::size_t>(static_cast<std::size_t>(levels())), {}};
    TextRows rows;
    for (std::size_t i = 0; i <= records.size(); ++i) {
        const QStringList now = i < records.size() ? keysOf(records[i]) : QStringList(levels(), QString());
        if (now.join(u' ') == open.keys.join(u' ')) {
            open.within.push_back(i);
        } else {
            int level = 0;
            while (now[level] == open.keys[level])
                ++level;
            close(level, open, records, i, rows);
            open.keys = now;
            std::fill(open.starts.begin() + level, open.starts.end(), i);
        }
        if (i < records.size())
            rows.push_back(records[i]);
    }
    rows.push_back(totals(records));
    removeBlankRows(rows);
    return rows;
}

QStringList ReportRecount::keysOf(const TextRow& record) const {
    QStringList keys = record.mid(1, levels());
    for (QString& key : keys)
        if (key == kBlankMark)
            key.clear();
    return keys;
}

void ReportRecount::close(int outermost, const OpenGroups& open, const TextRows& records, std::size_t end,
                          TextRows& rows) const {
    if (report_.totalForm)
        rows.push_back(innermostRow(open, records));
    for (int level = levels() - 1; level >= outermost; --level)
        rows.push_back(subtotal(level, open, records, end));
}

TextRow ReportRecount::subtotal(int level, const OpenGroups& open, const TextRows& records,
                                std::size_t end) const {
    const auto group = range(open.starts[static_cast<std::size_t>(level)], end);
    const bool named = !open.keys[0].isEmpty();
    TextRow row{u"subtotal"_s};
    for (const Column& column : report_.columns) {
        const auto k = static_cast<int>(row.size()) - 1;
        if (column.factor)
            row << (k <= level ? open.keys[k] : QString());
        else if (isPercent(column))
            row << (named ? share(open.keys, level, column.field.mid(4)) : QString());
        else if (column.sum && (named || column.balance))
            row << figure(shownSum(records, group, row.size()), column);
        else
            row << QString();
    }
    return row;
}

/// Two blanks for every key; of the sums the balances alone, of the records that broke no group.
TextRow ReportRecount::innermostRow(const OpenGroups& open, const TextRows& records) const {
    TextRow row{u"subtotal"_s};
    for (const Column& column : report_.columns)
        row << (column.factor                  ? u"··"_s
                : column.sum && column.balance ? figure(shownSum(records, open.within, row.size()), column)
                                               : QString());
    return row;
}

TextRow ReportRecount::totals(const TextRows& records) const {
    TextRow row{u"totals"_s};
    for (const Column& column : report_.columns)
        row << (column.sum ? figure(shownSum(records, range(0, records.size()), row.size()), column)
                           : u"·"_s);
    return row;
}

QString ReportRecount::figure(std::int64_t cents, const Column& column) const {
    return greekText(cents, report_.euro || column.balance);
}

/// The share of the group of keys 0 to `level` in the group one level up.
QString ReportRecount::share(const QStringList& keys, int level, const QString& field) const {
    const std::int64_t parent = sumOf(keys, level, field);
    const std::int64_t own = sumOf(keys, level + 1, field);
    if (parent == 0 || own == 0)
        return u"0.00"_s;
    return greekText(rounded(parent < 0 ? -own * 10'000 : own * 10'000, std::abs(parent)), true, false);
}

/// The sum of the groups whose first `count` keys are these; a null is found by no key.
std::int64_t ReportRecount::sumOf(const QStringList& keys, int count, const QString& field) const {
    std::int64_t sum = 0;
    for (const auto& group : groups_) {
        bool same = true;
        for (int k = 0; k < count && same; ++k) {
            const auto& key = group.keys[static_cast<std::size_t>(k)];
            same = key && folded(*key) == folded(keys[k]);
        }
        if (same)
            sum += field == u"CNT" ? group.count : group.amount.value_or(0);
    }
    return sum;
}

} // namespace zkp::reportcases
