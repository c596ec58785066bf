#include "ado/dialect/catalogue.h"

#include "base/text.h"

namespace zkp::ado::dialect {

void Catalogue::addSpelling(const QString& relation) {
    relations_[nameKey(relation)].spelling = relation;
}

void Catalogue::addColumnSpelling(const QString& relation, const QString& column) {
    relations_[nameKey(relation)].columns.insert(nameKey(column), column);
}

void Catalogue::addFlag(const QString& relation, const QString& column) {
    relations_[nameKey(relation)].flags.insert(nameKey(column));
}

StatementNames Catalogue::namesIn(const std::vector<Token>& statement) const {
    StatementNames names;
    for (const Token& token : statement) {
        if (token.kind != TokenKind::Word && token.kind != TokenKind::Name)
            continue;
        const QString key = nameKey(nameOf(token));
        const auto relation = relations_.constFind(key);
        if (relation == relations_.cend())
            continue;
        if (!relation->spelling.isEmpty())
            names.spelling.insert(key, relation->spelling);
        names.spelling.insert(relation->columns);
        names.flags.unite(relation->flags);
    }
    return names;
}

} // namespace zkp::ado::dialect
