#include "widgets/grid/text_cache.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace zkp {

namespace {

constexpr qsizetype kTextsKept = 8192; // a few pages of different texts
constexpr std::size_t kFacesKept = 32;
const QChar kEllipsis(0x2026);

/// Scripts whose characters stand one behind the other, each with a glyph of its own: Latin, Greek,
/// Cyrillic, punctuation and currency signs. Everything else goes through the layout.
bool isSimple(QChar c) {
    const char16_t u = c.unicode();
    return (u >= 0x20 && u < 0x7F) || (u >= 0xA0 && u < 0x250 && u != 0xAD) || (u >= 0x370 && u < 0x483) ||
           (u >= 0x48A && u < 0x530) || (u >= 0x1F00 && u < 0x2000) || (u >= 0x2010 && u < 0x2028) ||
           (u >= 0x2030 && u < 0x205F) || (u >= 0x20A0 && u < 0x20D0);
}

bool sameFont(const CellStyle& a, const CellStyle& b) {
    return a.fontSize == b.fontSize && a.bold == b.bold && a.italic == b.italic && a.fontName == b.fontName;
}

} // namespace

FontFace::FontFace(const CellStyle& style)
    : font_(style.fontName) {
    font_.setPointSizeF(style.fontSize > 0 ? style.fontSize : CellStyle().fontSize);
    font_.setBold(style.bold);
    font_.setItalic(style.italic);
    raw_ = QRawFont::fromFont(font_);
    const QFontMetricsF metrics(font_);
    ascent_ = static_cast<int>(std::ceil(metrics.ascent()));
    height_ = ascent_ + static_cast<int>(std::ceil(metrics.descent()));
    lineWidth_ = std::max(1, static_cast<int>(std::lround(metrics.lineWidth())));
    underline_ = std::max(1, static_cast<int>(std::lround(metrics.underlinePos())));
    strikeOut_ = std::max(1, static_cast<int>(std::lround(metrics.strikeOutPos())));
    ellipsis_ = shapeNow(kEllipsis);
}

const ShapedText& FontFace::shape(const QString& text) {
    const auto found = texts_.constFind(text);
    if (found != texts_.constEnd())
        return *found;
    if (texts_.size() >= kTextsKept)
        texts_.clear();
    return *texts_.insert(text, shapeNow(text));
}

const ShapedText& FontFace::shapeElided(const QString& text, int width) {
    const ShapedText& whole = shape(text);
    const float room = static_cast<float>(width) - ellipsis_.width;
    if (whole.glyphs.empty() || ellipsis_.glyphs.empty()) {
        const QString cut = QFontMetricsF(font_).elidedText(text, Qt::ElideRight, width);
        elided_ = shapeNow(cut);
        return elided_;
    }
    const auto keep = std::upper_bound(whole.ends.begin(), whole.ends.end(), room) - whole.ends.begin();
    elided_.runs.clear();
    elided_.glyphs.assign(whole.glyphs.begin(), whole.glyphs.begin() + keep);
    elided_.ends.assign(whole.ends.begin(), whole.ends.begin() + keep);
    const float start = keep > 0 ? elided_.ends.back() : 0;
    elided_.glyphs.insert(elided_.glyphs.end(), ellipsis_.glyphs.begin(), ellipsis_.glyphs.end());
    for (const float end : ellipsis_.ends)
        elided_.ends.push_back(start + end);
    elided_.width = start + ellipsis_.width;
    return elided_;
}

ShapedText FontFace::shapeNow(const QString& text) const {
    ShapedText shaped;
    if (text.isEmpty() || shapeSimple(text, shaped))
        return shaped;
    QTextLayout layout(text, font_);
    layout.setCacheEnabled(true);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1e7);
    line.setPosition({0, -line.ascent()}); // so that the runs stand on the baseline
    layout.endLayout();
    shaped.runs = layout.glyphRuns();
    shaped.width = static_cast<float>(line.naturalTextWidth());
    return shaped;
}

/// False when the font lacks a glyph or a character needs more than one after the other.
bool FontFace::shapeSimple(const QString& text, ShapedText& shaped) const {
    if (!raw_.isValid() || !std::all_of(text.begin(), text.end(), isSimple))
        return false;
    int count = static_cast<int>(text.size());
    std::vector<quint32> glyphs(static_cast<std::size_t>(count));
    if (!raw_.glyphIndexesForChars(text.constData(), count, glyphs.data(), &count))
        return false;
    glyphs.resize(static_cast<std::size_t>(count));
    if (std::find(glyphs.begin(), glyphs.end(), 0u) != glyphs.end())
        return false;
    std::vector<QPointF> advances(glyphs.size());
    if (!raw_.advancesForGlyphIndexes(glyphs.data(), advances.data(), count, QRawFont::KernedAdvances))
        return false;
    shaped.ends.reserve(glyphs.size());
    float end = 0;
    for (const QPointF& advance : advances)
        shaped.ends.push_back(end += static_cast<float>(advance.x()));
    shaped.glyphs = std::move(glyphs);
    shaped.width = end;
    return true;
}

FontFace& TextCache::face(const CellStyle& style) {
    for (Entry& entry : faces_)
        if (sameFont(entry.style, style))
            return *entry.face;
    faces_.push_back({style, std::make_unique<FontFace>(style)});
    return *faces_.back().face;
}

void TextCache::trim() {
    if (faces_.size() > kFacesKept)
        faces_.clear();
}

} // namespace zkp
