#include "widgets/grid/glyph_batch.h"

namespace zkp {

void GlyphBatch::add(const FontFace& face, const QColor& color, const ShapedText& text, QPoint at) {
    for (const QGlyphRun& run : text.runs)
        laid_.push_back({color, at, run});
    if (text.glyphs.empty())
        return;
    Run& run = runOf(face, color);
    run.glyphs.insert(run.glyphs.end(), text.glyphs.begin(), text.glyphs.end());
    qreal start = at.x();
    for (const float end : text.ends) {
        run.positions.emplace_back(start, at.y());
        start = at.x() + static_cast<qreal>(end);
    }
}

void GlyphBatch::draw(QPainter& painter) {
    for (const Run& run : runs_) {
        QGlyphRun glyphs;
        glyphs.setRawFont(run.face->raw());
        glyphs.setRawData(run.glyphs.data(), run.positions.data(), static_cast<int>(run.glyphs.size()));
        painter.setPen(run.color);
        painter.drawGlyphRun({0, 0}, glyphs);
    }
    for (const Laid& laid : laid_) {
        painter.setPen(laid.color);
        painter.drawGlyphRun(laid.at, laid.run);
    }
    runs_.clear();
    laid_.clear();
    last_ = 0;
}

GlyphBatch::Run& GlyphBatch::runOf(const FontFace& face, const QColor& color) {
    const auto fits = [&](const Run& run) { return run.face == &face && run.color == color; };
    if (last_ < runs_.size() && fits(runs_[last_]))
        return runs_[last_];
    for (last_ = 0; last_ < runs_.size(); ++last_)
        if (fits(runs_[last_]))
            return runs_[last_];
    runs_.push_back({&face, color, {}, {}});
    return runs_.back();
}

} // namespace zkp
