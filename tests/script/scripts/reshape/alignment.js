// One of the three alignment tools is checked, by the surface's alignment of the current column.

function marks(grid) {
    return ["mnuAlignLeft", "mnuAlignCenter", "mnuAlignRight"].map(function (name) {
        return tool(grid, name).Checked ? "x" : ".";
    }).join("");
}

var grid = gridOf(["AGENT", "PREMIUM"]);
var surface = grid.MSFlexGrid1;

surface.Col = 1;
["x..", "x..", "x..", ".x.", ".x.", ".x.", "..x", "..x", "..x", "..."].forEach(function (expected, alignment) {
    surface.setColAlignment(1, alignment);
    grid.MenuRefresh();
    check("surface alignment " + alignment, marks(grid), expected);
});

// Through the control the stored 1, 4 and 7 are the surface's 0, 3 and 6.
[[1, "x.."], [4, ".x."], [7, "..x"]].forEach(function (row) {
    grid.setColAlignment(1, row[0]);
    grid.MenuRefresh();
    check("stored alignment " + row[0], marks(grid), row[1]);
});

// The tools give the current column its alignment and are checked afterwards.
[["mnuAlignLeft", 0, "x.."], ["mnuAlignCenter", 3, ".x."], ["mnuAlignRight", 6, "..x"]].forEach(function (row) {
    grid.Picture1.click(row[0]);
    check(row[0] + " stores", grid.Columns.Item(2).Alignment, row[1]);
    check(row[0] + " shows", surface.ColAlignment(1), row[1]);
    check(row[0] + " is checked", marks(grid), row[2]);
});
check("the other column stays", [grid.Columns.Item(1).Alignment, surface.ColAlignment(0)], [0, 0]);

// The checks follow the current column.
surface.Col = 0;
grid.MenuRefresh();
check("left column", marks(grid), "x..");

// They stay as they are while the menu doesn't show.
grid.MenusVisible = false;
surface.Col = 1;
grid.MenuRefresh();
check("MenusVisible False", marks(grid), "x..");

finish();
