#pragma once

#include <QString>

/// What goes wrong with a report, exactly as the office knows it.
namespace zkp::texts {

inline QString errorTitle() {
    return QStringLiteral("QRN Insurance");
}
inline QString errorPrefix() {
    return QStringLiteral("Παρουσιάστικε Εξαίρεση : ");
}
/// The first letter is a Latin H, as wanted.
inline QString columnExists() {
    return QStringLiteral("H στήλη που επιλέξατε υπάρχει ήδη στη λίστα ή δεν είναι εγκυρη.");
}
inline QString readFailed() {
    return QStringLiteral("Σφάλμα κατά την ανάγνωση Data στο ZKP_GRID");
}
inline QString subtotalsFailed() {
    return QStringLiteral("Δεν μπορώ να υπολογίσω τα υποσύνολα");
}
/// The blank at its end is wanted.
inline QString percentFailed() {
    return QStringLiteral("Δεν μπορώ να υπολογίσω το ποσοστό ");
}
inline QString connectionNotSet() {
    return QStringLiteral("The Property Cn Hasn't Been set!");
}
inline QString recordSourceNotSet() {
    return QStringLiteral("The Property RecordSource Hasn't Been set!");
}
inline QString commandNotSet() {
    return QStringLiteral("The Property RecordSource As ADODB.Command Hasn't Been set!");
}
/// The blank in front is wanted.
inline QString templateFileMissing(const QString& path) {
    return QStringLiteral(" To αρχείο <<<") + path + QStringLiteral(">>> Δεν υπάρχει");
}

} // namespace zkp::texts
