#include "sql/filter_keys.h"

#include "base/text.h"
#include "sql/statement_text.h"

#include <utility>

namespace zkp {

namespace {

/// What may stand around a key for it to be replaced, in this order. Rows 7, 8 and 11 never find
/// anything, since rows 5, 6 and 10 have taken their text; they stay, and so does the order.
struct Surroundings {
    const char* before;
    const char* after;
};
constexpr Surroundings kPatterns[] = {
    {" ", " "},  {"(", ")"}, {"(", " "}, {"(", "="}, {"(", ">"}, {"(", "<"}, {"(", ">="},
    {"(", "<="}, {"", "="},  {"", ">"},  {"", ">="}, {"", "<="}, {"", "<>"}, {"", "<"},
};

} // namespace

bool replaceKey(QString& filter, const QString& key, const QString& physical) {
    if (!filter.contains(key))
        return false;
    if (filter.startsWith(key))
        filter.prepend(u' ');
    for (const Surroundings& around : kPatterns) {
        const QLatin1String before(around.before);
        const QLatin1String after(around.after);
        filter.replace(before + key + after, before + physical + after);
    }
    return true;
}

FilterKeys::FilterKeys(const DataSettings& data, const SourceState& source) {
    row_.Open(data.clmns, source.Cn, -1, -1, ado::adCmdTable);
}

bool FilterKeys::next() {
    if (!std::exchange(isFirst_, false))
        row_.MoveNext();
    if (row_.Eof())
        return false;
    key_ = nameKey(textOf(row_.Fields().Item(u"dtfld").Value()));
    const QString field = nameKey(textOrEmpty(row_.Fields().Item(u"SOURCEFIELDNAME").Value()));
    const QVariant table = row_.Fields().Item(u"SourceTableName").Value();
    table_ = table.isValid() ? std::optional(nameKey(table.toString())) : std::nullopt;
    hasPhysical_ = true;
    if (!field.isEmpty())
        physical_ = u'[' + table_.value_or(QString()) + QStringLiteral("].[") + field + u']';
    else if (const QString expression = textOrEmpty(row_.Fields().Item(u"Expr").Value());
             !isBlank(expression))
        physical_ = u' ' + expression;
    else
        hasPhysical_ = false;
    return true;
}

} // namespace zkp
