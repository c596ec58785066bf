// Another field chosen for a column, and a caption typed.

function choose(grid, index) {
    grid.Picture1.changeList("mnuField", index);
}

function column(grid, c) {
    var item = grid.Columns.Item(c + 1);
    return [item.Datafield, item.Caption, item.Alignment, item.Totals, item.Width];
}

// Without reading: the column's old texts go, all else stays.
var grid = loaded(["AGENT", "NOTE", "BRANCH"]);
grid.RefreshOnChange = false;
grid.MSFlexGrid1.userSelect(2, 1);
var fills = listen(grid, ["StartFilling"]);
choose(grid, 2);
check("column takes the entry's values", column(grid, 1), ["PREMIUM", "Μικτά", 7, true, 1200]);
check("surface's alignment and width", [grid.ColAlignment(1), grid.ColWidth(1)], [6, 1200]);
check("heading", rowOf(grid, 0), ["AGENT", "Μικτά", "BRANCH"]);
check("rows 1 to 3 of the column are blank", [rowOf(grid, 1), rowOf(grid, 2), rowOf(grid, 3)],
      [["Άννα", "", "Ζωής"], ["Άννα", "", "Πυρός"], ["Βασίλης", "", "Ζωής"]]);
check("nothing read", fills, []);
check("still False", grid.RefreshOnChange, false);
check("the current column stays", grid.MSFlexGrid1.Col, 1);
check("the neighbours stay", [column(grid, 0), column(grid, 2)],
      [["AGENT", "AGENT", 0, false, 1000], ["BRANCH", "BRANCH", 0, false, 1020]]);

// The same field again: nothing happens, so nothing is blanked.
grid = loaded(["AGENT", "NOTE", "BRANCH"]);
grid.RefreshOnChange = false;
grid.MSFlexGrid1.userSelect(1, 1);
choose(grid, 4);
check("own field: texts stay", rowOf(grid, 1), ["Άννα", "α", "Ζωής"]);
check("own field: caption stays", grid.ColCaption(1), "NOTE");
check("own field: width stays", grid.ColWidth(1), 1010);

// With reading allowed the report is read again at once.
grid = loaded(["AGENT", "NOTE", "BRANCH"]);
grid.EuroVer = true;
grid.MSFlexGrid1.userSelect(1, 1);
fills = listen(grid, ["StartFilling"]);
choose(grid, 3);
check("read once", fills, ["StartFilling"]);
check("new figures, which sum and so have decimals", [rowOf(grid, 1), rowOf(grid, 3)], [["Άννα", "1,00", "Ζωής"], ["Βασίλης", "3,00", "Ζωής"]]);
check("count's width", grid.ColWidth(1), 900);

// A group factor: the list is a shorter one, and the grouping follows.
grid = loaded(["AGENT", "PREMIUM"], 1);
check("grouped by", grid.Groupby, "AGENT");
grid.RefreshOnChange = false;
grid.MSFlexGrid1.userSelect(1, 0);
choose(grid, 1);
check("factor's field", column(grid, 0), ["BRANCH", "Κλάδος", 4, false, 1500]);
check("grouped by the new field", grid.Groupby, "BRANCH");
check("no column came in", fieldsOf(grid), ["BRANCH", "PREMIUM"]);
check("it stays a factor", [grid.ColForTot(0), grid.GroupFactorCount], [true, 1]);
check("merged", grid.MergeCol(0), true);

// A totals report: a place in the list isn't the place in the dictionary.
var totals = totalsShape(["AGENT", "Cnt"], 1);
totals.MSFlexGrid1.userSelect(1, 1);
choose(totals, 4);
check("fifth of the sums", column(totals, 1), ["Avg_PCOUNT", "Πλήθος (Μέσος Ορος)", 7, true, 1050]);
choose(totals, 1);
check("a share of the count isn't summed", column(totals, 1), ["POS_CNT", "Αριθμός (Ποσ %)", 7, false, 735]);

// A typed caption names the column of the latest press, selection or click.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.userSelect(1, 2);
grid.Picture1.changeText("mnuCaption", "Σχόλια");
check("typed caption", [grid.ColCaption(0), grid.ColCaption(1), grid.ColCaption(2)], ["AGENT", "PREMIUM", "Σχόλια"]);
check("its heading", rowOf(grid, 0), ["AGENT", "PREMIUM", "Σχόλια"]);
grid.Picture1.changeText("mnuCaption", "");
check("an empty caption", [grid.ColCaption(2), grid.MSFlexGrid1.TextMatrix(0, 2)], ["", ""]);

// That column is one number for all controls, as wanted.
var other = loaded(["AGENT", "PREMIUM", "NOTE"]);
press(other, 1, 1);
grid.Picture1.changeText("mnuCaption", "Ποσό");
check("renamed by a press in another control", [grid.ColCaption(1), grid.ColCaption(2)], ["Ποσό", ""]);
check("the other control's own stays", other.ColCaption(1), "PREMIUM");

finish();
