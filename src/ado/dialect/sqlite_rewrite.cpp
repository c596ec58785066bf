#include "ado/dialect/sqlite_rewrite.h"

#include "ado/dialect/keywords.h"
#include "ado/dialect/rewriter.h"

namespace zkp::ado::dialect {

namespace {

class SqliteRewriter : public Rewriter {
public:
    explicit SqliteRewriter(const QString& statement)
        : Rewriter(statement, Dialect::Sqlite) {}

    QString rewrite() {
        const bool answered = isAnswered();
        datesToIso();
        if (answered) {
            collateConstants(QStringLiteral("ZKP_TEXT"));
            for (std::size_t k = 1; k < count(); ++k) {
                if (at(k).isWord(u"in"))
                    collateList(k);
            }
            compareCapitals();
            divideAsReal(QStringLiteral("1.0"));
        }
        topToLimit(QStringLiteral("SELECT * FROM ("), QStringLiteral(")"));
        return text();
    }

private:
    /// In "x IN ('a', 'b')" the left side's collation counts.
    void collateList(std::size_t k) {
        if (!at(k + 1).isSign(u"("))
            return;
        bool cased = false;
        for (std::size_t i = k + 2; at(i).kind == TokenKind::Text; i += 2) {
            cased = cased || hasCase(at(i).text);
            if (!at(i + 1).isSign(u","))
                break;
        }
        if (!cased)
            return;
        QString& first = written(at(k - 1).isWord(u"not") ? k - 1 : k);
        first = QStringLiteral("COLLATE ZKP_TEXT ") + first;
    }

    /// The connection's own LIKE goes by a name that nothing in a file uses: indexes and checks may hold the
    /// built-in one, and must mean the same to every program.
    void compareCapitals() {
        for (std::size_t k = 1; k < count(); ++k) {
            const bool hasLetters = at(k + 1).kind != TokenKind::Text || hasCase(at(k + 1).text);
            if (at(k).isWord(u"like") && hasLetters && !isCall(k))
                written(k) = QStringLiteral("REGEXP");
        }
    }

    /// Whether the word is a function's name: no operand stands before it.
    bool isCall(std::size_t k) const {
        return at(k + 1).isSign(u"(") && !at(k - 1).isWord(u"not") && !endsValue(at(k - 1));
    }
};

} // namespace

QString rewriteForSqlite(const QString& statement) {
    return SqliteRewriter(statement).rewrite();
}

} // namespace zkp::ado::dialect
