#include "widgets/tools/load_progress.h"

#include "base/texts/tools.h"

#include <QLocale>
#include <QTimer>

namespace zkp {

namespace {

constexpr std::int64_t kMsBetweenPaints = 100;

QString greek(std::int64_t number) {
    return QLocale(QLocale::Greek, QLocale::Greece).toString(static_cast<qlonglong>(number));
}

} // namespace

void FetchFigures::note(std::int64_t rows, std::int64_t milliseconds) {
    if (rows <= rows_ || rows_ == 0) {
        firstRows_ = rows;
        firstMs_ = milliseconds;
    }
    rows_ = rows;
    ms_ = milliseconds;
}

std::int64_t FetchFigures::rate() const {
    return ms_ == firstMs_ ? 0 : (rows_ - firstRows_) * 1000 / (ms_ - firstMs_);
}

QString FetchFigures::text() const {
    return rate() == 0 ? texts::rowsRead(greek(rows_)) : texts::rowsReadAtRate(greek(rows_), greek(rate()));
}

LoadProgress::LoadProgress(QLabel& label)
    : label_(&label)
    , lastShown_(-kMsBetweenPaints) {
    timer_.start();
}

void LoadProgress::begin() {
    figures_ = {};
    show(texts::loadBegins());
}

void LoadProgress::note(std::int64_t rows) {
    const std::int64_t now = timer_.elapsed();
    figures_.note(rows, now);
    if (now - lastShown_ < kMsBetweenPaints)
        return;
    lastShown_ = now;
    show(figures_.text());
}

void LoadProgress::layOut(std::int64_t rows) {
    if (figures_.rows() > 0)
        show(texts::layingOut(greek(rows)));
}

void LoadProgress::end() {
    figures_ = {};
    if (label_)
        label_->clear();
}

/// Once events come in again the load has ended, in whatever way.
void LoadProgress::show(const QString& text) {
    if (!label_)
        return;
    if (label_->text().isEmpty())
        QTimer::singleShot(0, label_, &QLabel::clear);
    label_->setText(text);
    label_->repaint();
}

} // namespace zkp
