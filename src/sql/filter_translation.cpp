#include "sql/filter_translation.h"

#include "base/text.h"
#include "base/texts.h"
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

void FilterTranslation::TranslateFilter(QString& Tables) {
    const ReportState& state = inputs_.state;
    const QString given = nameKey(state.Filter);
    if (isBlank(state.clmns) ||
        (isBlank(state.MasterFilter) && (given.isEmpty() || given == QStringLiteral("TRUE"))))
        return;
    try {
        ado::Recordset row;
        row.Open(state.clmns, state.Cn, -1, -1, ado::adCmdTable);
        QString filter = startingText();
        QString capitals; // of the filter, while `isCurrent`; made only for a row that asks
        bool isCurrent = false;
        const QString master = nameKey(state.MasterTable);
        QString physical;
        for (; !row.Eof(); row.MoveNext()) {
            const QString key = nameKey(textOf(row.Fields().Item(u"dtfld").Value()));
            const QString field = nameKey(textOrEmpty(row.Fields().Item(u"SOURCEFIELDNAME").Value()));
            const QVariant table = row.Fields().Item(u"SourceTableName").Value();
            const QString tableName = nameKey(textOrEmpty(table));
            bool replaces = true;
            if (!field.isEmpty())
                physical = u'[' + tableName + QStringLiteral("].[") + field + u']';
            else if (const QString expression = textOrEmpty(row.Fields().Item(u"Expr").Value());
                     !isBlank(expression))
                physical = u' ' + expression;
            else
                replaces = false; // the physical text of the row before stands, as wanted
            if (replaces && replaceKey(filter, key, physical))
                isCurrent = false;

            if (!table.isValid() || tableName == master || Tables.contains(u' ' + tableName + u' '))
                continue;
            if (!std::exchange(isCurrent, true))
                capitals = nameKey(filter);
            if (capitals.contains(physical))
                Tables += QStringLiteral(", ") + tableName + u' ';
        }
        inputs_.setFilter(filter);
    } catch (const std::exception&) {
        boxes_.msgBox(texts::filterFailed(), kMsgBoxCritical);
    }
}

/// The user's filter with the report's standing condition in front, all in capitals, constants too.
/// An empty filter leaves a dangling " and ", as wanted.
QString FilterTranslation::startingText() const {
    const QString given = nameKey(inputs_.state.Filter);
    const QString standing = nameKey(inputs_.state.MasterFilter);
    if (!standing.isEmpty() && !given.contains(standing))
        return u'(' + standing + QStringLiteral(") and ") + given;
    return given;
}

} // namespace zkp
