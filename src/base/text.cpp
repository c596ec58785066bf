#include "base/text.h"

namespace zkp {

QStringView trimmed(QStringView text) {
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text[first] == u' ')
        ++first;
    while (last > first && text[last - 1] == u' ')
        --last;
    return text.sliced(first, last - first);
}

QString upper(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool pair = c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (!pair) {
            result += c.toUpper();
            continue;
        }
        const char32_t capital = QChar::toUpper(QChar::surrogateToUcs4(c, text[++i]));
        result += QChar::fromUcs4(capital);
    }
    return result;
}

QString nameKey(QStringView name) {
    return upper(trimmed(name));
}

bool sameName(QStringView a, QStringView b) {
    return nameKey(a) == nameKey(b);
}

QString mid(QStringView text, qsizetype start) {
    return start > text.size() ? QString() : text.sliced(start - 1).toString();
}

} // namespace zkp
