#pragma once

#include "widgets/grid/text_cache.h"

#include <QColor>
#include <QPainter>
#include <QPointF>

#include <vector>

namespace zkp {

/// Collects the glyphs of many cells and draws those of one font and colour in one call.
class GlyphBatch {
public:
    /// A text with its left end and baseline.
    void add(const FontFace& face, const QColor& color, const ShapedText& text, QPoint at);
    void draw(QPainter& painter);

private:
    struct Run {
        const FontFace* face;
        QColor color;
        std::vector<quint32> glyphs;
        std::vector<QPointF> positions;
    };
    struct Laid {
        QColor color;
        QPoint at;
        QGlyphRun run;
    };
    Run& runOf(const FontFace& face, const QColor& color);

    std::vector<Run> runs_;
    std::vector<Laid> laid_;
    std::size_t last_ = 0;
};

} // namespace zkp
