// A font given to a block of cells: the block that its left out arguments mean, and nothing else.

// The sizes of the surface's cells, a text for each row.
function sizes(grid) {
    var all = [];
    grid.RowSelect = false;
    for (var r = 0; r < grid.Rows; ++r) {
        var row = [];
        for (var c = 0; c < grid.Cols; ++c) {
            grid.MSFlexGrid1.Select(r, c);
            row.push(grid.MSFlexGrid1.CellFontSize === 20 ? "x" : ".");
        }
        all.push(row.join(""));
    }
    return all;
}

[
    // what, factors, arguments behind the font, the marked cells
    ["heading", 2, [0], ["xxxx", "....", "....", "...."]],
    ["row", 0, [2], ["....", "....", "xxxx", "...."]],
    ["row of a grouped report", 2, [2], ["....", "....", "..xx", "...."]],
    ["from a column", 2, [1, 1], ["....", ".xxx", "....", "...."]],
    ["from column 0", 2, [1, 0], ["....", "xxxx", "....", "...."]],
    ["to a row", 2, [1, undefined, 3], ["....", "..xx", "..xx", "..xx"]],
    ["to a column", 0, [1, undefined, undefined, 1], ["....", "xx..", "....", "...."]],
    ["a block", 1, [1, 1, 2, 2], ["....", ".xx.", ".xx.", "...."]],
    ["the heading and a row", 1, [0, undefined, 1], ["xxxx", "xxxx", "....", "...."]],
    ["no such row", 0, [4], ["....", "....", "....", "...."]],
    ["a row below 0", 0, [-1], ["....", "....", "....", "...."]],
].forEach(function (row) {
    var grid = gridOf(["AGENT", "BRANCH", "PREMIUM", "NOTE"]);
    grid.Rows = 4;
    for (var c = 0; c < row[1]; ++c)
        grid.setColForTot(c, true);
    grid.CheckGroupBy();
    var surface = grid.MSFlexGrid1, given = row[2];
    surface.Row = 3;
    surface.Col = 1;
    surface.FillStyle = 0;
    surface.Redraw = false;
    grid.SetCellFonts(given[0], "Serif", 20, true, true, false, given[1], given[2], given[3]);
    check(row[0] + ": all goes back", [surface.Row, surface.Col, surface.FillStyle, surface.Redraw], [3, 1, 0, false]);
    check(row[0], sizes(grid), row[3]);
});

// All five values reach the cells.
var grid = gridOf(["AGENT", "PREMIUM"]);
grid.Rows = 2;
grid.SetCellFonts(1, "Serif", 9.75, true, false, true);
grid.MSFlexGrid1.Select(1, 1);
check("values", [grid.MSFlexGrid1.CellFontName, grid.MSFlexGrid1.CellFontSize, grid.MSFlexGrid1.CellFontBold,
                 grid.MSFlexGrid1.CellFontItalic, grid.MSFlexGrid1.CellFontUnderline], ["Serif", 9.75, true, false, true]);

// The properties of the fixed font paint the heading at once, and only it.
[["FixedFontName", "CellFontName", "Serif"], ["FixedFontSize", "CellFontSize", 20], ["FixedFontItalic", "CellFontItalic", true],
 ["FixedFontUnderline", "CellFontUnderline", true]].forEach(function (row) {
    var grid = gridOf(["AGENT", "PREMIUM"]);
    grid.Rows = 2;
    var before = grid.MSFlexGrid1;
    before.Select(1, 1);
    var body = before[row[1]];
    grid[row[0]] = row[2];
    before.Select(0, 1);
    check(row[0] + ": heading", before[row[1]], row[2]);
    before.Select(1, 1);
    check(row[0] + ": body", before[row[1]], body);
});

finish();
