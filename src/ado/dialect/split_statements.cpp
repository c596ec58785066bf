#include "ado/dialect/split_statements.h"

#include "ado/dialect/tokenizer.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace zkp::ado::dialect {

namespace {

/// Follows the words of a statement that creates a trigger or routine, whose body holds statements that
/// end in ";".
class BodyWatch {
public:
    void see(const Token& token) {
        if (what_ == What::Unknown)
            what_ = token.isWord(u"create") ? What::Creates : What::Plain;
        else if (what_ == What::Creates)
            what_ = created(token);
        if (what_ == What::HasBody)
            follow(token);
    }
    bool isInBody() const { return what_ == What::HasBody && depth_ > 0; }

private:
    enum class What { Unknown, Plain, Creates, HasBody };

    /// What is created stands behind words of all kinds, such as MariaDB's DEFINER.
    static What created(const Token& token) {
        if (token.isOneOf({u"trigger", u"procedure", u"function", u"event"}))
            return What::HasBody;
        const bool other =
            token.isSign(u"(") || token.isOneOf({u"table", u"view", u"index", u"as", u"select"});
        return other ? What::Plain : What::Creates;
    }
    /// "END IF" closes what was not counted, and the CASE of "END CASE" opens none.
    void follow(const Token& token) {
        const bool behindEnd = std::exchange(behindEnd_, token.isWord(u"end"));
        if (behindEnd_)
            --depth_;
        else if (token.isWord(u"begin") || (token.isWord(u"case") && !behindEnd))
            ++depth_;
        else if (behindEnd && token.isOneOf({u"if", u"loop", u"while", u"repeat", u"for"}))
            ++depth_;
    }

    What what_ = What::Unknown;
    int depth_ = 0;
    bool behindEnd_ = false;
};

} // namespace

std::vector<QString> splitStatements(const QString& text, Dialect dialect) {
    std::vector<QString> statements;
    qsizetype start = 0;
    qsizetype at = 0;
    bool empty = true;
    BodyWatch body;
    const auto close = [&](qsizetype end) {
        if (!empty)
            statements.push_back(text.mid(start, end - start));
        empty = true;
        body = {};
    };
    const std::vector<Token> tokens = tokenize(text, dialect);
    for (const Token& token : tokens) {
        const bool ends = token.isSign(u";") && !body.isInBody();
        if (ends) {
            close(at);
            start = at + 1;
        } else if (token.kind != TokenKind::Space) {
            empty = false;
            body.see(token);
        }
        at += token.text.size();
    }
    close(text.size());
    return statements;
}

} // namespace zkp::ado::dialect
