#include "load/record_statistics.h"

#include "base/database_value.h"
#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "base/texts/fields.h"
#include "base/value.h"

namespace zkp {

namespace {

constexpr Currency kCountWidth = Currency::fromWhole(735);
constexpr Currency kAggregateWidth = Currency::fromWhole(1050);
constexpr std::int16_t kAlignRight = 7;

/// An aggregate that a dictionary row may allow. The prefixes are those of the statements, mixed case
/// and all.
struct Aggregate {
    QString flag;
    QString prefix;
    QString suffix;
};

/// A share of the total has no flag of its own: what may be summed may be shown as a share.
std::vector<Aggregate> aggregates() {
    return {{QStringLiteral("Sum"), QStringLiteral("SUM_"), texts::sumSuffix()},
            {QStringLiteral("Avg"), QStringLiteral("Avg_"), texts::averageSuffix()},
            {QStringLiteral("Min"), QStringLiteral("Min_"), texts::minimumSuffix()},
            {QStringLiteral("Max"), QStringLiteral("Max_"), texts::maximumSuffix()},
            {QStringLiteral("Sum"), QStringLiteral("POS_"), texts::shareSuffix()}};
}

/// The values of a dictionary's current row.
class DictionaryRow {
public:
    explicit DictionaryRow(ado::Recordset& dictionary)
        : dictionary_(dictionary) {}

    QString text(const QString& column) const { return requiredText(dictionary_.Collect(column)); }
    Currency width() const { return requiredCurrency(dictionary_.Collect(QStringLiteral("wdth"))); }
    std::int16_t align() const { return toInt16(NullTo(dictionary_.Collect(QStringLiteral("Algn")), 0)); }
    bool crossTabDate() const { return requiredBoolean(dictionary_.Collect(QStringLiteral("crosstabdate"))); }
    bool flag(const QString& column) const {
        return requiredBoolean(NullTo(dictionary_.Collect(column), false));
    }

private:
    ado::Recordset& dictionary_;
};

template <class AddEntries>
void forEachRow(ado::Recordset& dictionary, AddEntries&& addEntries) {
    if (dictionary.Bof() && dictionary.Eof())
        return;
    const DictionaryRow row(dictionary);
    for (dictionary.MoveFirst(); !dictionary.Eof(); dictionary.MoveNext())
        addEntries(row);
}

void addCount(StatFieldList& fields, const QString& name, const QString& caption, bool isTot) {
    StatField& field = fields.Add();
    field.DataField = name;
    field.Caption = caption;
    field.Width = kCountWidth;
    field.IsTot = isTot;
    field.Align = kAlignRight;
}

void addGroup(StatFieldList& fields, const DictionaryRow& row) {
    StatField& field = fields.Add();
    field.DataField = row.text(QStringLiteral("dtfld"));
    field.Caption = row.text(QStringLiteral("Cptn"));
    field.Width = row.width();
    field.Align = row.align();
    field.IsGroup = true;
}

void addAggregate(StatFieldList& fields, const DictionaryRow& row, const Aggregate& aggregate) {
    StatField& field = fields.Add();
    field.DataField = aggregate.prefix + trimmed(row.text(QStringLiteral("dtfld"))).toString();
    field.Caption = row.text(QStringLiteral("Cptn")) + aggregate.suffix;
    field.Width = kAggregateWidth;
    field.Align = kAlignRight;
    field.IsTot = true;
    field.CrossTabDate = row.crossTabDate();
}

} // namespace

void appendPlainFields(ado::Recordset& dictionary, StatFieldList& fields) {
    forEachRow(dictionary, [&](const DictionaryRow& row) {
        StatField& field = fields.Add();
        field.DataField = row.text(QStringLiteral("dtfld"));
        field.Caption = row.text(QStringLiteral("Cptn"));
        field.Width = row.width();
        field.IsGroup = row.flag(QStringLiteral("isgroup"));
        field.IsTot = row.flag(QStringLiteral("isTot"));
        field.Align = row.align();
    });
}

void buildStatisticsFields(ado::Recordset& dictionary, StatFieldList& fields) {
    fields.Clear();
    addCount(fields, QStringLiteral("Cnt"), texts::countCaption(), true);
    // The share of the count takes no totals, unlike every other share.
    addCount(fields, QStringLiteral("POS_CNT"), texts::countCaption() + texts::shareSuffix(), false);
    const std::vector<Aggregate> all = aggregates();
    forEachRow(dictionary, [&](const DictionaryRow& row) {
        if (row.flag(QStringLiteral("isgroup")))
            addGroup(fields, row);
        for (const Aggregate& aggregate : all) {
            if (row.flag(aggregate.flag))
                addAggregate(fields, row, aggregate);
        }
    });
}

QString PadLeft(const QString& text, int length, const QString& fill) {
    const QStringView bare = trimmed(text);
    if (length < bare.size() || fill.isEmpty())
        throw Error(kErrInvalidCall, QStringLiteral("Invalid procedure call or argument"));
    return QString(length - bare.size(), fill.front()) + bare.toString();
}

} // namespace zkp
