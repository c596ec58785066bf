#pragma once

#include <QString>

/// What the control asks and says when columns, group factors and titles change.
namespace zkp::texts {

inline QString onlyColumn() {
    return QStringLiteral("Δεν μπορώ να διαγράψω την μοναδική στήλη");
}
inline QString lastFactor() {
    return QStringLiteral("Δεν μπορώ να διαγράψω τον τελευταίο Παράγοντα");
}
/// The question mark is the Greek one's stand-in, a semicolon; so in the next.
inline QString refreshNow() {
    return QStringLiteral("Να ανανεώσω τώρα τη λίστα;");
}
inline QString moveFactors() {
    return QStringLiteral("Να αλλάξω τη σειρά των Παραγόντων;");
}
inline QString titlePrompt() {
    return QStringLiteral("Τίτλος Υποδείγματος:");
}
inline QString titleHeading() {
    return QStringLiteral("Αλλαγή Τίτλου Υποδείγματος");
}
/// A tool whose command is not built.
inline QString notThereYet(const QString& caption) {
    return QStringLiteral("Δεν υπάρχει ακόμη: ") + caption;
}

} // namespace zkp::texts
