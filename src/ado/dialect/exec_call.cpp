#include "ado/dialect/exec_call.h"

#include "ado/dialect/tokenizer.h"
#include "base/error.h"

namespace zkp::ado::dialect {

namespace {

class ExecParser {
public:
    ExecParser(const QString& statement, Dialect dialect)
        : statement_(statement) {
        for (const Token& token : tokenize(statement_, dialect)) {
            if (token.kind != TokenKind::Space)
                tokens_.push_back(token);
        }
        while (!tokens_.empty() && tokens_.back().isSign(u";"))
            tokens_.pop_back();
    }

    std::optional<ExecCall> parse() {
        if (tokens_.empty() || !(tokens_[0].isWord(u"exec") || tokens_[0].isWord(u"execute")))
            return std::nullopt;
        at_ = 1;
        ExecCall call;
        call.name = takeName();
        while (at_ < tokens_.size()) {
            call.arguments.push_back(takeArgument());
            if (at_ < tokens_.size())
                expectComma();
        }
        return call;
    }

private:
    [[noreturn]] void fail() const {
        throw Error(kErrBadStatement,
                    QStringLiteral("The call cannot be read: %1").arg(statement_.trimmed()));
    }

    const Token& take() {
        if (at_ >= tokens_.size())
            fail();
        return tokens_[at_++];
    }

    /// The last part of a name with dots counts.
    QString takeName() {
        for (;;) {
            const Token& token = take();
            if (token.kind != TokenKind::Word && token.kind != TokenKind::Name)
                fail();
            if (at_ >= tokens_.size() || !tokens_[at_].isSign(u"."))
                return nameOf(token);
            ++at_;
        }
    }

    void expectComma() {
        if (!take().isSign(u",") || at_ == tokens_.size())
            fail();
    }

    QVariant takeArgument() {
        const Token& token = take();
        if (token.isSign(u"-"))
            return takeNumber(-1);
        if (token.isWord(u"n") && at_ < tokens_.size() && tokens_[at_].kind == TokenKind::Text)
            return textOf(take());
        if (token.isWord(u"null"))
            return {};
        if (token.kind == TokenKind::Text)
            return textOf(token);
        --at_;
        return takeNumber(1);
    }

    QVariant takeNumber(int sign) {
        const Token& token = take();
        if (token.kind != TokenKind::Number)
            fail();
        bool ok = false;
        if (const qlonglong whole = token.text.toLongLong(&ok); ok)
            return whole * sign;
        const double number = token.text.toDouble(&ok);
        if (!ok)
            fail();
        return number * sign;
    }

    const QString& statement_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
};

} // namespace

std::optional<ExecCall> parseExec(const QString& statement, Dialect dialect) {
    return ExecParser(statement, dialect).parse();
}

} // namespace zkp::ado::dialect
