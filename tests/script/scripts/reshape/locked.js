// Locked menus: the tools stay as they are and no heading is dragged.

var locked = ["mnuRefresh", "mnuColumnProperties", "mnuAddColumn", "mnuInsertColumn", "mnuAddGroup", "mnuInsertGroup", "mnuDelColumn", "mnuField", "mnuSort", "mnuPrint", "mnuExport"];

function enabled(grid) {
    return locked.filter(function (name) {
        return tool(grid, name).Enabled;
    });
}

var grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.userSelect(1, 1);
check("no command locks", enabled(grid).length, locked.length - 1);

grid.LockMenus();
check("locked", enabled(grid), []);
tool(grid, "mnuFonts").Enabled = false;
grid.MenuRefresh();
grid.MSFlexGrid1.userSelect(2, 2);
check("stays locked", [enabled(grid), tool(grid, "mnuFonts").Enabled], [[], false]);
grid.Picture1.click("mnuAddColumn");
check("a locked tool does nothing", fieldsOf(grid), ["AGENT", "PREMIUM", "NOTE"]);

// A press is told, with the pointer that says no; it leaves the surface's tag alone.
var log = [];
grid.events.MouseDown.connect(function (e) {
    log.push(e.Button);
});
[[0, 0], [0, 2], [1, 1]].forEach(function (place) {
    log.length = 0;
    grid.MousePointer = 0;
    grid.MSFlexGrid1.Tag = "old";
    press(grid, place[0], place[1]);
    check("press at " + place, [log, grid.MousePointer, grid.MSFlexGrid1.Tag], [[1], 12, "old"]);
});
grid.MSFlexGrid1.userPress(2, 0, 30, 45, 1, 1);
check("the popup opens all the same", [grid.Picture1.lastPopup.trim(), enabled(grid)], ["mnuChooceObject", []]);

// A drop takes over the widths and moves nothing.
grid.MSFlexGrid1.setColWidth(2, 765);
drop(grid, 1, 2);
check("drop", [fieldsOf(grid), rowOf(grid, 1), grid.Columns.Item(3).Width, grid.MousePointer],
      [["AGENT", "PREMIUM", "NOTE"], ["Άννα", "100,00", "α"], 765, 0]);

grid.UnlockMenus();
check("unlocked", enabled(grid), locked);
grid.MSFlexGrid1.Col = 2;
grid.MenuRefresh();
check("up to date again", [tool(grid, "mnuInsertGroup").Enabled, tool(grid, "mnuFonts").Enabled], [false, true]);
drop(grid, 1, 2);
check("drop again", fieldsOf(grid), ["AGENT", "NOTE", "PREMIUM"]);

finish();
