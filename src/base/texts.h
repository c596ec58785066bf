#pragma once

#include <QString>

/// Every text that a user can see, once, exactly as the office knows it.
namespace zkp::texts {

inline QString errorTitle() { return QStringLiteral("QRN Insurance"); }
inline QString errorPrefix() { return QStringLiteral("Παρουσιάστικε Εξαίρεση : "); }
/// The first letter is a Latin H, as wanted.
inline QString columnExists() {
    return QStringLiteral("H στήλη που επιλέξατε υπάρχει ήδη στη λίστα ή δεν είναι εγκυρη.");
}
inline QString readFailed() { return QStringLiteral("Σφάλμα κατά την ανάγνωση Data στο ZKP_GRID"); }
/// What a column's heading becomes when the statement has no such field: "#" caption and this.
inline QString missingFieldSuffix() { return QStringLiteral("# (Λάθος)"); }

inline QString connectionNotSet() { return QStringLiteral("The Property Cn Hasn't Been set!"); }
inline QString recordSourceNotSet() { return QStringLiteral("The Property RecordSource Hasn't Been set!"); }
inline QString commandNotSet() {
    return QStringLiteral("The Property RecordSource As ADODB.Command Hasn't Been set!");
}
inline QString hitBottom() { return QStringLiteral("HitBottom"); }

// Statement builders.
inline QString fieldItemFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το Field SQL Statement (makefldSql)");
}
inline QString masterTableFailed() { return QStringLiteral("Δεν μπορώ το βρώ το Master Table (FindMaster)"); }
inline QString fromFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το FROM SQL Statement (MakeFromAndJoins)");
}
inline QString joinFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω τα JOIN του SQL Statement (FindJoinON)");
}
inline QString filterFailed() { return QStringLiteral("Δεν μπορώ να μεταφράσω το Φίλτρο σε SQL"); }
inline QString runTimeFailed() {
    return QStringLiteral("Δεν μπορώ να Δημιουργήσω το Run Time SQL Statement (RunTimeSQL)");
}
inline QString counterFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το SQL Statement για τον Counter (RunTimeSQLCounter)");
}
inline QString normalFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το SQL Statement (NormalSQL)");
}
inline QString statisticsFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το Run Time SQL Statement (RunTimeStatsSQL)");
}
inline QString percentagesFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το SQL Statement για τα ποσοστά (RunTimePosSql)");
}

} // namespace zkp::texts
