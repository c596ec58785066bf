// A totals report reshaped: read, a factor moved, a field chosen, a factor deleted.

cn.Execute("CREATE TABLE QRN_Main (GenKey INTEGER, GenSubKey INTEGER, GenValue TEXT)");
cn.Execute("INSERT INTO QRN_Main VALUES (2, 6, '30'), (2, 7, '60')");

function report() {
    var grid = gridOf(["AGENT", "BRANCH", "SUM_PREMIUM"]);
    grid.TotalForm = true;
    grid.EuroVer = true;
    grid.setColTotals(2, true);
    grid.setColForTot(0, true);
    grid.setColForTot(1, true);
    grid.CheckGroupBy();
    grid.Fill(cn, "SALES", ZKP_Table_QUERY);
    grid.refresh();
    return grid;
}

// The records: what stands in rows that are neither subtotals nor totals.
function records(grid) {
    var all = [];
    for (var r = 1; r < grid.Rows; ++r) {
        if (grid.RowData(r) === ZKPSingleRow)
            all.push(rowOf(grid, r).join("|"));
    }
    return all;
}

function rowsOf(grid, kind) {
    var count = 0;
    for (var r = 1; r < grid.Rows; ++r)
        count += grid.RowData(r) === kind ? 1 : 0;
    return count;
}

var grid = report();
check("as read", records(grid), ["Άννα|Ζωής|100,00", "Άννα|Πυρός|200,00", "Βασίλης|Ζωής|300,00"]);
check("subtotals, totals", [rowsOf(grid, ZKPSubTotals), rowsOf(grid, ZKPTotals)], [2, 1]);

// The chart is offered on the factors only.
[[0, true], [1, true], [2, false]].forEach(function (row) {
    grid.MSFlexGrid1.userSelect(1, row[0]);
    check("chart at " + row[0], tool(grid, "mnuGraph").Enabled, row[1]);
});

// The other factor first, read at once.
check("asked", boxesOf(6, function () {
    drop(grid, 0, 1);
}), ["291 Να αλλάξω τη σειρά των Παραγόντων;"]);
check("read in the new order", records(grid), ["Ζωής|Άννα|100,00", "Ζωής|Βασίλης|300,00", "Πυρός|Άννα|200,00"]);
check("grouped by", grid.Groupby, "BRANCH,AGENT");

// A heading of a factor can be pressed here, and dragged on a sum it is refused.
var told = listen(grid, ["MouseDown"]);
press(grid, 0, 0);
check("heading of a factor", [told.length, grid.MSFlexGrid1.Tag], [1, "0"]);
drop(grid, 0, 2);
check("on a sum", fieldsOf(grid), ["BRANCH", "AGENT", "SUM_PREMIUM"]);

// Another figure for the sum's column, read at once: the fifth that sums is the average of the counts.
grid.MSFlexGrid1.userSelect(1, 2);
grid.Picture1.changeList("mnuField", 4);
check("another figure", [fieldsOf(grid)[2], grid.MSFlexGrid1.TextMatrix(0, 2)], ["Avg_PCOUNT", "Πλήθος (Μέσος Ορος)"]);
check("its values", records(grid), ["Ζωής|Άννα|1,00", "Ζωής|Βασίλης|3,00", "Πυρός|Άννα|2,00"]);

// One factor less, read at once. Then it is the last, and stays.
grid.MSFlexGrid1.userSelect(1, 1);
check("delete: asked", boxesOf(6, function () {
    grid.Picture1.click("mnuDelColumn");
}), ["36 Να ανανεώσω τώρα τη λίστα;"]);
check("delete: read", [records(grid), rowsOf(grid, ZKPSubTotals)], [["Ζωής|2,00", "Πυρός|2,00"], 0]);
grid.MSFlexGrid1.userSelect(1, 0);
check("delete: the last factor", boxesOf(6, function () {
    grid.Picture1.click("mnuDelColumn");
}), ["16 Δεν μπορώ να διαγράψω τον τελευταίο Παράγοντα"]);

// A factor added, and its field chosen: read again with it.
grid.RefreshOnChange = true;
grid.Picture1.click("mnuAddGroup");
grid.RefreshOnChange = true;
check("added: list of factors", entries(tool(grid, "mnuField")), ["Ασφαλιστής", "Κλάδος"]);
grid.Picture1.changeList("mnuField", 0);
check("added: read", records(grid), ["Ζωής|Άννα|1,00", "Ζωής|Βασίλης|3,00", "Πυρός|Άννα|2,00"]);

finish();
