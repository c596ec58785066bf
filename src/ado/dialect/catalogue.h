#pragma once

#include "ado/dialect/tokenizer.h"

#include <QHash>
#include <QSet>

namespace zkp::ado::dialect {

/// What a server's catalogue says about the names of one statement.
struct StatementNames {
    QHash<QString, QString> spelling; ///< by name key, for names that must be spelt as they are kept
    QSet<QString> flags;              ///< name keys of Boolean columns
};

/// Names of a server that are not found as statements write them: statements care nothing for capitals,
/// servers do.
class Catalogue {
public:
    void addSpelling(const QString& relation);
    void addColumnSpelling(const QString& relation, const QString& column);
    void addFlag(const QString& relation, const QString& column);

    /// For the tables and views that a statement mentions.
    StatementNames namesIn(const std::vector<Token>& statement) const;

private:
    struct Relation {
        QString spelling;
        QHash<QString, QString> columns;
        QSet<QString> flags;
    };
    QHash<QString, Relation> relations_; ///< by name key
};

} // namespace zkp::ado::dialect
