#pragma once

#include "surface/style.h"

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QString>

#include <memory>
#include <vector>

namespace zkp {

/// A text made ready to be drawn: its glyphs, each with the place where it ends.
struct ShapedText {
    /// Texts of simple scripts, from one font: glyph i begins where glyph i - 1 ends.
    std::vector<quint32> glyphs;
    std::vector<float> ends;
    /// All other texts, as the layout made them.
    QList<QGlyphRun> runs;
    float width = 0;
};

/// One font as cells use it, with the texts shaped in it. What it keeps is bounded.
class FontFace {
public:
    explicit FontFace(const CellStyle& style);

    const QFont& font() const { return font_; }
    const QRawFont& raw() const { return raw_; }
    int ascent() const { return ascent_; }
    int height() const { return height_; }
    int lineWidth() const { return lineWidth_; }
    int underline() const { return underline_; } ///< pixels below the baseline
    int strikeOut() const { return strikeOut_; } ///< pixels above it

    /// The text's glyphs; the reference is valid until the next call.
    const ShapedText& shape(const QString& text);
    /// The beginning of the text that fits, with an ellipsis behind it.
    const ShapedText& shapeElided(const QString& text, int width);
    /// Texts kept at the moment.
    qsizetype kept() const { return texts_.size(); }

private:
    ShapedText shapeNow(const QString& text) const;
    bool shapeSimple(const QString& text, ShapedText& shaped) const;

    QFont font_;
    QRawFont raw_;
    int ascent_ = 0;
    int height_ = 0;
    int lineWidth_ = 1;
    int underline_ = 1;
    int strikeOut_ = 3;
    ShapedText ellipsis_;
    ShapedText elided_;
    QHash<QString, ShapedText> texts_;
};

/// The fonts in use, by the styles of cells.
class TextCache {
public:
    /// Valid until trim().
    FontFace& face(const CellStyle& style);
    /// Between two paints: forgets everything once there are too many fonts.
    void trim();

private:
    struct Entry {
        CellStyle style;
        std::unique_ptr<FontFace> face;
    };
    std::vector<Entry> faces_;
};

} // namespace zkp
