#include "sql/filter_scan.h"

#include "base/text.h"
#include "base/texts/filters.h"
#include "sql/filter_words.h"

#include <algorithm>

namespace zkp {

namespace {

bool isWordPart(QChar c) {
    return c.isLetterOrNumber() || c.isMark() || c == u'_';
}

/// Some databases end the text there, or read a blank that others read as part of a name.
bool isControl(QChar c) {
    switch (c.category()) {
    case QChar::Other_Control:
        return c != u'\t' && c != u'\n' && c != u'\r';
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

bool opensElsewhere(QChar c) {
    return c == u'`' || c == u'#' || c == u'$';
}

class Walk {
public:
    Walk(QStringView text, const FilterRules& rules)
        : text_(text)
        , rules_(rules) {}

    FilterScan run() {
        while (found_.refusal.isEmpty() && at_ < text_.size())
            step();
        if (found_.refusal.isEmpty() && !open_.empty())
            refuse(texts::bracketLeftOpen, open_.back());
        return std::move(found_);
    }

private:
    void refuse(QString (*reason)(qsizetype), qsizetype at) { found_.refusal = reason(at + 1); }
    void refuseSign(qsizetype at) { found_.refusal = texts::signInFilter(text_[at], at + 1); }

    void step() {
        const QChar c = text_[at_];
        if (isCommentSign())
            refuse(texts::commentInFilter, at_);
        else if (c == u';')
            refuse(texts::statementEndInFilter, at_);
        else if (!rules_.foreignSigns && (opensElsewhere(c) || isControl(c)))
            refuseSign(at_);
        else if (c == u'\'' || c == u'"')
            takeConstant(c);
        else if (c == u'[')
            takeName();
        else if (isWordPart(c))
            takeWord();
        else
            takeSign(c);
    }

    bool isCommentSign() const {
        const QStringView two = text_.sliced(at_).first(std::min<qsizetype>(2, text_.size() - at_));
        return two == u"--" || two == u"/*" || two == u"*/";
    }

    void takeSign(QChar c) {
        if (c == u']')
            refuse(texts::nameClosedFirst, at_);
        else if (c == u'(')
            open_.push_back(at_);
        else if (c == u')')
            closeBracket();
        else if (!c.isSpace())
            seeOutside();
        ++at_;
    }

    void seeOutside() { found_.hasOutside = found_.hasOutside || open_.empty(); }

    void closeBracket() {
        if (open_.empty()) {
            refuse(texts::bracketClosedFirst, at_);
            return;
        }
        open_.pop_back();
        if (open_.empty())
            ++found_.groups;
    }

    void takeWord() {
        seeOutside();
        const auto end = std::find_if_not(text_.begin() + at_, text_.end(), isWordPart) - text_.begin();
        const QStringView word = text_.sliced(at_, end - at_);
        if (!rules_.subselects && asksATable(word, text_.sliced(end)))
            found_.refusal = texts::subselectInFilter(word.toString(), at_ + 1);
        else if (!rules_.foreignSigns && opensForeignQuote(word) && text_.sliced(end).startsWith(u'\''))
            refuseSign(end);
        lastWord_ = word;
        at_ = end;
    }

    /// A doubled sign is part of the constant. A backslash in front of a sign would be too, in some
    /// databases only.
    void takeConstant(QChar sign) {
        for (qsizetype i = at_ + 1; i < text_.size(); ++i) {
            const bool escapes = text_[i] == u'\\' && i + 1 < text_.size() && text_[i + 1] == sign;
            if (!rules_.foreignSigns && (text_[i] == u'\0' || escapes)) {
                refuseSign(i);
                return;
            }
            if (text_[i] != sign)
                continue;
            if (i + 1 >= text_.size() || text_[i + 1] != sign) {
                take(i + 1);
                return;
            }
            ++i;
        }
        refuse(texts::quoteLeftOpen, at_);
    }

    void takeName() {
        const qsizetype end = text_.indexOf(u']', at_);
        if (end < 0)
            refuse(texts::nameLeftOpen, at_);
        else if (!rules_.foreignSigns && mayBeSubscript() && !isPlain(text_.sliced(at_ + 1, end - at_ - 1)))
            refuseSign(at_);
        else
            take(end + 1);
    }

    /// Right behind a value, or behind ARRAY, a bracket holds an expression in some databases.
    bool mayBeSubscript() const {
        const QStringView before = text_.first(at_);
        if (before.isEmpty())
            return false;
        const QChar c = before.back();
        return isWordPart(c) || c == u']' || c == u')' || c == u'"' ||
               (before.trimmed().endsWith(lastWord_) && upper(lastWord_) == u"ARRAY");
    }

    static bool isPlain(QStringView inside) {
        return std::all_of(inside.begin(), inside.end(), [](QChar c) { return isWordPart(c) || c == u' '; });
    }

    void take(qsizetype end) {
        seeOutside();
        found_.quoted.push_back({at_, end - at_});
        at_ = end;
    }

    QStringView text_;
    FilterRules rules_;
    qsizetype at_ = 0;
    std::vector<qsizetype> open_; ///< where the brackets stand that are open
    QStringView lastWord_;
    FilterScan found_;
};

} // namespace

FilterScan scanFilter(QStringView text, const FilterRules& rules) {
    return Walk(text, rules).run();
}

} // namespace zkp
