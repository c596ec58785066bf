// The selection, the key of the current row, scrolling, widths and the first click.

// A change of row with the band is told twice, by the band and by the selection; all else once.
var grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
var log = listen(grid, ["Selecting"]);
function selecting(row, col) {
    log.length = 0;
    grid.MSFlexGrid1.userSelect(row, col);
    return log.length;
}
grid.RowSelect = true;
grid.MSFlexGrid1.userSelect(1, 1);
check("band, another row", selecting(2, 1), 2);
check("the band's row", grid.PreRow, 2);
check("band, another column of the row", selecting(2, 2), 1);
check("band, another row and column", selecting(3, 0), 2);
grid.RowSelect = false;
check("no band, another row", selecting(1, 0), 1);
check("no band, another column", selecting(1, 1), 1);
check("the band stays where it was", grid.PreRow, 3);

// The key of the current row: from the first key column.
grid = loaded(["PREMIUM", "PCOUNT", "NOTE"]);
grid.indkey = 77;
grid.MSFlexGrid1.userSelect(2, 0);
check("no key column", grid.indkey, 77);
grid.setColIndexKey(1, true);
grid.MSFlexGrid1.userSelect(3, 2);
check("key column", grid.indkey, Number(grid.TextMatrix(3, 1)));
grid.setColIndexKey(0, true);
grid.setTextMatrix(1, 0, "1.234,50");
grid.MSFlexGrid1.userSelect(1, 2);
check("the first of two, in the report's signs", grid.indkey, 1234.5);
grid.setTextMatrix(2, 0, "κλειδί");
grid.MSFlexGrid1.userSelect(2, 2);
check("not a number", grid.indkey, 0);

// The column of the latest selection is where a column is inserted; so is that of a click.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
log = listen(grid, ["InsertColumn", "Click"]);
grid.MSFlexGrid1.userSelect(2, 2);
var other = loaded(["AGENT", "PREMIUM"]);
press(other, 1, 0);
grid.MSFlexGrid1.userClick(2, 2);
grid.mnuInsert_Click();
check("a click", log, ["Click", "InsertColumn 2"]);

// Scrolling down paints, sideways doesn't.
cn.Execute("CREATE TABLE MANY (AGENT TEXT, PREMIUM MONEY, NOTE TEXT)");
for (var i = 0; i < 20; ++i)
    cn.Execute("INSERT INTO MANY VALUES ('Άννα', " + i + ", 'α')");
grid = gridOf(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.VisibleRows = 4;
log = listen(grid, ["StartInterface"]);
function paints(topRow, leftCol) {
    log.length = 0;
    grid.MSFlexGrid1.userScroll(topRow, leftCol);
    return log.length;
}
grid.Rows = 21;
check("nothing loaded", paints(5, 0), 0);
grid.Fill(cn, "SELECT * FROM MANY", ZKP_SQLStatement);
grid.refresh();
paints(2, 0);
check("down", paints(8, 0), 1);
check("up", paints(7, 0), 1);
check("sideways", paints(7, 1), 0);
check("sideways and down", paints(9, 2), 0);
// The row of a sideways move isn't kept: 7 is still the last one seen, so going back to it paints nothing.
check("back up after that", paints(7, 2), 0);
check("down once more", paints(10, 2), 1);

// A column's width drawn by the user is the column's own.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
var keys = [];
grid.events.PropertyChanged.connect(function (e) {
    keys.push(e.name);
});
grid.MSFlexGrid1.userResizeColumn(1, 2345);
check("width", [grid.ColWidth(1), grid.Columns.Item(2).Width, grid.Columns.Item(1).Width, keys], [2345, 2345, 1000, ["ColWidth"]]);

// The first click on a report that has never been read shows its shape.
function fresh() {
    var grid = gridOf(["AGENT", "PREMIUM"]);
    grid.MinRows = 6;
    grid.Rows = 9;
    grid.MSFlexGrid1.setTextMatrix(0, 0, "x");
    grid.MSFlexGrid1.setTextMatrix(2, 1, "x");
    return grid;
}
grid = fresh();
var seen = null;
grid.events.Click.connect(function () {
    seen = [grid.Rows, rowOf(grid, 0), rowOf(grid, 2), grid.MSFlexGrid1.Col];
});
grid.MSFlexGrid1.userClick(2, 1);
check("shape before the event", seen, [6, ["AGENT", "PREMIUM"], ["", ""], 0]);
check("its fields", entries(tool(grid, "mnuField")), ["Ασφαλιστής", "Κλάδος", "Μικτά", "Πλήθος", "Σχόλιο"]);
grid.MSFlexGrid1.setTextMatrix(2, 1, "y");
grid.MSFlexGrid1.userClick(2, 1);
check("once only", grid.MSFlexGrid1.TextMatrix(2, 1), "y");

grid = loaded(["AGENT", "PREMIUM"]);
grid.MSFlexGrid1.userClick(2, 1);
check("not after a read", [grid.Rows, rowOf(grid, 1)], [4, ["Άννα", "100,00"]]);

// A totals report's shape offers the loss ratios too, until the dictionary is read.
grid = fresh();
grid.TotalForm = true;
grid.setColForTot(0, true);
grid.CheckGroupBy();
grid.MSFlexGrid1.userClick(1, 1);
grid.MSFlexGrid1.Col = 1;
grid.fillBandField();
check("loss ratios", entries(tool(grid, "mnuField")).slice(-5),
      ["Πλήθος (Μέσος Ορος)", "Παραγωγή/Ζημιές (Loss Ratio)", "Ζημιές/Παραγωγή (Loss Ratio)", "Παραγωγή-Ζημιές", "Ζημιές%Παραγωγής)"]);

// Without a dictionary or a connection the click is told, and nothing is cleared.
[function (grid) {
    grid.clmns = " ";
}, function (grid) {
    grid.Cn = null;
}].forEach(function (take, i) {
    var grid = fresh(), log = listen(grid, ["Click"]);
    take(grid);
    grid.MSFlexGrid1.userClick(2, 1);
    check("nothing to show, " + i, [log, grid.Rows, grid.MSFlexGrid1.TextMatrix(2, 1)], [["Click"], 9, "x"]);
});

finish();
