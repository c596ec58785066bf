// Which tools can be chosen: by the current column and the kind of report, and by nothing else.

var tools = ["mnuInsertColumn", "mnuSort", "mnuColumnProperties", "mnuDelColumn", "mnuInsertGroup", "mnuAddGroup", "mnuGraph"];

// One letter a tool: + can be chosen, - can't. All stand wrong before, so that each must be set.
function states(grid, col, expected) {
    grid.MSFlexGrid1.Col = col;
    tools.forEach(function (name, i) {
        tool(grid, name).Enabled = expected[i] !== "+";
    });
    grid.MenuRefresh();
    return tools.map(function (name) {
        return tool(grid, name).Enabled ? "+" : "-";
    }).join("");
}

// Columns: two group factors, a plain one, a plain static one, a static group factor.
[
    // TotalForm, Col, expected
    [false, 0, "--++++-"],
    [false, 1, "--++++-"],
    [false, 2, "++++-+-"],
    [false, 3, "+++--+-"],
    [true, 0, "--+++++"],
    [true, 1, "--+++++"],
    [true, 2, "++++-+-"],
    [true, 3, "+++--+-"],
].forEach(function (row) {
    var grid = gridOf(["AGENT", "BRANCH", "PREMIUM", "NOTE"]);
    grid.TotalForm = row[0];
    grid.setColForTot(0, true);
    grid.setColForTot(1, true);
    grid.setColStatic(3, true);
    grid.CheckGroupBy();
    check("TotalForm " + row[0] + ", column " + row[1], states(grid, row[1], row[2]), row[2]);
});

// A static group factor of a totals report: the chart yes, deleting no.
var factor = gridOf(["AGENT", "PREMIUM"]);
factor.TotalForm = true;
factor.setColForTot(0, true);
factor.setColStatic(0, true);
factor.CheckGroupBy();
check("static group factor", states(factor, 0, "--+-+++"), "--+-+++");

// The count of group factors decides, not the flag: until it is taken the column is a plain one.
var uncounted = gridOf(["AGENT", "PREMIUM"]);
uncounted.setColForTot(0, true);
check("flag not counted yet", states(uncounted, 0, "++++-+-"), "++++-+-");
uncounted.CheckGroupBy();
check("flag counted", states(uncounted, 0, "--++++-"), "--++++-");

// Always on, whatever the column is.
var grid = gridOf(["AGENT", "PREMIUM"]);
var always = ["mnuTemplate", "mnuBackColor", "mnuForeColor", "mnuFonts", "mnuSaveTemplate", "mnuAlignLeft", "mnuAlignCenter", "mnuAlignRight"];
always.forEach(function (name) {
    tool(grid, name).Enabled = false;
});
grid.MenuRefresh();
check("always on", always.filter(function (name) {
    return !tool(grid, name).Enabled;
}), []);

// A tool's state is one for all the bands where it stands.
factor.MSFlexGrid1.Col = 0;
factor.MenuRefresh();
var inBands = [];
["BndTemplate", " mnuChooceObject", "mnuColumn", "mnuFormat"].forEach(function (band) {
    try {
        inBands.push(factor.Picture1.Bands(band).Tools("mnuSort").Enabled);
    } catch (e) {
        // It needn't stand in every band.
    }
});
check("in all its bands", [inBands.length > 0, inBands.indexOf(true)], [true, -1]);

// A change of the current cell brings the tools along by itself.
factor.MSFlexGrid1.userSelect(1, 1);
check("after a selection", tool(factor, "mnuInsertColumn").Enabled, true);

// A menu that doesn't show is left in its last state.
factor.MenusVisible = false;
factor.MSFlexGrid1.Col = 0;
factor.MenuRefresh();
check("MenusVisible False", tool(factor, "mnuInsertColumn").Enabled, true);
factor.MenusVisible = true;
factor.MenuRefresh();
check("MenusVisible True again", tool(factor, "mnuInsertColumn").Enabled, false);

finish();
