// The list of the field tool: what the dictionary offers for the current column.

var all = ["Ασφαλιστής", "Κλάδος", "Μικτά", "Πλήθος", "Σχόλιο"];
var groups = ["Ασφαλιστής", "Κλάδος"];
var sums = ["Αριθμός", "Αριθμός (Ποσ %)", "Μικτά (Αθροισμα)", "Μικτά (Ποσ %)", "Πλήθος (Μέσος Ορος)"];

function field(grid, col) {
    grid.MSFlexGrid1.Col = col;
    grid.fillBandField();
    return grid.Picture1.Bands("BndTemplate").Tools("mnuField");
}

// A plain report: all fields for a plain column, those that may group for a group factor.
var grid = loaded(["AGENT", "PREMIUM", "NOTE"], 1);
check("plain column", entries(field(grid, 1)), all);
check("its own field is chosen", field(grid, 1).ListIndex, 2);
check("the last column's field", field(grid, 2).ListIndex, 4);
check("group factor", entries(field(grid, 0)), groups);
check("group factor's own field", field(grid, 0).ListIndex, 0);

// The column at the count of group factors is a plain one.
grid.setColForTot(1, true);
check("flag set, not counted", entries(field(grid, 1)), all);
grid.CheckGroupBy();
check("flag counted", entries(field(grid, 1)), groups);
check("a field that can't group is not in the list", field(grid, 1).ListIndex, -1);

// A totals report: what sums for a plain column.
var totals = totalsShape(["BRANCH", "SUM_PREMIUM"], 1);
check("totals, plain column", entries(field(totals, 1)), sums);
check("totals, its own field", field(totals, 1).ListIndex, 2);
check("totals, group factor", entries(field(totals, 0)), groups);
check("totals, group factor's own field", field(totals, 0).ListIndex, 1);

// The list follows the current column, and isn't doubled by filling it again or by reading again.
grid = loaded(["AGENT", "PREMIUM", "NOTE"], 1);
grid.MSFlexGrid1.userSelect(1, 1);
check("after a selection", entries(tool(grid, "mnuField")), all);
grid.MSFlexGrid1.userSelect(1, 0);
check("after another", entries(tool(grid, "mnuField")), groups);
grid.refresh();
grid.refresh();
check("read twice more", entries(field(grid, 2)), all);

// The caption tool shows the column's caption, and showing it renames nothing.
field(grid, 2);
check("caption", tool(grid, "mnuCaption").Text, "NOTE");
field(grid, 0);
check("another's caption", tool(grid, "mnuCaption").Text, "AGENT");
check("captions", [grid.ColCaption(0), grid.ColCaption(1), grid.ColCaption(2)], ["AGENT", "PREMIUM", "NOTE"]);
check("headings", rowOf(grid, 0), ["AGENT", "PREMIUM", "NOTE"]);

// Nor does filling the list choose a field for a column.
check("fields", fieldsOf(grid), ["AGENT", "PREMIUM", "NOTE"]);

// The latest press in any report decides which column a typed caption renames: not filling the tools.
var other = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.Col = 1;
press(other, 1, 2);
grid.fillBandField();
check("after a press elsewhere", [grid.ColCaption(1), grid.ColCaption(2)], ["PREMIUM", "NOTE"]);

// With the menu hidden, without a dictionary, and with an empty one, the list stays as it is.
grid = loaded(["AGENT", "PREMIUM", "NOTE"], 1);
field(grid, 1);
grid.MenusVisible = false;
check("MenusVisible False", entries(field(grid, 0)), all);

var without = gridOf(["AGENT", "PREMIUM"]);
without.clmns = "";
without.refresh();
check("no dictionary", entries(field(without, 1)), []);
check("no dictionary, no caption", tool(without, "mnuCaption").Text, "");

cn.Execute("CREATE TABLE NOFIELDS AS SELECT * FROM FIELDS WHERE 1 = 0");
var empty = gridOf(["AGENT", "PREMIUM"]);
empty.clmns = "NOFIELDS";
empty.refresh();
check("empty dictionary", entries(field(empty, 1)), []);

// A totals report always offers the two counts.
var counts = gridOf(["AGENT", "Cnt"]);
counts.clmns = "NOFIELDS";
counts.TotalForm = true;
counts.RefreshOnChange = false;
counts.setColForTot(0, true);
counts.CheckGroupBy();
counts.FillGrid();
check("empty dictionary, totals", entries(field(counts, 1)), ["Αριθμός", "Αριθμός (Ποσ %)"]);
check("the count is chosen", field(counts, 1).ListIndex, 0);

finish();
