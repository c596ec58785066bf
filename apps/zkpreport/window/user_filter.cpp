#include "window/user_filter.h"

#include "base/text.h"
#include "window/texts.h"

namespace zkp::app {

namespace {

/// Walks a filter and stops at the first thing that could lead out of its brackets.
class FilterScan {
public:
    explicit FilterScan(QStringView text)
        : text_(text) {}

    /// What is wrong, or an empty text.
    QString run() {
        while (failure_.isEmpty() && at_ < text_.size())
            step();
        if (failure_.isEmpty() && depth_ > 0)
            failure_ = texts::bracketLeftOpen();
        return failure_;
    }

    /// How often the text came back to the outside of all brackets.
    int groups() const { return groups_; }
    /// True when something else than blanks stands outside all brackets.
    bool hasOutside() const { return outside_; }

private:
    void step() {
        const QChar c = text_[at_];
        if (isCommentSign())
            failure_ = texts::commentInFilter();
        else if (c == u';')
            failure_ = texts::statementEndInFilter();
        else if (isForeignSign(c))
            failure_ = texts::signInFilter(c);
        else if (c == u'\'' || c == u'"')
            skipQuoted(c);
        else if (c == u'[')
            skipName();
        else
            plain(c);
    }

    void plain(QChar c) {
        if (c == u']')
            failure_ = texts::nameClosedFirst();
        else if (c == u'(')
            ++depth_;
        else if (c == u')')
            closeBracket();
        else if (depth_ == 0 && c != u' ')
            outside_ = true;
        ++at_;
    }

    void closeBracket() {
        if (depth_ == 0)
            failure_ = texts::bracketClosedFirst();
        else if (--depth_ == 0)
            ++groups_;
    }

    bool isCommentSign() const {
        const QStringView two = text_.sliced(at_).first(std::min<qsizetype>(2, text_.size() - at_));
        return two == u"--" || two == u"/*" || two == u"*/";
    }

    /// What opens a comment or a quotation in one database and nothing in another: the signs `, # and $.
    /// Control characters end the text for some.
    static bool isForeignSign(QChar c) {
        return c == u'`' || c == u'#' || c == u'$' || (c < u' ' && c != u'\t' && c != u'\n' && c != u'\r');
    }

    /// A doubled sign is part of the constant. A backslash in front of a sign would be too, in some
    /// databases only.
    void skipQuoted(QChar sign) {
        outside_ = outside_ || depth_ == 0;
        for (qsizetype i = at_ + 1; i < text_.size(); ++i) {
            if (text_[i] == u'\0' || (text_[i] == u'\\' && i + 1 < text_.size() && text_[i + 1] == sign)) {
                failure_ = texts::signInFilter(text_[i]);
                return;
            }
            if (text_[i] != sign)
                continue;
            if (i + 1 < text_.size() && text_[i + 1] == sign) {
                ++i;
                continue;
            }
            at_ = i + 1;
            return;
        }
        failure_ = texts::quoteLeftOpen();
    }

    void skipName() {
        outside_ = outside_ || depth_ == 0;
        const qsizetype end = text_.indexOf(u']', at_);
        if (end < 0)
            failure_ = texts::nameLeftOpen();
        else
            at_ = end + 1;
    }

    QStringView text_;
    qsizetype at_ = 0;
    int depth_ = 0;
    int groups_ = 0;
    bool outside_ = false;
    QString failure_;
};

} // namespace

UserFilter checkUserFilter(const QString& typed) {
    QString text = typed;
    // Keys are found between blanks, and a pasted filter may have other gaps.
    text.replace(u'\t', u' ').replace(u'\r', u' ').replace(u'\n', u' ');
    text = trimmed(text).toString();
    if (text.isEmpty())
        return {};
    const QString failure = FilterScan(text).run();
    if (!failure.isEmpty())
        return {{}, failure};
    return {QStringLiteral("( ") + text + QStringLiteral(" )"), {}};
}

bool isInOneBracket(const QString& text) {
    FilterScan scan(text);
    return scan.run().isEmpty() && scan.groups() == 1 && !scan.hasOutside();
}

} // namespace zkp::app
