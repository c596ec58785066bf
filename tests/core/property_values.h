#pragma once

#include "ado/recordset.h"
#include "bag/property_value.h"
#include "base/currency.h"

#include <QLocale>
#include <QVariant>

/// A value other than the given one, of the same type.
template <class Type>
Type another(const Type& value) {
    return static_cast<Type>(value + 1);
}
template <>
inline bool another(const bool& value) {
    return !value;
}
template <>
inline QString another(const QString& value) {
    return value + QStringLiteral("ξ");
}
template <>
inline zkp::Color another(const zkp::Color& value) {
    return value ^ 0x00010203u;
}
template <>
inline zkp::Currency another(const zkp::Currency& value) {
    return {value.scaled + 5};
}
template <>
inline QVariant another(const QVariant& value) {
    return value.toString() + QStringLiteral("ξ");
}
template <>
inline QLocale another(const QLocale& value) {
    const QLocale german(QStringLiteral("de_DE"));
    return value == german ? QLocale(QStringLiteral("en_US")) : german;
}
template <>
inline zkp::BagFont another(const zkp::BagFont& value) {
    return {value.name + u'x', value.size + 1,   !value.bold,
            !value.italic,     !value.underline, !value.strikethru};
}
template <>
inline zkp::ado::ConnectionPtr another(const zkp::ado::ConnectionPtr&) {
    return std::make_shared<zkp::ado::Connection>();
}
template <>
inline zkp::ado::RecordsetPtr another(const zkp::ado::RecordsetPtr&) {
    return std::make_shared<zkp::ado::Recordset>();
}
