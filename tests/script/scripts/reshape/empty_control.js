// Every tool, press and drop on a control that has no connection, no columns set and no rows.

var commands = ["mnuPrint", "mnuExport", "mnuAddColumn", "mnuInsertColumn", "mnuAddGroup", "mnuInsertGroup", "mnuDelColumn",
                "mnuAlignLeft", "mnuAlignCenter", "mnuAlignRight", "mnuSort", "mnuSortAsc", "mnuSortDesc", "mnuSaveTemplate",
                "mnuSaveTemplateAs", "mnuTitle", "mnuGraphColumn", "mnuFixedBackColor", "mnuStoixeiaForeColor", "mnuTotalsFont"];

// A fresh control for each, and one that has gone through all of them.
var worn = new ZkpGrid();
commands.forEach(function (name) {
    [new ZkpGrid(), worn].forEach(function (grid) {
        try {
            grid.Picture1.click(name);
        } catch (e) {
            check(name + " ends in an error", e.description, "");
        }
        check(name + ": surface and columns agree", grid.MSFlexGrid1.Cols, grid.Columns.Count);
        check(name + ": pointers", [host.pointer, grid.MousePointer], [0, 0]);
        check(name + ": shown", grid.Redraw, true);
    });
});

// The one that needs a connection says so, and leaves no hourglass.
var grid = new ZkpGrid();
var said = null;
var boxes = boxesOf(1, function () {
    try {
        grid.Picture1.click("mnuRefresh");
    } catch (e) {
        said = [e.number >>> 0, e.description];
    }
});
check("refresh", said || boxes, [0x8004000A, "The Property Cn Hasn't Been set!"]);
check("refresh: pointers", [host.pointer, grid.MousePointer], [0, 0]);
grid.Picture1.click("mnuAddColumn");
check("usable afterwards", grid.Cols, 3);

// The two tools with contents.
grid = new ZkpGrid();
grid.MenuRefresh();
check("no field to choose", tool(grid, "mnuField").ListCount, 0);
grid.MSFlexGrid1.userSelect(1, 1);
grid.Picture1.changeText("mnuCaption", "Τίτλος");
check("a caption can be typed", rowOf(grid, 0), ["", "Τίτλος"]);

// Only the heading row, and only one column: the delete command is refused, all others go.
grid = new ZkpGrid();
grid.Rows = 1;
grid.Cols = 1;
check("the only column", boxesOf(6, function () {
    grid.Picture1.click("mnuDelColumn");
}), ["16 Δεν μπορώ να διαγράψω την μοναδική στήλη"]);
grid.mnuAddOmadopoihsh_Click();
check("a group factor before it", [grid.Cols, grid.ColForTot(0), grid.GroupFactorCount], [2, true, 1]);
grid.mnuInsertOmadopoihsh_Click();
check("another before that", [grid.Cols, grid.GroupFactorCount], [3, 2]);
grid.mnuInsert_Click();
check("a column", grid.Cols, 4);

// With every column hidden none is the only one that shows, so the current one goes, as wanted.
grid = gridOf(["AGENT", "PREMIUM"]);
grid.setColWidth(0, 0);
grid.setColWidth(1, 0);
grid.MSFlexGrid1.Col = 1;
check("all hidden: no refusal", boxesOf(6, function () {
    grid.mnuDelete_Click();
}), []);
check("all hidden: the current one goes", fieldsOf(grid), ["AGENT"]);

// A dictionary that is gone by the time it is asked for: the box, and the control goes on.
grid = gridOf(["AGENT", "PREMIUM"]);
grid.clmns = "GONE";
check("dictionary gone", boxesOf(1, function () {
    grid.refresh();
}).length, 1);
grid.MSFlexGrid1.Col = 1;
grid.Picture1.click("mnuAddColumn");
check("dictionary gone: usable", [fieldsOf(grid), tool(grid, "mnuField").ListCount], [["AGENT", "PREMIUM", " "], 0]);

// Presses, moves, drops and keys reach nothing and break nothing.
grid = new ZkpGrid();
grid.MSFlexGrid1.userPress(1, 0, 10, 10, 0, 1);
grid.MSFlexGrid1.userMove(1, 0, 10, 10, 0, 0);
grid.MSFlexGrid1.userDrop(1, 0);
grid.MSFlexGrid1.userRelease(1, 0, 10, 10, 0, 0);
grid.MSFlexGrid1.userPress(2, 0, 10, 10, 1, 1);
grid.MSFlexGrid1.userPress(1, 0, 10, 10, -1, -1);
grid.MSFlexGrid1.userMove(1, 0, 10, 10, 0, -1);
grid.MSFlexGrid1.userClick(-1, -1);
grid.MSFlexGrid1.userDblClick(-1, -1);
check("still there", [grid.Cols, grid.Columns.Count], [2, 2]);

// An empty record source: headings only.
grid = gridOf(["AGENT", "PREMIUM"]);
grid.Fill(cn, "SELECT * FROM SALES WHERE 1 = 0", ZKP_SQLStatement);
grid.refresh();
check("no records", grid.Rows, 1);
drop(grid, 1, 0);
check("no records: drop", [fieldsOf(grid), rowOf(grid, 0)], [["PREMIUM", "AGENT"], ["PREMIUM", "AGENT"]]);
grid.RefreshOnChange = false;
grid.MSFlexGrid1.Col = 0;
grid.fillBandField();
grid.Picture1.changeList("mnuField", 4);
check("no records: a field", fieldsOf(grid), ["NOTE", "AGENT"]);
grid.Picture1.click("mnuDelColumn");
check("no records: delete", fieldsOf(grid), ["AGENT"]);

finish();
