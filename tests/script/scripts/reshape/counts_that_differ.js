// The surface has more columns than the collection: the control works on.
var grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.Cols = 5;
var selecting = 0;
grid.events.Selecting.connect(function () { ++selecting; });
grid.MSFlexGrid1.userSelect(2, 1);
grid.MSFlexGrid1.userSelect(3, 4);
check("Selecting is raised", selecting, 2);
grid.MSFlexGrid1.userResizeColumn(4, 500);
check("a column without a record is resized on the surface alone", grid.MSFlexGrid1.ColWidth(4), 500);
grid.CheckGroupBy();
check("no factors", grid.GroupFactorCount, 0);
check("no boxes", host.messages.length, 0);

// The first click on an empty control brings the tools in line with column 0, a group factor by now.
grid = gridOf(["AGENT", "PREMIUM"]);
grid.Groupby = "AGENT";
grid.MenuRefresh();
grid.MSFlexGrid1.userClick(0, 0);
check("a factor at column 0", [grid.GroupFactorCount, grid.MSFlexGrid1.Col], [1, 0]);
check("its tools", ["mnuInsertColumn", "mnuSort", "mnuInsertGroup"].map(function (name) {
    return tool(grid, name).Enabled;
}), [false, false, true]);

// Once the last column is deleted, what is typed heads the one that is current then.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.userSelect(1, 2);
grid.Picture1.click("mnuDelColumn");
grid.Picture1.changeText("mnuCaption", "Ποσό");
check("the new last column is renamed", [grid.ColCaption(0), grid.ColCaption(1)], ["AGENT", "Ποσό"]);

// A press on the heading row beside the columns prepares no drag.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
press(grid, 0, 2);
check("a drag of column 2", grid.MSFlexGrid1.Tag, "2");
press(grid, 0, -1);
check("none", grid.MSFlexGrid1.Tag, "");

// Without columns, or without rows, nothing ends in an error.
grid = loaded(["AGENT", "PREMIUM"]);
grid.MSFlexGrid1.Cols = 0;
grid.FontsRow(1);
grid.RefreshInterface(1);
grid = gridOf(["AGENT", "PREMIUM"]);
grid.MSFlexGrid1.FixedRows = 0;
grid.MSFlexGrid1.Rows = 0;
grid.RefreshOnChange = true;
grid.Picture1.click("mnuAddGroup");
check("the failed heading is told once", host.messages.length, 1);
check("nothing is read", grid.RefreshOnChange, false);

finish();
