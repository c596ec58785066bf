// The bands, and the tools with their captions and categories.

var grid = new ZkpGrid();

check("bands", ["BndTemplate", " mnuChooceObject", "mnuColumn", "mnuFormat", "mnuTemplate", "mnuGraph", "mnuBackColor", "mnuForeColor",
                "mnuFonts", "BndGraph", "MNUSORT"].filter(function (name) {
    return grid.Picture1.Bands(name).Name !== name;
}), []);
check("context menu, found without its blank", grid.Picture1.Bands("mnuChooceObject").Name, " mnuChooceObject");

// name, caption, category
[
    ["mnuTemplate", "Υπόδειγμα", "CatGeneral"],
    ["mnuRefresh", "Ανανέωση", "CatTemplate"],
    ["mnuPrint", "Εκτύπωση", "CatTemplate"],
    ["ExportToExcel", "Export", ""],
    ["mnuGraph", "Γράφημα", "CatGeneral"],
    ["mnuAddColumn", "Πρόσθεση Στήλης", "CatColumn"],
    ["mnuInsertColumn", "Παρεμβολή Στήλης", "CatColumn"],
    ["mnuAddGroup", "Πρόσθεση Παράγοντα Ομαδοποίησης", "CatColumn"],
    ["mnuInsertGroup", "Παρεμβολή Παράγοντα Ομαδοποίησης", "CatColumn"],
    ["mnuDelColumn", "Διαγραφή Στήλης", "CatColumn"],
    ["mnuColumnProperties", "Ιδιότητες Στήλης", "CatColumn"],
    ["mnuField", "Πεδίο", "CatColumn"],
    ["mnuCaption", "Επικεφαλίδα", "CatTemplate"],
    ["mnuAlignLeft", "Στοίχιση Αριστερά", "CatColumn"],
    ["mnuAlignCenter", "Στοίχιση στο κέντρο", "CatColumn"],
    ["mnuAlignRight", "Στοίχιση Δεξιά", "CatColumn"],
    ["mnuSort", "Ταξινόμηση", "CatColumn"],
    ["mnuSaveTemplate", "Καταχώρηση Υποδείγματος", "CatTemplate"],
    ["mnuSaveTemplateAs", "Καταχώρηση Υποδείγματος σάν", "CatTemplate"],
    ["mnuTitle", "Αλλαγή Τίτλου", "CatTemplate"],
    ["mnuGraphColumn", "Στήλη", "CatGraph"],
    ["mnuGraphProperties", "Ιδιότητες", "CatGraph"],
].forEach(function (row) {
    check(row[0], [tool(grid, row[0]).Caption, tool(grid, row[0]).Category], [row[1], row[2]]);
});

// name, caption
[
    ["mnuFixedBackColor", "Χρώμα Φόντου Επικεφαλίδων"],
    ["mnuGroupedBackColor", "Χρώμα Φόντου Ομαδοποίησης"],
    ["mnuDetailsBackColor", "Χρώμα Φόντου Λεπτομερειών"],
    ["mnuSubTotalsBackColor", "Χρώμα Φόντου Υποσυνόλων"],
    ["mnuTotalsBackColor", "Χρώμα Φόντου Συνόλων"],
    ["mnuTitleBackColor", "Χρώμα Φόντου Τίτλου"],
    ["mnuFixedForeColor", "Χρώμα Γραμμάτων Επικεφαλίδων"],
    ["mnuGroupedForeColor", "Χρώμα Γραμμάτων Ομαδοποίησης"],
    ["mnuDetailsForeColor", "Χρώμα Γραμμάτων Λεπτομερειών"],
    ["mnuSubTotalsForeColor", "Χρώμα Γραμμάτων Υποσυνόλων"],
    ["mnuTotalsForeColor", "Χρώμα Γραμμάτων Συνόλων"],
    ["mnuTitleForeColor", "Χρώμα Γραμμάτων Τίτλου"],
    ["mnuFixedFont", "Επικεφαλίδων"],
    ["mnuGroupedFont", "Ομαδοποίησης"],
    ["mnuDetailsFont", "Λεπτομερειών"],
    ["mnuSubTotalsFont", "Υποσυνόλων"],
    ["mnuTotalsFont", "Συνόλων"],
    ["mnubarGraph", "Γράφημα Στηλών"],
    ["mnuHorBarGraph", "Γράφημα Ράβδων"],
    ["mnuAreaGraph", "Γράφημα Περιοχής 3-Δ"],
    ["mnuLineGraph", "Γράφημα Γραμμών"],
    ["mnuPieChart", "Γράφημα Πίτας"],
    ["mnuCylinderGraph", "Γράφημα Κυλίνδρων"],
    ["mnuGraphKonoi", "Γράφημα Κόνων"],
    ["mnuPyramidGraph", "Γράφημα Πυραμίδων"],
    ["mnuGiantGraph", "(ΧΥ) Γράφημα &Διασποράς"],
].forEach(function (row) {
    check(row[0], tool(grid, row[0]).Caption, row[1]);
});

// They are there, whatever they are called.
["mnuStoixeiaForeColor", "mnuSortAsc", "mnuSortDesc", "mnuPrintGraph", "mnuExport", "miSeparator"].forEach(function (name) {
    check(name, tool(grid, name).Name, name);
});

// Where other parts of the control look for them.
[
    ["BndTemplate", "txtRecs"], ["BndTemplate", "mnuField"], ["BndTemplate", "mnuCaption"], ["BndTemplate", "mnuPrint"],
    ["mnuTemplate", "mnuPrint"], ["mnuTemplate", "mnuSaveTemplate"],
].forEach(function (row) {
    check(row.join(": "), grid.Picture1.Bands(row[0]).Tools(row[1]).Name, row[1]);
});

// The text of the export tool is the form's.
tool(grid, "mnuExport").Caption = "Σε αρχείο";
grid.MenuRefresh();
check("export's caption", tool(grid, "mnuExport").Caption, "Σε αρχείο");

// The band is there or not by `ChoicesVisible`; `MenusVisible` leaves it, its popup and its commands alone.
grid.ChoicesVisible = true;
grid.MenusVisible = false;
grid.UserControl_Resize();
check("MenusVisible False: shown", grid.Picture1.Visible, true);
grid.MSFlexGrid1.userPress(2, 0, 30, 45, 1, 1);
check("MenusVisible False: popup", grid.Picture1.lastPopup.trim(), "mnuChooceObject");
grid.Picture1.click("mnuAddColumn");
check("MenusVisible False: commands", grid.Cols, 3);
grid.ChoicesVisible = false;
grid.UserControl_Resize();
check("ChoicesVisible False: hidden", grid.Picture1.Visible, false);

finish();
