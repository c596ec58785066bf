#include "widgets/tools/fetch_figures.h"

#include "base/texts/tools.h"

#include <QLocale>

namespace zkp {

namespace {

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

} // namespace zkp
