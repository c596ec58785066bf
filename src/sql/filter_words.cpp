#include "sql/filter_words.h"

#include "base/text.h"

#include <algorithm>

namespace zkp {

namespace {

constexpr QStringView kTableWords[] = {u"SELECT", u"UNION", u"INTERSECT", u"EXCEPT",
                                       u"EXISTS", u"TABLE", u"VALUES",    u"WITH"};

/// Some databases end a number where a letter begins.
bool isWord(QStringView capitals, QStringView word) {
    return capitals == word || (capitals.front().isDigit() && capitals.endsWith(word));
}

} // namespace

bool asksATable(QStringView word, QStringView behind) {
    const QString capitals = upper(word); // as a translated filter has them: an ſ is an S there
    const auto isIt = [&](QStringView tableWord) { return isWord(capitals, tableWord); };
    return std::any_of(std::begin(kTableWords), std::end(kTableWords), isIt) ||
           (isWord(capitals, u"IN") && !behind.trimmed().startsWith(u'('));
}

bool opensForeignQuote(QStringView word) {
    const QString capitals = upper(word);
    return capitals == u"Q" || capitals == u"NQ";
}

} // namespace zkp
