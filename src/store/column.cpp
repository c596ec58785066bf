#include "store/column.h"

namespace zkp::store {

QVariant Column::value(std::size_t row) const {
    switch (kind(row)) {
    case ValueKind::Null:
        return {};
    case ValueKind::Boolean:
        return integer(row) != 0;
    case ValueKind::Integer:
        return QVariant::fromValue<qlonglong>(integer(row));
    case ValueKind::Amount:
        return QVariant::fromValue(amount(row));
    case ValueKind::Double:
        return real(row);
    case ValueKind::Date:
        return dateFromMilliseconds(milliseconds(row));
    case ValueKind::Text: {
        const std::string_view text = bytes(row);
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
    case ValueKind::Binary: {
        const std::string_view data = bytes(row);
        return QByteArray(data.data(), static_cast<qsizetype>(data.size()));
    }
    }
    return {};
}

// The moments have no time zone: they are kept as if they were UTC and handed out as local
// times with the same clock face.
QDateTime dateFromMilliseconds(std::int64_t milliseconds) {
    const QDateTime utc = QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
    return QDateTime(utc.date(), utc.time());
}

std::int64_t millisecondsFromDate(const QDateTime& moment) {
    return QDateTime(moment.date(), moment.time(), Qt::UTC).toMSecsSinceEpoch();
}

} // namespace zkp::store
