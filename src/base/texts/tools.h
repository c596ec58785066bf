#pragma once

#include <QString>

/// The texts of the tools beside a report, once.
namespace zkp::texts {

// Undoing.
inline QString undoAction() {
    return QStringLiteral("Α&ναίρεση");
}
inline QString redoAction() {
    return QStringLiteral("&Επανάληψη");
}
/// A step beside the command that takes it back or makes it again; empty for none.
inline QString ofStep(const QString& command, const QString& step) {
    return step.isEmpty() ? command : QStringLiteral("%1: %2").arg(command, step);
}
inline QString stepAdd() {
    return QStringLiteral("νέα στήλη");
}
inline QString stepDelete() {
    return QStringLiteral("διαγραφή στήλης");
}
inline QString stepMove() {
    return QStringLiteral("μετακίνηση στήλης");
}
inline QString stepField() {
    return QStringLiteral("πεδίο στήλης");
}
inline QString stepCaption() {
    return QStringLiteral("τίτλος στήλης");
}
inline QString stepWidth() {
    return QStringLiteral("πλάτος στήλης");
}
inline QString stepAlignment() {
    return QStringLiteral("στοίχιση στήλης");
}
inline QString stepRows() {
    return QStringLiteral("σειρά και ομάδες");
}
inline QString stepLook() {
    return QStringLiteral("εμφάνιση");
}

// Copying and finding.
inline QString copyAction() {
    return QStringLiteral("Αντι&γραφή με επικεφαλίδες");
}
inline QString findAction() {
    return QStringLiteral("Εύ&ρεση…");
}
inline QString findNextAction() {
    return QStringLiteral("Επόμενο αποτέ&λεσμα");
}
inline QString findPreviousAction() {
    return QStringLiteral("&Προηγούμενο αποτέλεσμα");
}
inline QString findLabel() {
    return QStringLiteral("Εύρεση");
}
inline QString findHint() {
    return QStringLiteral("Κείμενο κελιού, πεζά ή κεφαλαία, με ή χωρίς τόνους");
}
inline QString findCloseTip() {
    return QStringLiteral("Κλείσιμο (Esc)");
}
inline QString findRunning(int percent) {
    return QStringLiteral("Αναζήτηση… %1%").arg(percent);
}
inline QString findNothing() {
    return QStringLiteral("Δεν βρέθηκε");
}
inline QString findFromTop() {
    return QStringLiteral("Συνέχεια από την αρχή");
}
inline QString findFromEnd() {
    return QStringLiteral("Συνέχεια από το τέλος");
}

// Sums of the selection.
inline QString sums(const QString& sum, const QString& count, const QString& average) {
    return QStringLiteral("Άθροισμα %1   Πλήθος %2   Μέσος όρος %3").arg(sum, count, average);
}
inline QString withoutSummaries(const QString& sums) {
    return sums + QStringLiteral("   (χωρίς υποσύνολα)");
}
inline QString countOfCells(const QString& numbers, const QString& cells) {
    return QStringLiteral("%1 από %2 κελιά").arg(numbers, cells);
}
inline QString summing(int percent) {
    return QStringLiteral("Άθροισμα… %1%").arg(percent);
}

// A load that goes on.
inline QString loadBegins() {
    return QStringLiteral("Η βάση εκτελεί την εντολή…");
}
inline QString rowsRead(const QString& rows) {
    return QStringLiteral("Διαβάστηκαν %1 γραμμές").arg(rows);
}
inline QString rowsReadAtRate(const QString& rows, const QString& perSecond) {
    return QStringLiteral("Διαβάστηκαν %1 γραμμές, %2 το δευτερόλεπτο").arg(rows, perSecond);
}
inline QString layingOut(const QString& rows) {
    return QStringLiteral("Τοποθετούνται %1 γραμμές").arg(rows);
}

} // namespace zkp::texts
