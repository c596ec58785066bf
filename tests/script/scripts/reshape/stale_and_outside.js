// Places and lists that are no longer there: the error box or nothing, and the control goes on.

function agrees(name, grid) {
    check(name + ": surface and columns agree", grid.MSFlexGrid1.Cols, grid.Columns.Count);
    var cols = grid.Cols;
    grid.mnuAddColumn_Click();
    check(name + ": usable", grid.Cols, cols + 1);
    check(name + ": pointers", [host.pointer, grid.MousePointer], [0, 0]);
}

// InsertColumn outside the columns: the error box.
[-1, 4, 99].forEach(function (place) {
    var grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
    var before = host.messages.length;
    grid.InsertColumn(place);
    var box = host.messages[before];
    check("InsertColumn " + place, [host.messages.length - before, box && box.style, box && box.title], [1, 16, "QRN Insurance"]);
    check("InsertColumn " + place + ": the others stay", fieldsOf(grid).slice(0, 3), ["AGENT", "PREMIUM", "NOTE"]);
    agrees("InsertColumn " + place, grid);
});

// The latest press was in a control with more columns, or outside all of them.
function pressedElsewhere(act) {
    var grid = loaded(["AGENT", "PREMIUM"]);
    var wide = loaded(["AGENT", "BRANCH", "PREMIUM", "PCOUNT", "NOTE"]);
    press(wide, 1, 4);
    try {
        act(grid);
    } catch (e) {
        // The words are the collection's.
    }
    agrees("pressed elsewhere", grid);
}
pressedElsewhere(function (grid) {
    grid.MSFlexGrid1.userMove(1, 0, 30, 30, 0, 1);
    grid.MousePointer = 0;
});
pressedElsewhere(function (grid) {
    grid.MSFlexGrid1.userDrop(4, 1);
});
pressedElsewhere(function (grid) {
    grid.Picture1.changeText("mnuCaption", "α");
});
pressedElsewhere(function (grid) {
    grid.mnuInsert_Click();
    grid.Cols = grid.Columns.Count;
});

var outside = loaded(["AGENT", "PREMIUM"]);
outside.MSFlexGrid1.userPress(1, 0, 30, 30, 0, -1);
outside.MSFlexGrid1.userPress(2, 0, 30, 30, -1, -1);
outside.MSFlexGrid1.userPress(1, 0, 30, 30, 0, 7);
outside.MSFlexGrid1.userClick(5, 7);
outside.MSFlexGrid1.userSelect(1, 1);
agrees("pressed outside", outside);

// The list of another report: this one's list still shows its old entries, but the fields are gone.
cn.Execute("CREATE TABLE FEWFIELDS AS SELECT * FROM FIELDS WHERE dtfld = 'NOTE'");
var grid = loaded(["AGENT", "PREMIUM"]);
grid.RefreshOnChange = false;
grid.MSFlexGrid1.userSelect(1, 1);
check("all fields", tool(grid, "mnuField").ListCount, 5);
var other = gridOf(["NOTE"]);
other.clmns = "FEWFIELDS";
other.refresh();
try {
    grid.Picture1.changeList("mnuField", 4);
} catch (e) {
    // As above.
}
check("a field that is gone: fields", fieldsOf(grid), ["AGENT", "PREMIUM"]);
agrees("a field that is gone", grid);

// No entry, and one behind the last.
[-1, 5, 99].forEach(function (index) {
    var grid = loaded(["AGENT", "PREMIUM"]);
    grid.MSFlexGrid1.userSelect(1, 1);
    try {
        grid.Picture1.changeList("mnuField", index);
    } catch (e) {
        // As above.
    }
    check("entry " + index, [fieldsOf(grid), rowOf(grid, 1)], [["AGENT", "PREMIUM"], ["Άννα", "100,00"]]);
    agrees("entry " + index, grid);
});

// A menu that doesn't show keeps its list, and what is chosen there still counts.
grid = loaded(["AGENT", "PREMIUM"], 1);
grid.RefreshOnChange = false;
grid.MSFlexGrid1.userSelect(1, 1);
grid.MenusVisible = false;
grid.MSFlexGrid1.userSelect(1, 0);
grid.Picture1.changeList("mnuField", 4);
check("hidden menu: the list's entry", fieldsOf(grid), ["NOTE", "PREMIUM"]);

// The dictionary's table dropped after it was read: it isn't read again, so its list stays.
cn.Execute("CREATE TABLE PASSING AS SELECT * FROM FIELDS");
grid = gridOf(["AGENT", "PREMIUM"]);
grid.clmns = "PASSING";
grid.refresh();
cn.Execute("DROP TABLE PASSING");
check("dictionary dropped: no box", boxesOf(1, function () {
    grid.Picture1.click("mnuRefresh");
    grid.MSFlexGrid1.userSelect(1, 1);
}), []);
check("dictionary dropped: list", tool(grid, "mnuField").ListCount, 5);

// A dictionary that was never there, or lacks its columns, asked for by the first click: a box.
cn.Execute("CREATE TABLE ODD (visbl INTEGER, cptn TEXT)");
cn.Execute("INSERT INTO ODD VALUES (1, 'α')");
["GONE", "ODD"].forEach(function (name) {
    var grid = gridOf(["AGENT", "PREMIUM"]);
    grid.clmns = name;
    check("first click, " + name, boxesOf(1, function () {
        grid.MSFlexGrid1.userClick(1, 1);
    }).length, 1);
    agrees("first click, " + name, grid);
});

// Columns taken away from under the current one.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.userSelect(1, 2);
grid.Cols = 1;
grid.MenuRefresh();
agrees("columns taken away", grid);
grid = loaded(["AGENT", "PREMIUM", "NOTE"], 2);
grid.Cols = 1;
grid.MSFlexGrid1.Col = 0;
grid.MenuRefresh();
grid.mnuInsertOmadopoihsh_Click();
check("factors taken away: counted anew", [fieldsOf(grid), grid.GroupFactorCount], [[" ", "AGENT"], 2]);

// A pointer left over from somewhere goes back when the current cell moves.
host.pointer = 11;
grid.MSFlexGrid1.userSelect(0, 1);
grid.MSFlexGrid1.userSelect(1, 1);
check("pointer", host.pointer, 0);

finish();
