// A column deleted: refusals, the question, and what stays.

var only = "16 Δεν μπορώ να διαγράψω την μοναδική στήλη";
var last = "16 Δεν μπορώ να διαγράψω τον τελευταίο Παράγοντα";
var question = "36 Να ανανεώσω τώρα τη λίστα;";
var events = ["DelColumn", "addcolumn", "StartFilling"];

function deleted(grid, col, button) {
    grid.MSFlexGrid1.userSelect(1, col);
    return boxesOf(button, function () {
        grid.mnuDelete_Click();
    });
}

// A plain column goes without a word; the rows stay.
var grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
var log = listen(grid, events);
check("plain: no box", deleted(grid, 1, 6), []);
check("plain: fields", fieldsOf(grid), ["AGENT", "NOTE"]);
check("plain: headings", rowOf(grid, 0), ["AGENT", "NOTE"]);
check("plain: rows", [grid.Rows, rowOf(grid, 1), rowOf(grid, 3)], [4, ["Άννα", "α"], ["Βασίλης", "γ"]]);
check("plain: counts", [grid.MSFlexGrid1.Cols, grid.Columns.Count], [2, 2]);
check("plain: told", log, ["DelColumn 1"]);
check("plain: not read", [grid.RefreshOnChange, grid.Redraw, grid.MSFlexGrid1.Col], [false, true, 1]);

// The last one: the current column falls back.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
deleted(grid, 2, 6);
check("last: fields", [fieldsOf(grid), grid.MSFlexGrid1.Col], [["AGENT", "PREMIUM"], 1]);

// By its tool, whose state then fits the column that is current now.
grid = loaded(["AGENT", "PREMIUM", "NOTE"], 1);
grid.MSFlexGrid1.userSelect(1, 1);
grid.setColStatic(2, true);
grid.Picture1.click("mnuDelColumn");
check("tool: fields", fieldsOf(grid), ["AGENT", "NOTE"]);
check("tool: a static column is next", [grid.MSFlexGrid1.Col, tool(grid, "mnuDelColumn").Enabled], [1, false]);
check("tool: disabled", boxesOf(6, function () {
    grid.Picture1.click("mnuDelColumn");
}), []);
check("tool: nothing more went", fieldsOf(grid), ["AGENT", "NOTE"]);

// The only column, or the only one that shows.
grid = loaded(["AGENT"]);
log = listen(grid, events);
check("only: refused", deleted(grid, 0, 6), [only]);
check("only: stays", [fieldsOf(grid), log, grid.RefreshOnChange], [["AGENT"], [], true]);

grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.setColWidth(1, 0);
grid.setColWidth(2, 0);
check("hidden ones beside it: refused", deleted(grid, 0, 6), [only]);
check("hidden ones beside it: stays", fieldsOf(grid), ["AGENT", "PREMIUM", "NOTE"]);
grid.setColWidth(2, 1000);
check("two show", deleted(grid, 0, 6), []);
check("two show: gone", fieldsOf(grid), ["PREMIUM", "NOTE"]);

// The last group factor of a totals report. A plain column there goes.
var totals = totalsShape(["AGENT", "Cnt", "SUM_PREMIUM"], 1);
log = listen(totals, events);
check("last factor: refused", deleted(totals, 0, 6), [last]);
check("last factor: stays", [fieldsOf(totals), log], [["AGENT", "Cnt", "SUM_PREMIUM"], []]);
check("a sum goes", deleted(totals, 1, 6), []);
check("a sum goes: fields", fieldsOf(totals), ["AGENT", "SUM_PREMIUM"]);

totals = totalsShape(["AGENT", "BRANCH", "Cnt"], 2);
check("one of two factors: asked", deleted(totals, 0, 7), [question]);
check("one of two factors: gone", [fieldsOf(totals), totals.GroupFactorCount, totals.Groupby], [["BRANCH", "Cnt"], 1, "BRANCH"]);

// In a plain report the last factor may go.
grid = loaded(["AGENT", "PREMIUM"], 1);
log = listen(grid, events);
check("factor: asked", deleted(grid, 0, 7), [question]);
check("factor: No", [fieldsOf(grid), grid.GroupFactorCount, grid.RefreshOnChange, log], [["PREMIUM"], 0, false, ["DelColumn 0"]]);

grid = loaded(["AGENT", "PREMIUM"], 1);
log = listen(grid, events);
check("factor: asked again", deleted(grid, 0, 6), [question]);
check("factor: Yes reads at once", [fieldsOf(grid), grid.RefreshOnChange, log], [["PREMIUM"], true, ["StartFilling", "DelColumn 0"]]);

// Yes undoes what an earlier command had put off.
grid = loaded(["AGENT", "BRANCH", "PREMIUM"], 2);
grid.RefreshOnChange = false;
deleted(grid, 1, 6);
check("factor: Yes after a put off", grid.RefreshOnChange, true);

// A factor without a field isn't worth the question.
grid = loaded(["AGENT", "PREMIUM"], 1);
grid.mnuAddOmadopoihsh_Click();
check("empty factor: no question", deleted(grid, 1, 6), []);
check("empty factor: not read", [fieldsOf(grid), grid.RefreshOnChange, grid.GroupFactorCount], [["AGENT", "PREMIUM"], false, 1]);

// A host may name another column than the current one. The surface then loses the current column,
// `Columns` the named one, as wanted.
grid = loaded(["AGENT", "BRANCH", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.userSelect(1, 1);
grid.deletecolumn(0);
check("named 0, current 1: surface", rowOf(grid, 0), ["AGENT", "PREMIUM", "NOTE"]);
check("named 0, current 1: columns", fieldsOf(grid), ["BRANCH", "PREMIUM", "NOTE"]);
check("named 0, current 1: current", grid.MSFlexGrid1.Col, 0);

grid = loaded(["AGENT", "BRANCH", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.userSelect(1, 0);
var place = {value: 3};
grid.deletecolumn(place);
check("named 3, current 0: surface", rowOf(grid, 0), ["BRANCH", "PREMIUM", "NOTE"]);
check("named 3, current 0: columns", fieldsOf(grid), ["AGENT", "BRANCH", "PREMIUM"]);
check("named 3, current 0: brought back", [place.value, grid.MSFlexGrid1.Col], [2, 2]);

// The question is about the current column, not the named one.
grid = loaded(["AGENT", "PREMIUM", "NOTE"], 1);
grid.MSFlexGrid1.userSelect(1, 2);
check("named a factor, current plain", boxesOf(6, function () {
    grid.deletecolumn(0);
}), []);
grid = loaded(["AGENT", "PREMIUM", "NOTE"], 1);
grid.MSFlexGrid1.userSelect(1, 0);
check("named a plain one, current a factor", boxesOf(7, function () {
    grid.deletecolumn(2);
}), [question]);

// A place beyond the last entry: the error box, and the surface is one column shorter by then.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.userSelect(1, 1);
var boxes = host.messages.length;
grid.deletecolumn(9);
check("off the end: box", [host.messages.length - boxes, host.messages[boxes].style, host.messages[boxes].title], [1, 16, "QRN Insurance"]);
check("off the end: text", host.messages[boxes].text.indexOf("Παρουσιάστικε Εξαίρεση : "), 0);
check("off the end: sizes", [grid.MSFlexGrid1.Cols, grid.Columns.Count], [2, 3]);
grid.Cols = 2;
check("off the end: usable", fieldsOf(grid), ["AGENT", "PREMIUM"]);

finish();
