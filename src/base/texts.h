#pragma once

#include <QString>

/// Every text that a user can see, once, exactly as the office knows it.
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
/// What a column's heading becomes when the statement has no such field: "#" caption and this.
inline QString missingFieldSuffix() {
    return QStringLiteral("# (Λάθος)");
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
/// Stands in the group factor cells of detail rows that have no text of their own.
inline QString repeatedValue() {
    return QStringLiteral("----");
}
inline QString hitBottom() {
    return QStringLiteral("HitBottom");
}

/// The blank in front is wanted.
inline QString templateFileMissing(const QString& path) {
    return QStringLiteral(" To αρχείο <<<") + path + QStringLiteral(">>> Δεν υπάρχει");
}

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

// Statement builders.
inline QString fieldItemFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το Field SQL Statement (makefldSql)");
}
inline QString masterTableFailed() {
    return QStringLiteral("Δεν μπορώ το βρώ το Master Table (FindMaster)");
}
inline QString fromFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το FROM SQL Statement (MakeFromAndJoins)");
}
inline QString joinFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω τα JOIN του SQL Statement (FindJoinON)");
}
inline QString filterFailed() {
    return QStringLiteral("Δεν μπορώ να μεταφράσω το Φίλτρο σε SQL");
}
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

// The shell's failures, spelt as the office knows them.
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

// The menus.
inline QString menuTemplate() {
    return QStringLiteral("Υπόδειγμα");
}
inline QString menuRefresh() {
    return QStringLiteral("Ανανέωση");
}
inline QString menuPrint() {
    return QStringLiteral("Εκτύπωση");
}
inline QString menuSpreadsheet() {
    return QStringLiteral("Export");
}
inline QString menuExport() {
    return QStringLiteral("Εξαγωγή");
}
inline QString menuGraph() {
    return QStringLiteral("Γράφημα");
}
inline QString menuFormat() {
    return QStringLiteral("Μορφοποίηση");
}
inline QString menuColumn() {
    return QStringLiteral("Στήλη");
}
inline QString menuAddColumn() {
    return QStringLiteral("Πρόσθεση Στήλης");
}
inline QString menuInsertColumn() {
    return QStringLiteral("Παρεμβολή Στήλης");
}
inline QString menuAddGroup() {
    return QStringLiteral("Πρόσθεση Παράγοντα Ομαδοποίησης");
}
inline QString menuInsertGroup() {
    return QStringLiteral("Παρεμβολή Παράγοντα Ομαδοποίησης");
}
inline QString menuDelColumn() {
    return QStringLiteral("Διαγραφή Στήλης");
}
inline QString menuColumnProperties() {
    return QStringLiteral("Ιδιότητες Στήλης");
}
inline QString menuField() {
    return QStringLiteral("Πεδίο");
}
inline QString menuCaption() {
    return QStringLiteral("Επικεφαλίδα");
}
inline QString menuAlignLeft() {
    return QStringLiteral("Στοίχιση Αριστερά");
}
inline QString menuAlignCenter() {
    return QStringLiteral("Στοίχιση στο κέντρο");
}
inline QString menuAlignRight() {
    return QStringLiteral("Στοίχιση Δεξιά");
}
inline QString menuSort() {
    return QStringLiteral("Ταξινόμηση");
}
inline QString menuSortAsc() {
    return QStringLiteral("Αύξουσα Ταξινόμηση");
}
inline QString menuSortDesc() {
    return QStringLiteral("Φθίνουσα Ταξινόμηση");
}
inline QString menuSaveTemplate() {
    return QStringLiteral("Καταχώρηση Υποδείγματος");
}
inline QString menuSaveTemplateAs() {
    return QStringLiteral("Καταχώρηση Υποδείγματος σάν");
}
inline QString menuTitle() {
    return QStringLiteral("Αλλαγή Τίτλου");
}
inline QString menuBackColor() {
    return QStringLiteral("Χρώμα Φόντου");
}
inline QString menuForeColor() {
    return QStringLiteral("Χρώμα Γραμμάτων");
}
inline QString menuFonts() {
    return QStringLiteral("Γραμματοσειρές");
}
inline QString menuGraphProperties() {
    return QStringLiteral("Ιδιότητες");
}
inline QString menuPrintGraph() {
    return QStringLiteral("Εκτύπωση Γραφήματος");
}
inline QString menuBarGraph() {
    return QStringLiteral("Γράφημα Στηλών");
}
inline QString menuHorBarGraph() {
    return QStringLiteral("Γράφημα Ράβδων");
}
inline QString menuAreaGraph() {
    return QStringLiteral("Γράφημα Περιοχής 3-Δ");
}
inline QString menuLineGraph() {
    return QStringLiteral("Γράφημα Γραμμών");
}
inline QString menuPieChart() {
    return QStringLiteral("Γράφημα Πίτας");
}
/// The two letters in brackets are Greek, as wanted.
inline QString menuScatterGraph() {
    return QStringLiteral("(ΧΥ) Γράφημα &Διασποράς");
}
inline QString menuCylinderGraph() {
    return QStringLiteral("Γράφημα Κυλίνδρων");
}
inline QString menuConeGraph() {
    return QStringLiteral("Γράφημα Κόνων");
}
inline QString menuPyramidGraph() {
    return QStringLiteral("Γράφημα Πυραμίδων");
}

// What the column menu and a dragged heading say.
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

// The sections of a report, as what follows a colour's name; also the captions of the font tools.
inline QString ofHeadings() {
    return QStringLiteral("Επικεφαλίδων");
}
inline QString ofGroups() {
    return QStringLiteral("Ομαδοποίησης");
}
inline QString ofDetails() {
    return QStringLiteral("Λεπτομερειών");
}
inline QString ofSubtotals() {
    return QStringLiteral("Υποσυνόλων");
}
inline QString ofTotals() {
    return QStringLiteral("Συνόλων");
}
inline QString ofTitle() {
    return QStringLiteral("Τίτλου");
}
inline QString ofCompanyBlock() {
    return QStringLiteral("Στοιχείων");
}

// What a screen reader says: the kinds of rows and cells, and the parts of the control.
inline QString spokenHeading() {
    return QStringLiteral("Επικεφαλίδα");
}
inline QString spokenGroup() {
    return QStringLiteral("Ομάδα");
}
inline QString spokenDetail() {
    return QStringLiteral("Λεπτομέρεια");
}
inline QString spokenSubtotal() {
    return QStringLiteral("Υποσύνολο");
}
inline QString spokenTotal() {
    return QStringLiteral("Σύνολο");
}
inline QString spokenBlank() {
    return QStringLiteral("κενό");
}
inline QString spokenReport() {
    return QStringLiteral("Αναφορά");
}
inline QString spokenTools() {
    return QStringLiteral("Εργαλεία");
}

} // namespace zkp::texts
