// Columns and group factors added and inserted. None of this reads data.

var events = ["addcolumn", "InsertColumn", "DelColumn", "StartFilling"];

// InsertColumn: one empty column at its place, the rest moved with their texts.
var grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
var log = listen(grid, events);
grid.InsertColumn(1);
check("fields", fieldsOf(grid), ["AGENT", " ", "PREMIUM", "NOTE"]);
check("headings", rowOf(grid, 0), ["AGENT", " ", "PREMIUM", "NOTE"]);
check("texts", [rowOf(grid, 1), rowOf(grid, 3)], [["Άννα", "", "100,00", "α"], ["Βασίλης", "", "300,00", "γ"]]);
check("counts", [grid.Cols, grid.MSFlexGrid1.Cols, grid.Columns.Count], [4, 4, 4]);
var made = grid.Columns.Item(2);
check("the new column", [made.Caption, made.Datafield, made.calcEuro, made.Width, made.Alignment, made.Credit, made.Debit,
                         made.Balance, made.Totals, made.Stat_ic, made.lR, made.Index_Key, made.ForTot],
      [" ", " ", false, 1000, 0, false, false, false, false, false, false, false, false]);
check("its edit members", [made.EditRs, made.Editable, made.EditKind, made.EditTag, made.EditLength, made.EditField1, made.EditField2],
      [" ", false, 0, " ", 0, " ", " "]);
check("on the surface", [grid.ColWidth(1), grid.ColAlignment(1), grid.MSFlexGrid1.FixedAlignment(1)], [1000, 0, 4]);
check("widths moved too", [grid.ColWidth(0), grid.ColWidth(2), grid.ColWidth(3)], [1000, 1010, 1020]);
check("pointer", host.pointer, 0);
check("the method itself raises nothing", log, []);

grid = loaded(["AGENT", "PREMIUM"]);
grid.InsertColumn(0);
check("at the front", [fieldsOf(grid), rowOf(grid, 1)], [[" ", "AGENT", "PREMIUM"], ["", "Άννα", "100,00"]]);
grid.InsertColumn(3);
check("behind the last", fieldsOf(grid), [" ", "AGENT", "PREMIUM", " "]);

// A column added: at the end, current, told to the host when all is done.
grid = loaded(["AGENT", "PREMIUM"]);
log = listen(grid, events);
var seen = [];
grid.events.addcolumn.connect(function () {
    seen.push(grid.Cols, grid.MSFlexGrid1.Col, grid.RefreshOnChange, grid.Redraw, host.pointer);
});
grid.mnuAddColumn_Click();
check("add: fields", fieldsOf(grid), ["AGENT", "PREMIUM", " "]);
check("add: told", log, ["addcolumn"]);
check("add: what the host sees", seen, [3, 2, false, true, 0]);
check("add: defaults", [grid.ColForTot(2), grid.Columns.Item(3).Width, grid.ColCaption(2)], [false, 1250, " "]);
check("add: texts", rowOf(grid, 1), ["Άννα", "100,00", ""]);
grid.Picture1.click("mnuAddColumn");
check("add: by its tool", [grid.Cols, grid.MSFlexGrid1.Col, log], [4, 3, ["addcolumn", "addcolumn"]]);

// A column inserted: where the latest press or selection was.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
log = listen(grid, events);
press(grid, 1, 2);
grid.mnuInsert_Click();
check("insert: after a press", [fieldsOf(grid), log, grid.RefreshOnChange], [["AGENT", "PREMIUM", " ", "NOTE"], ["InsertColumn 2"], false]);
grid.MSFlexGrid1.userSelect(1, 1);
grid.Picture1.click("mnuInsertColumn");
check("insert: after a selection", [fieldsOf(grid), log[1]], [["AGENT", " ", "PREMIUM", " ", "NOTE"], "InsertColumn 1"]);

// A handler that writes `WhatCol` moves the column of the latest press.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.userSelect(1, 2);
grid.events.InsertColumn.connect(function (e) {
    e.WhatCol = 0;
});
grid.mnuInsert_Click();
grid.mnuInsert_Click();
check("insert: by a handler's word", fieldsOf(grid), [" ", "AGENT", "PREMIUM", " ", "NOTE"]);

// A group factor added: behind the others.
grid = loaded(["AGENT", "PREMIUM", "NOTE"], 1);
grid.FixedFontSize = 14;
grid.FixedFontBold = false;
grid.FixedFontItalic = true;
grid.FixedFontUnderline = false;
log = listen(grid, events);
grid.MSFlexGrid1.userSelect(1, 2);
grid.mnuAddOmadopoihsh_Click();
check("factor: fields", fieldsOf(grid), ["AGENT", " ", "PREMIUM", "NOTE"]);
check("factor: flags", [grid.ColForTot(0), grid.ColForTot(1), grid.ColForTot(2)], [true, true, false]);
check("factor: counted", [grid.GroupFactorCount, grid.FindGroupNum()], [2, 2]);
check("factor: current", grid.MSFlexGrid1.Col, 1);
check("factor: told", log, ["addcolumn"]);
check("factor: not read", [grid.RefreshOnChange, grid.Redraw], [false, true]);
grid.RowSelect = false;
grid.MSFlexGrid1.Select(0, 1);
check("factor: heading's font", [grid.MSFlexGrid1.CellFontSize, grid.MSFlexGrid1.CellFontBold, grid.MSFlexGrid1.CellFontItalic,
                                 grid.MSFlexGrid1.CellFontUnderline], [14, false, true, false]);

// The first group factor of a plain report goes to the front.
grid = loaded(["AGENT", "PREMIUM"]);
grid.MSFlexGrid1.userSelect(1, 1);
grid.Picture1.click("mnuAddGroup");
check("first factor", [fieldsOf(grid), grid.GroupFactorCount, grid.MSFlexGrid1.Col], [[" ", "AGENT", "PREMIUM"], 1, 0]);
check("first factor: its tools", [tool(grid, "mnuInsertGroup").Enabled, tool(grid, "mnuInsertColumn").Enabled], [true, false]);

// A group factor inserted: at the current column, which stays current.
grid = loaded(["AGENT", "BRANCH", "PREMIUM"], 2);
log = listen(grid, events);
grid.MSFlexGrid1.userSelect(1, 1);
grid.mnuInsertOmadopoihsh_Click();
check("inserted factor: fields", fieldsOf(grid), ["AGENT", " ", "BRANCH", "PREMIUM"]);
check("inserted factor: flags", [grid.ColForTot(0), grid.ColForTot(1), grid.ColForTot(2), grid.ColForTot(3)], [true, true, true, false]);
check("inserted factor: counted", [grid.GroupFactorCount, grid.MSFlexGrid1.Col], [3, 1]);
check("inserted factor: told as an added one", log, ["addcolumn"]);
check("inserted factor: not read", grid.RefreshOnChange, false);

// The place is the current column's, wherever the latest press was.
grid = loaded(["AGENT", "BRANCH", "PREMIUM"], 2);
grid.MSFlexGrid1.userSelect(1, 0);
var other = loaded(["AGENT", "PREMIUM", "NOTE"]);
press(other, 1, 2);
grid.mnuInsertOmadopoihsh_Click();
check("inserted factor: at the current column", fieldsOf(grid), [" ", "AGENT", "BRANCH", "PREMIUM"]);

finish();
