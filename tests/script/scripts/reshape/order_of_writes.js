// What a host that listens to `PropertyChanged` sees: the order in which columns are written.

var inserted = ["ColCaption", "ColDataField", "ColCalcEuro", "ColWidth", "ColAlignment", "ColCredit", "ColDebit", "ColBalance",
                "ColTotals", "ColStatic", "ColLR", "ColIndexKey", "ColEditRs", "ColEditable", "ColEditKind", "ColEditTag",
                "ColEditLength", "ColEditField1", "ColEditField2"];
var moved = ["ColAlignment", "ColBalance", "ColCaption", "ColCredit", "ColDataField", "ColDebit", "ColTotals", "ColStatic", "ColLR",
             "ColForTot", "ColIndexKey", "Colcnt", "ColWidth", "ColEditRs", "ColEditKind", "ColEditTag", "ColEditLength",
             "ColEditField1", "ColEditField2", "ColEditable"];
var columnKeys = inserted.concat(moved);

function keysOf(grid, act) {
    var keys = [];
    grid.events.PropertyChanged.connect(function (e) {
        if (columnKeys.indexOf(e.name) >= 0 || e.name === "Cols" || e.name === "Refreshonchange" || e.name === "Groupby")
            keys.push(e.name);
    });
    act();
    return keys;
}

var grid = loaded(["AGENT", "PREMIUM"]);
check("InsertColumn", keysOf(grid, function () {
    grid.InsertColumn(1);
}), ["Cols"].concat(inserted));

grid = loaded(["AGENT", "PREMIUM"]);
check("column added", keysOf(grid, function () {
    grid.mnuAddColumn_Click();
}), ["Cols", "ColForTot", "Refreshonchange"]);

grid = loaded(["AGENT", "PREMIUM"]);
grid.MSFlexGrid1.userSelect(1, 1);
check("column inserted", keysOf(grid, function () {
    grid.mnuInsert_Click();
}), ["Refreshonchange", "Cols"].concat(inserted));

grid = loaded(["AGENT", "PREMIUM"]);
check("heading dropped", keysOf(grid, function () {
    drop(grid, 0, 1);
}), moved.concat(moved));

grid = loaded(["AGENT", "PREMIUM"]);
check("heading dropped on its own place", keysOf(grid, function () {
    drop(grid, 1, 1);
}), []);

// The members that nothing writes back are the record's own, and go with it.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.setColAvrg(0, true);
grid.setColPercnt(0, true);
grid.setColPerSize(0, true);
grid.setColForSize(0, true);
grid.setColCalcEuro(0, true);
drop(grid, 0, 2);
check("other members", [0, 1, 2].map(function (c) {
    return [grid.ColAvrg(c), grid.ColPercnt(c), grid.ColPerSize(c), grid.ColForSize(c), grid.ColCalcEuro(c)].join();
}), ["false,false,false,false,false", "false,false,false,false,false", "true,true,true,true,true"]);

// A hidden column stays hidden wherever a move puts it, and no other one hides.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.setColWidth(1, 0);
drop(grid, 0, 2);
check("hidden", [grid.ColWidth(0), grid.ColWidth(1), grid.ColWidth(2)], [0, 1020, 1000]);
check("hidden on the surface", [0, 1, 2].map(function (c) {
    return grid.MSFlexGrid1.ColHidden(c);
}), [true, false, false]);

finish();
