#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace zkp {

/// The number at the front of a text: leading blanks, one sign, digits, one point; it ends at the first
/// character that can't continue it (a blank or an exponent too). 0 when there are no digits.
double leadingNumber(QStringView text);

/// A text that is a number and nothing else, blanks around it apart, half to even. Error kErrTypeMismatch
/// for any other text, kErrOverflow outside 16 bits. The point is the decimal sign in every locale.
std::int16_t strictInt16(QStringView text);

/// Where a template lies in the database: the row of `frms` with a number, or that of `frms2` with a name.
struct TemplatePlace {
    std::optional<std::int16_t> number;
    QString name;

    bool operator==(const TemplatePlace&) const = default;
};

/// The characters from the fifth on decide: above 0 they are a number of `frms`. The two rules differ, as
/// wanted: opening rounds a leading number first ("ABCD0.4" is a name of `frms2`, "ABCD12.Zkp" number 12);
/// saving compares first and then wants the number to stand alone ("ABCD0.4" is number 0, "ABCD12.Zkp"
/// Error kErrTypeMismatch). Beyond 16 bits is Error kErrOverflow.
TemplatePlace placeToOpen(const QString& name);
TemplatePlace placeToSave(const QString& name);

} // namespace zkp
