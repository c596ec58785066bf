#include "ado/odbc/session/parameters.h"

#include "base/currency.h"

#include <QDateTime>

#include <algorithm>

namespace zkp::ado::odbc {

namespace {

template <class T>
QByteArray bytesOf(const T& value) {
    return QByteArray(reinterpret_cast<const char*>(&value), sizeof value);
}

QByteArray wideBytes(const QString& text) {
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * qsizetype(sizeof(SQLWCHAR)));
}

QByteArray dateBytes(const QDate& date) {
    return bytesOf(SQL_DATE_STRUCT{static_cast<SQLSMALLINT>(date.year()),
                                   static_cast<SQLUSMALLINT>(date.month()),
                                   static_cast<SQLUSMALLINT>(date.day())});
}

/// A column without fractions of a second refuses them.
QByteArray momentBytes(const QDateTime& moment, SQLSMALLINT digits) {
    const QDate date = moment.date();
    const QTime time = moment.time();
    SQL_TIMESTAMP_STRUCT value{};
    value.year = static_cast<SQLSMALLINT>(date.year());
    value.month = static_cast<SQLUSMALLINT>(date.month());
    value.day = static_cast<SQLUSMALLINT>(date.day());
    value.hour = static_cast<SQLUSMALLINT>(time.hour());
    value.minute = static_cast<SQLUSMALLINT>(time.minute());
    value.second = static_cast<SQLUSMALLINT>(time.second());
    value.fraction = digits > 0 ? static_cast<SQLUINTEGER>(time.msec()) * 1'000'000 : 0;
    return bytesOf(value);
}

/// The C type that a value goes as, and its bytes.
std::pair<SQLSMALLINT, QByteArray> transferred(const QVariant& value, const ColumnKind& kind) {
    if (value.metaType() == QMetaType::fromType<Currency>())
        return {SQL_C_CHAR, value.value<Currency>().toPlainText().toLatin1()};
    // A column of days takes no time of day, and a flag no -1.
    const bool dated = value.typeId() == QMetaType::QDateTime || value.typeId() == QMetaType::QDate;
    if (dated && kind.type == SQL_TYPE_DATE)
        return {SQL_C_TYPE_DATE, dateBytes(value.toDate())};
    if (kind.type == SQL_BIT && value.canConvert<bool>() && value.typeId() != QMetaType::QString)
        return {SQL_C_BIT, QByteArray(1, value.toBool() ? '\1' : '\0')};
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::LongLong:
        return {SQL_C_CHAR, QByteArray::number(value.toLongLong())};
    case QMetaType::Double:
    case QMetaType::Float:
        return {SQL_C_DOUBLE, bytesOf(value.toDouble())};
    case QMetaType::QDate:
        return {SQL_C_TYPE_DATE, dateBytes(value.toDate())};
    case QMetaType::QDateTime:
        return {SQL_C_TYPE_TIMESTAMP, momentBytes(value.toDateTime(), kind.digits)};
    case QMetaType::QByteArray:
        return {SQL_C_BINARY, value.toByteArray()};
    default:
        return {SQL_C_WCHAR, wideBytes(value.toString())};
    }
}

/// Room that the value needs, whatever the column's declared size is: the server tells what is too long.
SQLULEN sizeFor(const ColumnKind& kind, SQLSMALLINT cType, qsizetype bytes) {
    const qsizetype units = cType == SQL_C_WCHAR ? bytes / qsizetype(sizeof(SQLWCHAR)) : bytes;
    return std::max({kind.size, static_cast<SQLULEN>(units), SQLULEN(1)});
}

/// A type without a bound where a bounded one would be too short for some driver.
SQLSMALLINT typeFor(SQLSMALLINT type, qsizetype bytes) {
    constexpr qsizetype kBoundedBytes = 8000;
    if (bytes <= kBoundedBytes)
        return type;
    if (type == SQL_VARBINARY)
        return SQL_LONGVARBINARY;
    if (type == SQL_WVARCHAR)
        return SQL_WLONGVARCHAR;
    return type == SQL_VARCHAR ? SQL_LONGVARCHAR : type;
}

} // namespace

Parameters::Parameters(const QVariantList& values, const std::vector<ColumnKind>& kinds) {
    for (qsizetype i = 0; i < values.size(); ++i) {
        Place place;
        place.kind = kinds[static_cast<std::size_t>(i)];
        if (values[i].isValid())
            std::tie(place.cType, place.bytes) = transferred(values[i], place.kind);
        place.kind.type = typeFor(place.kind.type, place.bytes.size());
        place.kind.size = sizeFor(place.kind, place.cType, place.bytes.size());
        place.length = values[i].isValid() ? static_cast<SQLLEN>(place.bytes.size()) : SQL_NULL_DATA;
        places_.push_back(std::move(place));
    }
}

SQLRETURN Parameters::bind(SQLHSTMT statement) {
    SQLUSMALLINT number = 0;
    for (Place& place : places_) {
        const SQLRETURN code = SQLBindParameter(
            statement, ++number, SQL_PARAM_INPUT, place.cType, place.kind.type, place.kind.size,
            place.kind.digits, place.bytes.data(), static_cast<SQLLEN>(place.bytes.size()), &place.length);
        if (!SQL_SUCCEEDED(code))
            return code;
    }
    return SQL_SUCCESS;
}

} // namespace zkp::ado::odbc
