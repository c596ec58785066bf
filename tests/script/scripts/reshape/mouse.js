// Presses and moves of the mouse: who is told, and which pointer shows.

function plain(factors) {
    return loaded(["AGENT", "BRANCH", "PREMIUM", "NOTE"], factors);
}

function totals() {
    return totalsShape(["AGENT", "BRANCH", "Cnt", "SUM_PREMIUM"], 2);
}

// What a press raises, and the surface's tag after it.
function pressed(grid, button, row, col) {
    var log = [];
    grid.events.MouseDown.connect(function (e) {
        log.push([e.Button, e.Shift, e.X, e.Y].join(" "));
    });
    grid.MSFlexGrid1.Tag = "old";
    grid.MSFlexGrid1.userPress(button, 1, 30, 45, row, col);
    return [log.join(), grid.MSFlexGrid1.Tag];
}

var left = "1 1 30 45", right = "2 1 30 45";

// A left press in a plain report: only a heading behind the first column after the factors is told.
[
    // factors, row, col, MouseDown, tag
    [0, 0, 0, "", ""],
    [0, 0, 1, left, "1"],
    [0, 0, 3, left, "3"],
    [0, 1, 1, "", ""],
    [1, 0, 0, "", ""],
    [1, 0, 1, "", ""],
    [1, 0, 2, left, "2"],
    [2, 0, 2, "", ""],
    [2, 0, 3, left, "3"],
    [1, 2, 3, "", ""],
].forEach(function (row) {
    var grid = plain(row[0]);
    var name = "left, " + row[0] + " factors, row " + row[1] + ", column " + row[2];
    check(name, pressed(grid, 1, row[1], row[2]), [row[3], row[4]]);
    check(name + ": current column", grid.MSFlexGrid1.Col, row[2]);
    check(name + ": no popup", grid.Picture1.lastPopup, "");
});

// In a totals report every heading is told; one that shows running numbers can't be dragged.
[0, 1, 2, 3].forEach(function (col) {
    check("totals, heading " + col, pressed(totals(), 1, 0, col), [left, String(col)]);
});
check("totals, data row", pressed(totals(), 1, 1, 3), ["", ""]);
var numbered = totals();
numbered.setColcnt(2, true);
check("totals, numbered column", pressed(numbered, 1, 0, 2), [left, ""]);
check("totals, numbered column: pointer", numbered.MousePointer, 12);

// In a plain report running numbers don't matter.
numbered = plain(0);
numbered.setColcnt(2, true);
check("plain, numbered column", [pressed(numbered, 1, 0, 2), numbered.MousePointer], [[left, "2"], 0]);

// A right press, anywhere: tools up to date, the popup, and it is told.
[[1, 0], [0, 0], [2, 3], [0, 3]].forEach(function (place) {
    var grid = plain(1);
    tool(grid, "mnuFonts").Enabled = false;
    var name = "right, row " + place[0] + ", column " + place[1];
    check(name, pressed(grid, 2, place[0], place[1])[0], right);
    check(name + ": popup", grid.Picture1.lastPopup.trim(), "mnuChooceObject");
    check(name + ": current column", grid.MSFlexGrid1.Col, place[1]);
    check(name + ": tools", [tool(grid, "mnuFonts").Enabled, tool(grid, "mnuInsertColumn").Enabled], [true, place[1] > 0]);
});

// Never told: the release. A click and a double click are, whatever the press was.
var grid = plain(1);
var log = listen(grid, ["MouseDown", "MouseUp", "Click", "DblClick"]);
grid.MSFlexGrid1.userPress(1, 0, 30, 45, 1, 2);
grid.MSFlexGrid1.userRelease(1, 0, 30, 45, 1, 2);
grid.MSFlexGrid1.userClick(1, 2);
grid.MSFlexGrid1.userDblClick(1, 2);
check("press, release, click, double click on a row", log, ["Click", "DblClick"]);

// Moves: the control's pointer.
grid = plain(2);
grid.mnuAddOmadopoihsh_Click();
grid.Cols = 6;
grid.setColDataField(5, "PCOUNT");
// Columns now: two factors with fields, a factor without one, three plain ones.
[
    // pressed heading, heading under the pointer, pointer
    [3, 4, 99],
    [3, 3, 99],
    [5, 3, 99],
    [0, 1, 99],
    [1, 0, 99],
    [0, 3, 12],
    [4, 1, 12],
    [0, 2, 12],
    [2, 0, 12],
    [2, 2, 12],
    [2, 4, 12],
].forEach(function (row) {
    press(grid, 0, row[0]);
    grid.MousePointer = 0;
    grid.MSFlexGrid1.MousePointer = 5;
    grid.MSFlexGrid1.userMove(1, 0, 60, 60, 0, row[1]);
    check("drag " + row[0] + " over " + row[1], [grid.MousePointer, grid.MSFlexGrid1.MousePointer], [row[2], 0]);
});

// Over a row the control's pointer is the usual one, button or none.
[0, 1].forEach(function (button) {
    grid.MousePointer = 12;
    grid.MSFlexGrid1.MousePointer = 5;
    grid.MSFlexGrid1.userMove(button, 0, 60, 60, 1, 4);
    check("over a row, button " + button, [grid.MousePointer, grid.MSFlexGrid1.MousePointer], [0, 0]);
});

// Over a heading with no button, or another one, only the surface's pointer is reset.
[0, 2, 4].forEach(function (button) {
    grid.MousePointer = 12;
    grid.MSFlexGrid1.MousePointer = 5;
    grid.MSFlexGrid1.userMove(button, 0, 60, 60, 0, 4);
    check("over a heading, button " + button, [grid.MousePointer, grid.MSFlexGrid1.MousePointer], [12, 0]);
});

// With the menu hidden there is no feedback at all.
grid.MenusVisible = false;
[0, 1].forEach(function (row) {
    grid.MousePointer = 12;
    grid.MSFlexGrid1.MousePointer = 5;
    grid.MSFlexGrid1.userMove(1, 0, 60, 60, row, 4);
    check("MenusVisible False, row " + row, [grid.MousePointer, grid.MSFlexGrid1.MousePointer], [12, 0]);
});

// Ctrl with End tells of the bottom and moves nothing. No other key does.
grid = plain(0);
grid.MSFlexGrid1.userSelect(2, 1);
function keyed(code, shift) {
    return boxesOf(1, function () {
        grid.MSFlexGrid1.userKey(code, shift);
    }).map(function (box) {
        return box.slice(box.indexOf(" ") + 1);
    });
}
check("Ctrl with End", keyed(35, 2), ["HitBottom"]);
check("Ctrl and Shift with End", keyed(35, 3), ["HitBottom"]);
check("End, Shift with End, Ctrl with Home", [keyed(35, 0), keyed(35, 1), keyed(36, 2)], [[], [], []]);
check("the current row stays", grid.MSFlexGrid1.Row, 2);

finish();
