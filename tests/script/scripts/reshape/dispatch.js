// From a tool's name to its command.

// Names reach their command in any case and with blanks behind them.
["mnuInsertColumn", "MNUINSERTCOLUMN", "MnuInsertColumn  "].forEach(function (name) {
    var grid = loaded(["AGENT", "PREMIUM"]);
    grid.MSFlexGrid1.userSelect(1, 1);
    var events = listen(grid, ["InsertColumn"]);
    grid.Picture1.click(name);
    check("'" + name + "'", [events, fieldsOf(grid)], [["InsertColumn 1"], ["AGENT", " ", "PREMIUM"]]);
});

// What the host decides is only told.
var told = ["MenuExportTable", "PrintCommand", "MenuSaveTemplate", "MenuSaveTemplateAs", "MenuTitle", "MenuLoadTemplate"];
[
    ["mnuExport", "MenuExportTable"],
    ["mnuPrint", "PrintCommand"],
    ["mnuSaveTemplate", "MenuSaveTemplate"],
    ["mnuSaveTemplateAs", "MenuSaveTemplateAs"],
].forEach(function (row) {
    var grid = loaded(["AGENT", "PREMIUM"]);
    var events = listen(grid, told);
    grid.Picture1.click(row[0]);
    check(row[0], events, [row[1]]);
});

// A name without a command does nothing, and even then the tools are brought up to date.
["txtRecs", "mnuGraphColumn", "mnuTemplate"].forEach(function (name) {
    var grid = loaded(["AGENT", "PREMIUM"]);
    var events = listen(grid, told.concat(["StartFilling", "addcolumn", "InsertColumn", "DelColumn"]));
    tool(grid, "mnuFonts").Enabled = false;
    grid.MSFlexGrid1.Col = 1;
    tool(grid, "mnuInsertColumn").Enabled = false;
    check(name + " shows no box", boxesOf(6, function () {
        grid.Picture1.click(name);
    }), []);
    check(name + " does nothing", [events, fieldsOf(grid)], [[], ["AGENT", "PREMIUM"]]);
    check(name + " ends in the tools' state", [tool(grid, "mnuFonts").Enabled, tool(grid, "mnuInsertColumn").Enabled], [true, true]);
});

// A tool that can't be chosen does nothing.
var grouped = loaded(["AGENT", "PREMIUM"], 1);
grouped.MSFlexGrid1.userSelect(1, 0);
grouped.Picture1.click("mnuInsertColumn");
check("disabled tool", fieldsOf(grouped), ["AGENT", "PREMIUM"]);

// Refresh reads nothing while reading is put off, unless the report is being designed.
var grid = loaded(["AGENT", "PREMIUM"]);
var fills = listen(grid, ["StartFilling"]);
grid.Picture1.click("mnuRefresh");
check("refresh", fills.length, 1);
grid.RefreshOnChange = false;
grid.Picture1.click("mnuRefresh");
check("refresh put off", [fills.length, grid.RefreshOnChange], [1, false]);
grid.DesignMode = true;
grid.Picture1.click("mnuRefresh");
check("refresh in design mode", [fills.length, grid.RefreshOnChange], [2, true]);
check("pointers", [host.pointer, grid.MousePointer], [0, 0]);

// Sorting: the tool's direction, however often it is chosen.
function orderAfter(name) {
    var grid = loaded(["AGENT", "PREMIUM"]);
    grid.MSFlexGrid1.userSelect(3, 1);
    var events = listen(grid, ["StartSorting", "StopSorting"]);
    var found = [];
    for (var i = 0; i < 2; ++i) {
        grid.MSFlexGrid1.Col = 1;
        grid.Picture1.click(name);
        found.push(grid.OrderBy.slice(grid.OrderBy.lastIndexOf(" ") + 1));
    }
    check(name + " events", events, ["StartSorting", "StopSorting", "StartSorting", "StopSorting"]);
    check(name + " column", [grid.OrderByAlias, grid.OrderByPhysical, grid.Row], ["PREMIUM", "IUM", 1]);
    return found;
}
check("mnuSort", orderAfter("mnuSort"), ["ASC", "ASC"]);
check("mnuSortAsc", orderAfter("mnuSortAsc"), ["ASC", "ASC"]);
check("mnuSortDesc", orderAfter("mnuSortDesc"), ["desc", "desc"]);

finish();
