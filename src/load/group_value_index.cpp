#include "load/group_value_index.h"

#include "ado/constants.h"
#include "base/date_text.h"
#include "base/number.h"
#include "base/text.h"
#include "base/value.h"

#include <optional>

namespace zkp {

namespace {

constexpr QChar kBetweenKeys(0x1F);

QString numberPart(double number) {
    return QString::number(number + 0.0, 'g', 15);
}

} // namespace

/// What a shown key is looked up by; nothing when no value can match it.
std::optional<QString> GroupValueIndex::partOfText(const QString& text, Match match,
                                                   const ReportLocale& locale) {
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
std::optional<QString> GroupValueIndex::partOfValue(const QVariant& value, Match match,
                                                    const ReportLocale& locale) {
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

/// What the values of one field are found under. A text that the records keep once is worked out once.
class GroupValueIndex::KeyParts {
public:
    KeyParts(const store::Column& column, Match match, const ReportLocale& locale)
        : column_(column)
        , match_(match)
        , locale_(locale) {}

    std::optional<QString> at(std::size_t row) {
        const std::uint32_t code = column_.textCode(row);
        if (code == store::Column::kNoTextCode)
            return partOfValue(column_.value(row), match_, locale_);
        auto known = known_.constFind(code);
        if (known == known_.cend())
            known = known_.insert(code, partOfValue(column_.value(row), match_, locale_));
        return *known;
    }

private:
    const store::Column& column_;
    Match match_;
    const ReportLocale& locale_;
    QHash<std::uint32_t, std::optional<QString>> known_;
};

void GroupValueIndex::use(const ado::RecordsetPtr& records, const ReportLocale& locale) {
    if (records == records_ && records->revision() == revision_ && locale.locale() == locale_.locale())
        return;
    all_ = records->Clone();
    records_ = records;
    revision_ = records->revision();
    locale_ = locale;
    places_.clear();
    groups_.clear();
    asked_.clear();
}

Decimal GroupValueIndex::sum(const std::vector<Key>& keys, const QString& valueField) {
    const Asked& asked = ask(keys);
    const int value = place(valueField).position;
    if (asked.group == kNone)
        return {};
    return sumsOf(*asked.groups, value)[static_cast<std::size_t>(asked.group)];
}

const GroupValueIndex::FieldPlace& GroupValueIndex::place(const QString& field) {
    auto known = places_.constFind(field);
    if (known != places_.cend())
        return *known;
    Match match = Match::Text;
    switch (all_->Fields().Item(field).Type()) { // Error 3265
    case ado::adSmallInt:
    case ado::adInteger:
    case ado::adDouble:
    case ado::adCurrency:
    case ado::adBigInt:
        match = Match::Number;
        break;
    case ado::adDBDate:
        match = Match::Date;
        break;
    default:
        break;
    }
    return *places_.insert(field, {all_->Fields().indexOf(field), match});
}

const GroupValueIndex::Asked& GroupValueIndex::ask(const std::vector<Key>& keys) {
    if (asked_.size() <= keys.size())
        asked_.resize(keys.size() + 1);
    Asked& asked = asked_[keys.size()];
    if (asked.groups && asked.keys == keys)
        return asked;
    std::vector<FieldPlace> fields;
    QString wanted;
    bool matchable = true;
    for (const Key& key : keys) {
        fields.push_back(place(key.field));
        const auto part = partOfText(key.text, fields.back().match, locale_);
        matchable = matchable && part;
        wanted += part.value_or(QString()) + kBetweenKeys;
    }
    Groups& groups = groupsBy(fields);
    asked = {keys, &groups, matchable ? groups.numbers.value(wanted, kNone) : kNone};
    return asked;
}

GroupValueIndex::Groups& GroupValueIndex::groupsBy(const std::vector<FieldPlace>& fields) {
    for (Groups& known : groups_)
        if (known.fields == fields)
            return known;
    Groups groups{fields, {}, {}, {}};
    std::vector<KeyParts> parts;
    for (const FieldPlace& field : fields)
        parts.emplace_back(*all_->table().columns[static_cast<std::size_t>(field.position)], field.match,
                           locale_);
    for (std::int64_t i = 0; i < all_->RecordCount(); ++i) {
        QString keys;
        bool findable = true;
        for (KeyParts& each : parts) {
            const auto part = each.at(all_->tableRow(i));
            findable = findable && part;
            keys += part.value_or(QString()) + kBetweenKeys;
        }
        if (findable && !groups.numbers.contains(keys))
            groups.numbers.insert(keys, static_cast<int>(groups.numbers.size()));
        groups.ofRecord.push_back(findable ? groups.numbers.value(keys) : kNone);
    }
    groups_.push_back(std::move(groups));
    return groups_.back();
}

const std::vector<Decimal>& GroupValueIndex::sumsOf(Groups& groups, int valueField) {
    const auto known = groups.sums.constFind(valueField);
    if (known != groups.sums.cend())
        return *known;
    std::vector<Decimal> sums(static_cast<std::size_t>(groups.numbers.size()));
    for (std::size_t i = 0; i < groups.ofRecord.size(); ++i)
        if (const int group = groups.ofRecord[i]; group != kNone)
            sums[static_cast<std::size_t>(group)] +=
                numberAt(valueField, all_->tableRow(static_cast<std::int64_t>(i)));
    return *groups.sums.insert(valueField, std::move(sums));
}

/// A null, and a text that is no number, count as 0.
Decimal GroupValueIndex::numberAt(int field, std::size_t row) const {
    const QVariant value = all_->table().columns[static_cast<std::size_t>(field)]->value(row);
    if (value.metaType() == QMetaType::fromType<Currency>())
        return Decimal(value.value<Currency>());
    if (value.typeId() == QMetaType::Double)
        return Decimal(value.toDouble());
    return Decimal::fromText(valueText(value, locale_), locale_).value_or(Decimal());
}

} // namespace zkp
