#include "widgets/tools/folded_text.h"

#include <array>
#include <memory>

namespace zkp {

namespace {

constexpr int kCharacters = 0x10000;
using Table = std::array<char16_t, kCharacters>;

char16_t foldedOf(QChar c) {
    if (c.category() == QChar::Mark_NonSpacing)
        return 0;
    if (c.isSurrogate())
        return c.unicode();
    if (c.category() == QChar::Separator_Space)
        return u' ';
    while (c.decompositionTag() == QChar::Canonical) {
        const QString parts = c.decomposition();
        if (parts.isEmpty() || parts.front() == c)
            break;
        c = parts.front();
    }
    return c.toUpper().unicode();
}

const Table& table() {
    static const std::unique_ptr<const Table> made = [] {
        auto all = std::make_unique<Table>();
        for (int c = 0; c < kCharacters; ++c)
            (*all)[static_cast<std::size_t>(c)] = foldedOf(QChar(static_cast<char16_t>(c)));
        return all;
    }();
    return *made;
}

void foldInto(QStringView text, QString& result) {
    const Table& to = table();
    result.resize(text.size());
    QChar* end = result.data();
    for (const QChar c : text)
        if (const char16_t plain = to[c.unicode()]; plain != 0)
            *end++ = plain;
    result.truncate(end - result.constData());
}

} // namespace

QChar folded(QChar c) {
    return table()[c.unicode()];
}

FoldedNeedle::FoldedNeedle(QStringView text) {
    foldInto(text, needle_);
}

bool FoldedNeedle::isIn(QStringView text) const {
    if (needle_.isEmpty() || text.size() < needle_.size())
        return false;
    foldInto(text, text_);
    return text_.contains(needle_);
}

} // namespace zkp
