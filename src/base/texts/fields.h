#pragma once

#include <QString>

/// What the user reads in the lists of fields and as the headings of computed columns.
namespace zkp::texts {

// Computed columns of loss-ratio reports.
inline QString lossRatio() {
    return QStringLiteral("Παραγωγή/Ζημιές (Loss Ratio)");
}
inline QString lossRatioInverse() {
    return QStringLiteral("Ζημιές/Παραγωγή (Loss Ratio)");
}
inline QString lossRatioDifference() {
    return QStringLiteral("Παραγωγή-Ζημιές");
}
/// The closing bracket has no opening one, as wanted.
inline QString lossRatioShare() {
    return QStringLiteral("Ζημιές%Παραγωγής)");
}

// The columns that the user may pick: the count, and what follows a field's caption for each aggregate.
inline QString countCaption() {
    return QStringLiteral("Αριθμός");
}
inline QString sumSuffix() {
    return QStringLiteral(" (Αθροισμα)");
}
inline QString averageSuffix() {
    return QStringLiteral(" (Μέσος Ορος)");
}
inline QString minimumSuffix() {
    return QStringLiteral(" (Minimum)");
}
inline QString maximumSuffix() {
    return QStringLiteral(" (Maximum)");
}
inline QString shareSuffix() {
    return QStringLiteral(" (Ποσ %)");
}

} // namespace zkp::texts
