#pragma once

#include <QString>

/// Why a file could not be opened, spelt as the office knows it.
namespace zkp::texts {

inline QString shellNoMemory() {
    return QStringLiteral("Το αρχείο δεν μπορεί να φορτωθεί λόγω έλειψης μνήμης");
}
inline QString shellNoFile() {
    return QStringLiteral("Το αρχείο δεν υπάρχει");
}
inline QString shellNoFolder() {
    return QStringLiteral("Ο Κατάλογος δεν βρέθηκε");
}
inline QString shellBadProgram() {
    return QStringLiteral("The executable file is invalid or corrupt");
}
inline QString shellNoRights() {
    return QStringLiteral("Δεν έχετε δικαιώματα πρόσβασης στον κατάλογο ή στο αρχείο");
}
inline QString shellBadAssociation() {
    return QStringLiteral("This file type does not have a valid file association.");
}
inline QString shellBusy() {
    return QStringLiteral("The file could not be opened because the target application is busy. "
                          "Please try again in a moment.");
}
inline QString shellDdeFailed() {
    return QStringLiteral("The file could not be opened because the DDE transaction failed. "
                          "Please try again in a moment.");
}
inline QString shellTimeout() {
    return QStringLiteral("The file could not be opened due to time out. Please try again in a moment.");
}
inline QString shellNoLibrary() {
    return QStringLiteral("The specified dynamic-link library was not found.");
}
inline QString shellNoProgram() {
    return QStringLiteral("Το αρχείο δεν έχει συνδεδεμένη εφαρμογή");
}
inline QString shellInUse() {
    return QStringLiteral("Το αρχείο χρησιμοποιείτε ήδη απο άλη εφαρμογή");
}
/// "occurred" stands twice, as wanted.
inline QString shellFailed() {
    return QStringLiteral("An error occurred occurred whilst trying to open or print the selected file.");
}

} // namespace zkp::texts
