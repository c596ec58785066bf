#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace zkp {

/// The locale of one control: the signs of its numbers and the form of its dates.
class ReportLocale {
public:
    explicit ReportLocale(const QLocale& locale = QLocale());

    const QLocale& locale() const { return locale_; }
    QStringView decimalSign() const { return decimalSign_; }
    QStringView groupSign() const { return groupSign_; }

    /// The locale's short date with a four-digit year, and H:mm:ss behind it when not midnight.
    QString dateText(const QDateTime& moment) const;
    /// Up to 15 significant digits, the locale's decimal sign, no grouping.
    QString doubleText(double value) const;

private:
    QLocale locale_;
    QString decimalSign_;
    QString groupSign_;
    QString dateFormat_;
};

} // namespace zkp
