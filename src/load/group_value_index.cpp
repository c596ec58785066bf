#include "load/group_value_index.h"

#include "ado/constants.h"
#include "base/number.h"
#include "base/text.h"
#include "base/value.h"
#include "support/date_text.h"

#include <optional>

namespace zkp {

namespace {

constexpr QChar kBetweenKeys(0x1F);

enum class Match { Number, Date, Text };

Match matchOf(int fieldType) {
    switch (fieldType) {
    case ado::adSmallInt:
    case ado::adInteger:
    case ado::adDouble:
    case ado::adCurrency:
    case ado::adBigInt:
        return Match::Number;
    case ado::adDBDate:
        return Match::Date;
    default:
        return Match::Text;
    }
}

QString numberPart(double number) {
    return QString::number(number + 0.0, 'g', 17);
}

/// What a shown key is looked up by; nothing when no value can match it.
std::optional<QString> partOfText(const QString& text, Match match, const ReportLocale& locale) {
    if (match == Match::Number) {
        const std::optional<double> number = toNumber(text, locale);
        return number ? std::optional(numberPart(*number)) : std::nullopt;
    }
    if (match == Match::Date) {
        const std::optional<QDate> date = toDate(text, locale);
        return date ? std::optional(QString::number(date->toJulianDay())) : std::nullopt;
    }
    return nameKey(text);
}

/// What a record's value is found under; nothing for a null.
std::optional<QString> partOfValue(const QVariant& value, Match match, const ReportLocale& locale) {
    if (isNull(value))
        return std::nullopt;
    if (match == Match::Number && value.typeId() != QMetaType::QString)
        return numberPart(value.metaType() == QMetaType::fromType<Currency>()
                              ? value.value<Currency>().toDouble()
                              : value.toDouble());
    if (match == Match::Date && value.typeId() == QMetaType::QDateTime)
        return QString::number(value.toDateTime().date().toJulianDay());
    return partOfText(valueText(value, locale), match, locale);
}

} // namespace

void GroupValueIndex::use(const ado::RecordsetPtr& records, const ReportLocale& locale) {
    if (records == records_ && records->revision() == revision_ && locale.locale() == locale_.locale())
        return;
    records_ = records;
    revision_ = records->revision();
    locale_ = locale;
    known_.clear();
}

Decimal GroupValueIndex::sum(const std::vector<Key>& keys, const QString& valueField) {
    const ado::FieldList fields = records_->Fields();
    std::vector<int> keyFields;
    QString wanted;
    bool matchable = true;
    for (const Key& key : keys) {
        const ado::Field field = records_->Fields().Item(key.field);
        keyFields.push_back(fields.indexOf(key.field));
        const auto part = partOfText(key.text, matchOf(field.Type()), locale_);
        matchable = matchable && part;
        wanted += part.value_or(QString()) + kBetweenKeys;
    }
    records_->Fields().Item(valueField); // Error 3265
    return matchable ? sumsBy(keyFields, fields.indexOf(valueField)).value(wanted) : Decimal();
}

const GroupValueIndex::Sums& GroupValueIndex::sumsBy(const std::vector<int>& keyFields, int valueField) {
    QString place = QString::number(valueField);
    for (const int field : keyFields)
        place += u' ' + QString::number(field);
    if (const auto known = known_.constFind(place); known != known_.cend())
        return *known;

    Sums sums;
    const ado::RecordsetPtr all = records_->Clone();
    std::vector<Match> matches;
    for (const int field : keyFields)
        matches.push_back(matchOf(all->Fields().Item(field).Type()));
    for (std::int64_t i = 0; i < all->RecordCount(); ++i) {
        const std::size_t row = all->tableRow(i);
        QString keys;
        bool findable = true;
        for (std::size_t k = 0; k < keyFields.size() && findable; ++k) {
            const auto& column = all->table().columns[static_cast<std::size_t>(keyFields[k])];
            const auto part = partOfValue(column->value(row), matches[k], locale_);
            findable = part.has_value();
            keys += part.value_or(QString()) + kBetweenKeys;
        }
        if (findable)
            sums[keys] += numberAt(valueField, row);
    }
    return known_.insert(place, sums).value();
}

/// A null, and a text that is no number, count as 0.
Decimal GroupValueIndex::numberAt(int field, std::size_t row) const {
    const QVariant value = records_->table().columns[static_cast<std::size_t>(field)]->value(row);
    if (value.metaType() == QMetaType::fromType<Currency>())
        return Decimal(value.value<Currency>());
    if (value.typeId() == QMetaType::Double)
        return Decimal(value.toDouble());
    return Decimal::fromText(valueText(value, locale_), locale_).value_or(Decimal());
}

} // namespace zkp
