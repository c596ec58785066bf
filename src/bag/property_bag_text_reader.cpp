#include "bag/property_bag_text.h"
#include "bag/property_bag_text_form.h"
#include "base/error.h"

#include <QStringDecoder>

#include <charconv>
#include <system_error>

namespace zkp {

using namespace bag_text;

namespace {

bool isHexDigit(QChar c) {
    return isDigit(c) || (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
}

/// One line of the text, read from its front.
class Line {
public:
    Line(QStringView text, qsizetype number)
        : text_(text)
        , number_(number) {}

    [[noreturn]] void fail(const char* what) const {
        throw Error(kErrInvalidFormat, QStringLiteral("The template's text can't be read, line %1: %2")
                                           .arg(number_)
                                           .arg(QLatin1String(what)));
    }

    bool atEnd() const { return at_ == text_.size(); }
    bool atQuote() const { return !atEnd() && text_[at_] == u'"'; }
    void takeBlank() {
        if (atEnd() || text_[at_] != u' ')
            fail("a blank is missing");
        ++at_;
    }
    QStringView takeWord() {
        const qsizetype from = at_;
        while (!atEnd() && text_[at_] != u' ')
            ++at_;
        return text_.sliced(from, at_ - from);
    }
    QString takeQuoted() {
        if (!atQuote())
            fail("a quotation mark is missing");
        ++at_;
        QString result;
        for (QChar c = take(); c != u'"'; c = take()) {
            if (c < u' ')
                fail("a control character is not written as such");
            result += c == u'\\' ? takeEscaped() : c;
        }
        return result;
    }

private:
    QChar take() {
        if (atEnd())
            fail("it ends within a text");
        return text_[at_++];
    }
    QChar takeEscaped() {
        const QChar letter = take();
        const auto* escape = std::find_if(kEscapes.begin(), kEscapes.end(),
                                          [&](const Escape& e) { return e.letter == letter; });
        if (escape != kEscapes.end())
            return escape->character;
        if (letter != u'u' || text_.size() - at_ < 4)
            fail("there is no such escape");
        bool isNumber = false;
        const QStringView number = text_.sliced(at_, 4);
        const ushort unit = number.toUShort(&isNumber, 16);
        if (!isNumber || !std::all_of(number.begin(), number.end(), isHexDigit))
            fail("there is no such escape");
        at_ += 4;
        return unit;
    }

    QStringView text_;
    qsizetype number_;
    qsizetype at_ = 0;
};

template <class Number, class... Base>
Number takeNumber(Line& line, QStringView word, Base... base) {
    const QByteArray digits = word.toLatin1();
    Number number{};
    const char* end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, number, base...);
    if (result.ec == std::errc::result_out_of_range)
        line.fail("a number is out of its type's range");
    if (result.ec != std::errc() || result.ptr != end)
        line.fail("that is no number of its type");
    return number;
}

bool takeBoolean(Line& line) {
    const QStringView word = line.takeWord();
    if (word != kTrue && word != kFalse)
        line.fail("a Boolean is neither True nor False");
    return word == kTrue;
}

Color takeColour(Line& line) {
    const QStringView word = line.takeWord();
    if (!word.startsWith(QLatin1String("0x")))
        line.fail("a colour doesn't start with 0x");
    return takeNumber<Color>(line, word.sliced(2), 16);
}

BagFont takeFont(Line& line) {
    BagFont font;
    font.name = line.takeQuoted();
    line.takeBlank();
    font.size = takeNumber<double>(line, line.takeWord());
    while (!line.atEnd()) {
        line.takeBlank();
        const QStringView word = line.takeWord();
        const auto* style = std::find_if(kStyles.begin(), kStyles.end(),
                                         [&](const Style& known) { return known.name == word; });
        if (style == kStyles.end())
            line.fail("there is no such style of a font");
        font.*style->member = true;
    }
    return font;
}

BagValue takeValue(Line& line, std::ptrdiff_t type) {
    switch (type) {
    case 0:
        return takeBoolean(line);
    case 1:
        return takeNumber<std::int16_t>(line, line.takeWord());
    case 2:
        return takeNumber<std::int32_t>(line, line.takeWord());
    case 3:
        return takeNumber<float>(line, line.takeWord());
    case 4:
        return takeNumber<double>(line, line.takeWord());
    case 5:
        return line.takeQuoted();
    case 6:
        return takeColour(line);
    case 7:
        return takeFont(line);
    default:
        line.fail("there is no such type");
    }
}

void takeEntry(Line line, PropertyBag& bag) {
    const bool isQuoted = line.atQuote();
    const QString key = isQuoted ? line.takeQuoted() : line.takeWord().toString();
    if (key.size() > PropertyBag::kLongestKey || (isQuoted ? key.isEmpty() : !isBare(key)))
        line.fail("that is no key");
    line.takeBlank();
    const QStringView type = line.takeWord();
    const auto* known = std::find(kTypeNames.begin(), kTypeNames.end(), type);
    if (known != kTypeNames.end())
        line.takeBlank();
    BagValue value = takeValue(line, known - kTypeNames.begin());
    if (!line.atEnd())
        line.fail("something stands behind the value");
    if (!bag.add(key, std::move(value)))
        line.fail("the key stands there twice");
}

QString decoded(QByteArrayView bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        throw Error(kErrInvalidFormat, QStringLiteral("The template's text can't be read: it is not UTF-8"));
    if (text.startsWith(u'\uFEFF'))
        text.remove(0, 1);
    return text;
}

void checkFirstLine(QStringView line) {
    if (line == kFirstLine)
        return;
    throw Error(kErrInvalidFormat,
                line.startsWith(kFirstLineStart)
                    ? QStringLiteral("The template's text can't be read: it has another version's form")
                    : QStringLiteral("The text is no template: its first line isn't \"%1\"").arg(kFirstLine));
}

} // namespace

PropertyBag bagFromText(QByteArrayView bytes) {
    const QString text = decoded(bytes);
    PropertyBag bag;
    bool hasEnded = false;
    qsizetype number = 0;
    for (QStringView rest(text); !rest.isEmpty();) {
        const qsizetype end = rest.indexOf(u'\n');
        QStringView line = end < 0 ? rest : rest.first(end);
        rest = end < 0 ? QStringView() : rest.sliced(end + 1);
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (++number == 1)
            checkFirstLine(line);
        else if (hasEnded && !line.isEmpty())
            Line(line, number).fail("something stands behind the end");
        else if (line == kLastLine)
            hasEnded = true;
        else if (!line.isEmpty())
            takeEntry(Line(line, number), bag);
    }
    if (!hasEnded)
        throw Error(
            kErrInvalidFormat,
            QStringLiteral("The template's text is cut short: its last line isn't \"%1\"").arg(kLastLine));
    return bag;
}

} // namespace zkp
