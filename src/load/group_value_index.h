#pragma once

#include "ado/recordset.h"
#include "base/decimal.h"

#include <QHash>

#include <list>
#include <optional>
#include <vector>

namespace zkp {

/// Sums of a field over the records that have given keys. The records are put into groups by the same
/// key fields once, and a field is summed for all groups in one walk, so that asking for each group of a
/// report costs no walk each.
class GroupValueIndex {
public:
    struct Key {
        QString field;
        QString text; ///< as the grid shows it, trimmed
        bool operator==(const Key&) const = default;
    };

    /// Sums come from these records from here on. What is known of other ones is forgotten.
    void use(const ado::RecordsetPtr& records, const ReportLocale& locale);

    /// Numbers and dates match by value, anything else by its shown text without regard to case. A blank
    /// key matches an empty text and no null. Error 3265 when the records have no such field.
    Decimal sum(const std::vector<Key>& keys, const QString& valueField);

private:
    enum class Match { Number, Date, Text };
    struct FieldPlace {
        int position;
        Match match;
        bool operator==(const FieldPlace&) const = default;
    };
    /// The records by the values of some fields.
    struct Groups {
        std::vector<FieldPlace> fields;
        QHash<QString, int> numbers; // by the keys
        std::vector<int> ofRecord;
        QHash<int, std::vector<Decimal>> sums; // of each group, by the summed field's position
    };
    /// What the keys before named: rows that follow one another mostly ask for the same.
    struct Asked {
        std::vector<Key> keys;
        Groups* groups = nullptr;
        int group = kNone;
    };
    static constexpr int kNone = -1;

    class KeyParts;

    const FieldPlace& place(const QString& field);
    const Asked& ask(const std::vector<Key>& keys);
    Groups& groupsBy(const std::vector<FieldPlace>& fields);
    const std::vector<Decimal>& sumsOf(Groups& groups, int valueField);
    Decimal numberAt(int field, std::size_t row) const;
    static std::optional<QString> partOfText(const QString& text, Match match, const ReportLocale& locale);
    static std::optional<QString> partOfValue(const QVariant& value, Match match, const ReportLocale& locale);

    ado::RecordsetPtr records_;
    ado::RecordsetPtr all_; ///< the same records without a filter
    std::uint64_t revision_ = 0;
    ReportLocale locale_;
    QHash<QString, FieldPlace> places_;
    std::list<Groups> groups_;
    std::vector<Asked> asked_; // by the number of keys
};

} // namespace zkp
