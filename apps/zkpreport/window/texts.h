#pragma once

#include <QString>
#include <QStringList>

/// Every text of the program's window, once.
namespace zkp::app::texts {

// The window.
inline QString reports() {
    return QStringLiteral("Αναφορές");
}
inline QString userLabel() {
    return QStringLiteral("&Χρήστης");
}
inline QString filterLabel() {
    return QStringLiteral("&Φίλτρο");
}
inline QString filterHint() {
    return QStringLiteral("Κλειδιά λεξικού – το Enter εφαρμόζει");
}
inline QString filterTip(const QString& keys) {
    return QStringLiteral("<p style='white-space:pre'>Κλειδιά της αναφοράς:\n%1</p>").arg(keys);
}
inline QString statementToggle() {
    return QStringLiteral("SQL");
}
inline QString statementToggleTip() {
    return QStringLiteral("Η εντολή προς τη βάση (Ctrl+Shift+S)");
}
/// From the particular to the general; what is empty is left out.
inline QString windowTitle(const QString& templateName, const QString& report, const QString& database) {
    QStringList parts{templateName, report, database};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" – "));
}

// The shape of a report.
inline QString groupsLabel() {
    return QStringLiteral("&Ομάδες");
}
inline QString groupName(int place) {
    return QStringLiteral("Ομάδα %1").arg(place);
}
inline QString noGroup() {
    return QStringLiteral("(καμία)");
}
inline QString totalsLabel() {
    return QStringLiteral("&Σύνολα");
}
inline QString totalsTip() {
    return QStringLiteral("Μία γραμμή για κάθε ομάδα αντί για κάθε εγγραφή");
}
inline QString noSuchGroup(const QString& keys) {
    return QStringLiteral("Η αναφορά δεν ομαδοποιείται κατά %1.").arg(keys);
}
inline QString sortAction() {
    return QStringLiteral("Ταξινόμηση");
}
inline QString sortTip() {
    return QStringLiteral(
        "Κατά την τρέχουσα στήλη, όπως το κλικ στην επικεφαλίδα· πάλι, αντίστροφα (Ctrl+Shift+T)");
}
inline QString totalsKeepOrder() {
    return QStringLiteral("Οι γραμμές συνόλων μένουν στη σειρά των ομάδων τους.");
}
inline QString sortedHeading(const QString& caption, bool isDescending) {
    return caption + (isDescending ? QStringLiteral(" ▼") : QStringLiteral(" ▲"));
}

// Templates.
inline QString templates() {
    return QStringLiteral("Υ&ποδείγματα");
}
inline QString templatesTip() {
    return QStringLiteral("Το Enter ή το διπλό κλικ ανοίγει το υπόδειγμα");
}
inline QString templateTip(const QString& name, const QString& report) {
    const QString what = report.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, report);
    return what + u'\n' + templatesTip();
}
inline QString saveTemplate() {
    return QStringLiteral("Καταχώρηση");
}
inline QString saveTemplateTip() {
    return QStringLiteral("Η μορφή της αναφοράς με το όνομά της (Ctrl+S)");
}
inline QString saveTemplateAs() {
    return QStringLiteral("Καταχώρηση σαν…");
}
inline QString saveTemplateAsTip() {
    return QStringLiteral("Η μορφή της αναφοράς με νέο όνομα (F12)");
}
inline QString templateBoxTitle() {
    return QStringLiteral("Υποδείγματα");
}
inline QString templateNamePrompt() {
    return QStringLiteral("Όνομα υποδείγματος:");
}
inline QString replaceTemplate(const QString& name) {
    return QStringLiteral("Υπάρχει ήδη υπόδειγμα «%1». Να αντικατασταθεί;").arg(name);
}
inline QString keepChanges() {
    return QStringLiteral("Να καταχωρηθούν οι αλλαγές;");
}
inline QString quoteInName() {
    return QStringLiteral("Το όνομα δεν μπορεί να έχει απόστροφο (').");
}
inline QString templateSaved(const QString& name) {
    return QStringLiteral("Το υπόδειγμα «%1» καταχωρήθηκε.").arg(name);
}
inline QString templateNotSaved(const QString& name) {
    return QStringLiteral("Το υπόδειγμα «%1» δεν καταχωρήθηκε.").arg(name);
}
inline QString templateNotOpened(const QString& name) {
    return QStringLiteral("Το υπόδειγμα «%1» δεν άνοιξε.").arg(name);
}
inline QString templateGone() {
    return QStringLiteral("Δεν υπάρχει πια στη βάση.");
}
inline QString templateOfNoReport(const QString& dictionary) {
    return QStringLiteral("Καμία αναφορά της βάσης δεν έχει το λεξικό του (%1).").arg(dictionary.trimmed());
}
inline QString templateDenied(const QString& fields) {
    return QStringLiteral("Έχει πεδία που ο χρήστης δεν βλέπει: %1.").arg(fields);
}
inline QString templateLeft(const QString& name) {
    return QStringLiteral("Το υπόδειγμα «%1» έχει πεδία που ο χρήστης δεν βλέπει και έκλεισε.").arg(name);
}
inline QString templateFilterRefused(const QString& filter, const QString& reason) {
    return QStringLiteral("Το φίλτρο του δεν γίνεται δεκτό: %1\n%2").arg(filter, reason);
}
inline QString numberedTemplate() {
    return QStringLiteral(
        "Όνομα με αριθμό από τον πέμπτο χαρακτήρα και μετά είναι θέση του πίνακα frms, που πρέπει να "
        "υπάρχει ήδη. Δώστε άλλο όνομα.");
}
inline QString nothingToSave() {
    return QStringLiteral("Δεν υπάρχει αναφορά για να καταχωρηθεί η μορφή της.");
}

// Headings of a totals report.
inline QString countHeading() {
    return QStringLiteral("Πλήθος");
}
inline QString shareHeading() {
    return QStringLiteral("%");
}
inline QString averageHeading() {
    return QStringLiteral("Μέσος Όρος");
}
inline QString minimumHeading() {
    return QStringLiteral("Ελάχιστο");
}
inline QString maximumHeading() {
    return QStringLiteral("Μέγιστο");
}

// The menu.
inline QString editMenu() {
    return QStringLiteral("&Επεξεργασία");
}

// Messages in place of a report.
inline QString noFile(const QString& file) {
    return QStringLiteral("Το αρχείο %1 δεν υπάρχει.").arg(file);
}
inline QString fileGone(const QString& file) {
    return QStringLiteral("Το αρχείο %1 δεν υπάρχει πια.").arg(file);
}
inline QString fileNotReadable(const QString& file) {
    return QStringLiteral("Το αρχείο %1 δεν διαβάζεται.").arg(file);
}
inline QString noDatabase(const QString& file) {
    return QStringLiteral("Το αρχείο %1 δεν είναι βάση δεδομένων SQLite.").arg(file);
}
inline QString notOpened(const QString& database, const QString& reason) {
    return QStringLiteral("Η βάση %1 δεν ανοίγει: %2").arg(database, reason);
}
inline QString noReportsTable() {
    return QStringLiteral("Η βάση δεν έχει πίνακα Reports, άρα ούτε αναφορές.");
}
inline QString noReports() {
    return QStringLiteral("Ο πίνακας Reports της βάσης είναι κενός.");
}
inline QString noSuchReport(const QString& name) {
    return QStringLiteral("Η βάση δεν έχει αναφορά %1.").arg(name);
}
inline QString noSuchUser(const QString& id) {
    return QStringLiteral("Η βάση δεν έχει χρήστη %1.").arg(id);
}
inline QString noDictionary(const QString& report) {
    return QStringLiteral("Η αναφορά %1 δεν έχει λεξικό με πεδία που να φαίνονται.").arg(report);
}
inline QString badIdentity(const QString& id) {
    return QStringLiteral("Ο κωδικός χρήστη %1 έχει απόστροφο και δεν γίνεται δεκτός.").arg(id);
}
inline QString loadFailed() {
    return QStringLiteral("Η αναφορά δεν φορτώθηκε.");
}

// Users and their rights.
inline QString allRows() {
    return QStringLiteral("Όλες οι γραμμές");
}
inline QString userEntry(const QString& name, const QString& id) {
    return name.isEmpty() ? id : QStringLiteral("%1 (%2)").arg(name, id);
}
inline QString ownRows(const QString& level) {
    return QStringLiteral("Επίπεδο %1: μόνο οι δικές του").arg(level);
}
inline QString ownRowsAndAgency(const QString& id) {
    return QStringLiteral("Επίπεδο 1: οι δικές του και του πρακτορείου %1").arg(id);
}
inline QString ownRowsAndAssistant(const QString& id) {
    return QStringLiteral("Επίπεδο 2: οι δικές του και του βοηθού διευθυντή %1").arg(id);
}
inline QString ownRowsAndUnit(const QString& id) {
    return QStringLiteral("Επίπεδο 3: οι δικές του και της μονάδας %1").arg(id);
}
inline QString ownRowsAndManager(const QString& id) {
    return QStringLiteral("Επίπεδο 4: οι δικές του και του διευθυντή %1").arg(id);
}
inline QString noCondition(const QString& level) {
    return QStringLiteral("Επίπεδο %1: κανένας περιορισμός, όλες οι γραμμές").arg(level);
}

// The statement.
inline QString statementBuilt() {
    return QStringLiteral("Όπως συντάχθηκε");
}
inline QString statementSent() {
    return QStringLiteral("Όπως στάλθηκε στη βάση");
}
inline QString loadFigures(const QString& records, const QString& statementMs, const QString& wholeMs) {
    return QStringLiteral("%1 εγγραφές · εντολή %2 ms · φόρτωση %3 ms").arg(records, statementMs, wholeMs);
}

} // namespace zkp::app::texts
