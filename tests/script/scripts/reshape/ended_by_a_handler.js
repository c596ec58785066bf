// A handler, or the answer to a box, may end the control in the middle of a command: the script goes on.

function ends(name, make, act, answers) {
    var grid = make();
    var calls = 0;
    var end = function () {
        ++calls;
        if (calls === 1)
            grid.destroy();
        return answers;
    };
    act(grid, end);
    check(name + ": reached", calls > 0, true);
    var gone = false;
    try {
        gone = grid.Cols === undefined;
    } catch (e) {
        gone = true;
    }
    check(name + ": gone", gone, true);
    host.onMsgBox = null;
    host.onInputBox = null;
    host.onColorDialog = null;
    host.onFontDialog = null;
}

function plain() {
    return loaded(["AGENT", "PREMIUM", "NOTE"]);
}

function grouped() {
    var grid = loaded(["AGENT", "BRANCH", "PREMIUM"], 2);
    grid.MSFlexGrid1.userSelect(1, 0);
    return grid;
}

// In the events of commands.
[
    ["addcolumn", "mnuAddColumn"], ["addcolumn", "mnuAddGroup"], ["addcolumn", "mnuInsertGroup"], ["InsertColumn", "mnuInsertColumn"],
    ["PrintCommand", "mnuPrint"], ["MenuExportTable", "mnuExport"], ["MenuTitle", "mnuTitle"], ["MenuSaveTemplate", "mnuSaveTemplate"],
    ["StartSorting", "mnuSort"], ["StartFilling", "mnuRefresh"], ["RetrieveRow", "mnuRefresh"], ["StopInterface", "mnuRefresh"],
].forEach(function (row) {
    ends(row[0] + " of " + row[1], row[1] === "mnuInsertGroup" ? grouped : plain, function (grid, end) {
        if (row[1] !== "mnuInsertGroup")
            grid.MSFlexGrid1.userSelect(1, 1);
        grid.events[row[0]].connect(end);
        try {
            grid.Picture1.click(row[1]);
        } catch (e) {
            // What the ended operation says to its caller is its own affair.
        }
    });
});

// In the events of the surface.
[
    ["MouseDown", "a press", function (grid) { grid.MSFlexGrid1.userPress(1, 0, 30, 45, 0, 2); }],
    ["MouseDown", "a right press", function (grid) { grid.MSFlexGrid1.userPress(2, 0, 30, 45, 1, 2); }],
    ["Selecting", "a selection", function (grid) { grid.MSFlexGrid1.userSelect(2, 2); }],
    ["Selecting", "a press", function (grid) { grid.MSFlexGrid1.userPress(1, 0, 30, 45, 0, 2); }],
    ["Click", "a click", function (grid) { grid.MSFlexGrid1.userClick(1, 1); }],
    ["DblClick", "a double click", function (grid) { grid.MSFlexGrid1.userDblClick(1, 1); }],
    ["PropertyChanged", "a width", function (grid) { grid.MSFlexGrid1.userResizeColumn(1, 900); }],
    ["PropertyChanged", "a drop", function (grid) { drop(grid, 1, 2); }],
    ["PropertyChanged", "a caption", function (grid) { grid.Picture1.changeText("mnuCaption", "α"); }],
    ["PropertyChanged", "a field", function (grid) { grid.Picture1.changeList("mnuField", 0); }],
    ["PropertyChanged", "a column deleted", function (grid) { grid.mnuDelete_Click(); }],
    ["PropertyChanged", "a column inserted", function (grid) { grid.InsertColumn(1); }],
    ["StartFilling", "a field", function (grid) { grid.Picture1.changeList("mnuField", 0); }],
    ["DelColumn", "a column deleted", function (grid) { grid.mnuDelete_Click(); }],
].forEach(function (row) {
    ends(row[0] + " of " + row[1], function () {
        var grid = plain();
        grid.RowSelect = true;
        grid.MSFlexGrid1.userSelect(1, 1);
        return grid;
    }, function (grid, end) {
        grid.events[row[0]].connect(end);
        try {
            row[2](grid);
        } catch (e) {
            // As above.
        }
    });
});

// In the answer to a box or a dialog.
[
    ["question of a drop", "onMsgBox", 6, function (grid) { drop(grid, 0, 1); }],
    ["question of a deletion", "onMsgBox", 6, function (grid) { grid.mnuDelete_Click(); }],
    ["title", "onInputBox", "Νέος", function (grid) { grid.Picture1.click("mnuTitle"); }],
    ["colour", "onColorDialog", 0x123456, function (grid) { grid.Picture1.click("mnuFixedBackColor"); }],
    ["font", "onFontDialog", {FontSize: 12}, function (grid) { grid.Picture1.click("mnuFixedFont"); }],
    ["HitBottom", "onMsgBox", 1, function (grid) { grid.MSFlexGrid1.userKey(35, 2); }],
].forEach(function (row) {
    ends(row[0], grouped, function (grid, end) {
        host[row[1]] = end;
        try {
            row[3](grid);
        } catch (e) {
            // As above.
        }
    }, row[2]);
});

// A handler that fails ends its command, and the control goes on.
["addcolumn", "InsertColumn", "DelColumn"].forEach(function (name, i) {
    var grid = plain();
    grid.MSFlexGrid1.userSelect(1, 1);
    var fail = function () {
        throw new Error("no");
    };
    grid.events[name].connect(fail);
    var thrown = "";
    try {
        grid.Picture1.click(["mnuAddColumn", "mnuInsertColumn", "mnuDelColumn"][i]);
    } catch (e) {
        thrown = e.message;
    }
    check(name + ": its failure comes out", thrown, "no");
    check(name + ": columns agree", [grid.MSFlexGrid1.Cols, host.pointer, grid.Redraw], [grid.Columns.Count, 0, true]);
    grid.events[name].disconnect(fail);
    grid.Picture1.click("mnuAddColumn");
    check(name + ": usable", grid.MSFlexGrid1.Cols, grid.Columns.Count);
});

finish();
