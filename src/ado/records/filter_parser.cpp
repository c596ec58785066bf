#include "ado/constants.h"
#include "ado/dialect/tokenizer.h"
#include "ado/records/filter.h"
#include "ado/records/records.h"
#include "base/error.h"

namespace zkp::ado {

namespace {

using dialect::Token;
using dialect::TokenKind;

/// Brackets within brackets beyond this are taken for a mistake; they would use up the stack.
constexpr int kDeepest = 500;

class FilterParser {
public:
    FilterParser(const QString& text, const Records& records)
        : text_(text)
        , records_(records) {
        for (const Token& token : dialect::tokenize(text_, dialect::Dialect::Sqlite)) {
            if (token.kind != TokenKind::Space)
                tokens_.push_back(token);
        }
    }

    Condition parse() {
        Condition condition = parseOr();
        if (at_ != tokens_.size())
            fail();
        return condition;
    }

private:
    [[noreturn]] void fail(const QString& why = {}) const {
        const QString place =
            at_ < tokens_.size() ? QStringLiteral(" at \"%1\"").arg(tokens_[at_].text) : QString();
        const QString reason = why.isEmpty() ? QStringLiteral("it cannot be read%1").arg(place) : why;
        throw Error(kErrBadArgument, QStringLiteral("The filter \"%1\" is not valid: %2").arg(text_, reason));
    }

    bool accept(QStringView sign) {
        if (at_ >= tokens_.size() || !tokens_[at_].isSign(sign))
            return false;
        ++at_;
        return true;
    }
    bool acceptWord(QStringView word) {
        if (at_ >= tokens_.size() || !tokens_[at_].isWord(word))
            return false;
        ++at_;
        return true;
    }
    void expect(QStringView sign) {
        if (!accept(sign))
            fail();
    }
    const Token& take(TokenKind kind) {
        if (at_ >= tokens_.size() || tokens_[at_].kind != kind)
            fail();
        return tokens_[at_++];
    }

    Condition parseOr() { return parseJoined(Condition::Kind::Or, u"or", &FilterParser::parseAnd); }
    Condition parseAnd() { return parseJoined(Condition::Kind::And, u"and", &FilterParser::parseFactor); }

    Condition parseJoined(Condition::Kind kind, QStringView word, Condition (FilterParser::*part)()) {
        Condition first = (this->*part)();
        if (at_ >= tokens_.size() || !tokens_[at_].isWord(word))
            return first;
        Condition joined;
        joined.kind = kind;
        joined.parts.push_back(std::move(first));
        while (acceptWord(word))
            joined.parts.push_back((this->*part)());
        return joined;
    }

    Condition parseFactor() {
        if (!accept(u"("))
            return parseComparison();
        if (++depth_ > kDeepest)
            fail(QStringLiteral("too many brackets"));
        Condition inner = parseOr();
        --depth_;
        expect(u")");
        return inner;
    }

    Condition parseComparison() {
        Condition condition;
        condition.field = parseField();
        condition.comparison = parseOperator();
        condition.literal = parseLiteral();
        checkComparable(condition);
        return condition;
    }

    int parseField() {
        const bool isThere =
            at_ < tokens_.size() && !tokens_[at_].isWord(u"and") && !tokens_[at_].isWord(u"or");
        if (!isThere || (tokens_[at_].kind != TokenKind::Word && tokens_[at_].kind != TokenKind::Name))
            fail();
        const QString name = dialect::nameOf(tokens_[at_++]);
        const int field = records_.indexOf(name);
        if (field < 0)
            throw Error(kErrItemNotFound,
                        QStringLiteral("The filter \"%1\" names the field \"%2\", which is not there.")
                            .arg(text_, name));
        return field;
    }

    Comparison parseOperator() {
        const QStringView sign = take(TokenKind::Sign).text;
        if (sign == u"=")
            return Comparison::Equal;
        if (sign == u"<>")
            return Comparison::NotEqual;
        if (sign == u"<")
            return Comparison::Less;
        if (sign == u">")
            return Comparison::Greater;
        if (sign == u"<=")
            return Comparison::LessOrEqual;
        if (sign == u">=")
            return Comparison::GreaterOrEqual;
        --at_;
        fail();
    }

    FilterLiteral parseLiteral() {
        if (at_ < tokens_.size() && tokens_[at_].kind == TokenKind::Text)
            return FilterLiteral::text(parseText());
        if (acceptWord(u"convert"))
            return parseConvert();
        if (acceptWord(u"true"))
            return FilterLiteral::boolean(true);
        if (acceptWord(u"false"))
            return FilterLiteral::boolean(false);
        const bool negative = accept(u"-");
        if (!negative)
            accept(u"+");
        const QString digits = take(TokenKind::Number).text.toString();
        FilterLiteral literal = FilterLiteral::number(negative ? u'-' + digits : digits);
        if (!literal.real) {
            --at_;
            fail();
        }
        return literal;
    }

    QString parseText() {
        const Token& token = take(TokenKind::Text);
        if (token.text.size() < 2 || !token.text.endsWith(u'\''))
            fail(QStringLiteral("a text has no end"));
        return dialect::textOf(token);
    }

    /// Convert(Datetime,'mm/dd/yyyy',102), behind its first word.
    FilterLiteral parseConvert() {
        expect(u"(");
        if (!acceptWord(u"datetime"))
            fail();
        expect(u",");
        const QString text = parseText();
        const auto moment = parseFilterDate(text.trimmed());
        if (!moment)
            fail(QStringLiteral("\"%1\" is not a date").arg(text));
        expect(u",");
        take(TokenKind::Number);
        expect(u")");
        return FilterLiteral::date(*moment);
    }

    void checkComparable(const Condition& condition) const {
        const FieldInfo& field = records_.fields[static_cast<std::size_t>(condition.field)];
        const FilterLiteral& literal = condition.literal;
        bool comparable = true;
        switch (field.type) {
        case adSmallInt:
        case adInteger:
        case adBigInt:
        case adDouble:
        case adCurrency:
        case adBoolean:
            comparable = literal.real.has_value();
            break;
        case adDBDate:
        case adDBTimeStamp:
            comparable = literal.milliseconds.has_value();
            break;
        case adLongVarBinary:
            comparable = false;
            break;
        default:
            break;
        }
        if (!comparable)
            fail(QStringLiteral("the field \"%1\" cannot be compared with such a value").arg(field.name));
    }

    const QString& text_;
    const Records& records_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    int depth_ = 0;
};

} // namespace

Condition parseFilter(const QString& text, const Records& records) {
    return FilterParser(text, records).parse();
}

} // namespace zkp::ado
