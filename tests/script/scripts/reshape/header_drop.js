// A heading dropped on another place.

var question = "291 Να αλλάξω τη σειρά των Παραγόντων;";

// The boxes of a drop, answered with a button.
function dropped(grid, from, to, button) {
    return boxesOf(button || 6, function () {
        drop(grid, from, to);
    });
}

// Plain columns: the record moves with its heading, and so do the texts under it.
[
    // from, to, expected order
    [0, 2, ["BRANCH", "PREMIUM", "AGENT", "NOTE"], ["Ζωής", "100,00", "Άννα", "α"]],
    [0, 3, ["BRANCH", "PREMIUM", "NOTE", "AGENT"], ["Ζωής", "100,00", "α", "Άννα"]],
    [3, 0, ["NOTE", "AGENT", "BRANCH", "PREMIUM"], ["α", "Άννα", "Ζωής", "100,00"]],
    [2, 1, ["AGENT", "PREMIUM", "BRANCH", "NOTE"], ["Άννα", "100,00", "Ζωής", "α"]],
    [1, 1, ["AGENT", "BRANCH", "PREMIUM", "NOTE"], ["Άννα", "Ζωής", "100,00", "α"]],
].forEach(function (row) {
    var grid = loaded(["AGENT", "BRANCH", "PREMIUM", "NOTE"]);
    var fills = listen(grid, ["StartFilling"]);
    var name = row[0] + " to " + row[1];
    check(name + ": no question", dropped(grid, row[0], row[1]), []);
    check(name + ": fields", fieldsOf(grid), row[2]);
    check(name + ": headings", rowOf(grid, 0), row[2]);
    check(name + ": texts", rowOf(grid, 1), row[3]);
    check(name + ": nothing read", [fills, grid.RefreshOnChange], [[], true]);
    check(name + ": pointer", grid.MousePointer, 0);
});

// Width, alignment and the other members go with the record.
var grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.setColAlignment(1, 7);
grid.setColTotals(1, true);
grid.setColEditTag(1, "tag");
grid.setColStatic(2, true);
grid.setColCredit(2, true);
dropped(grid, 1, 2);
check("members", [grid.Columns.Item(3).Alignment, grid.ColTotals(2), grid.ColEditTag(2), grid.ColStatic(1), grid.Columns.Item(2).Credit],
      [7, true, "tag", true, true]);
check("none stays behind", [grid.ColTotals(1), grid.ColEditTag(1), grid.ColStatic(2), grid.Columns.Item(3).Credit],
      [false, " ", false, false]);
check("on the surface", [grid.ColAlignment(2), grid.ColAlignment(1), grid.ColWidth(2), grid.ColWidth(1)], [6, 0, 1010, 1020]);

// The widths that the surface shows are taken over first, even by a drop that moves nothing.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.setColWidth(1, 777);
grid.MSFlexGrid1.setColWidth(2, 888);
dropped(grid, 1, 1);
check("widths after a drop on its own place", [grid.Columns.Item(2).Width, grid.Columns.Item(3).Width], [777, 888]);
grid.MSFlexGrid1.setColWidth(1, 999);
dropped(grid, 1, 2);
check("widths after a move", [grid.ColWidth(1), grid.ColWidth(2)], [888, 999]);

// Refusals are silent and move nothing.
function refused(name, grid, from, to) {
    var fields = fieldsOf(grid), texts = [rowOf(grid, 0), rowOf(grid, 1)];
    grid.MSFlexGrid1.setColWidth(to, 654);
    check(name + ": silent", dropped(grid, from, to), []);
    check(name + ": nothing moves", [fieldsOf(grid), [rowOf(grid, 0), rowOf(grid, 1)]], [fields, texts]);
    check(name + ": width taken over", grid.Columns.Item(to + 1).Width, 654);
    check(name + ": pointer", grid.MousePointer, 0);
}

refused("a factor on a plain column", loaded(["AGENT", "PREMIUM", "NOTE"], 1), 0, 1);
refused("a plain column on a factor", loaded(["AGENT", "PREMIUM", "NOTE"], 1), 2, 0);
[[0, 1], [1, 0]].forEach(function (pair) {
    var grid = loaded(["AGENT", "PREMIUM"], 1);
    grid.mnuAddOmadopoihsh_Click();
    refused("a factor without a field, " + pair, grid, pair[0], pair[1]);
});

// A group factor: moved first, asked then.
[
    // button, StartFilling, Groupby
    [6, 1, "BRANCH,AGENT"],
    [7, 0, "AGENT,BRANCH"],
    [2, 0, "AGENT,BRANCH"],
].forEach(function (row) {
    var grid = loaded(["AGENT", "BRANCH", "PREMIUM"], 2);
    var fills = listen(grid, ["StartFilling"]);
    var name = "factor, button " + row[0];
    check(name + ": asked", dropped(grid, 1, 0, row[0]), [question]);
    check(name + ": columns", [fieldsOf(grid), rowOf(grid, 0)], [["BRANCH", "AGENT", "PREMIUM"], ["BRANCH", "AGENT", "PREMIUM"]]);
    check(name + ": read", fills.length, row[1]);
    check(name + ": grouped by", grid.Groupby, row[2]);
    check(name + ": still two factors", [grid.ColForTot(0), grid.ColForTot(1), grid.GroupFactorCount], [true, true, 2]);
});

// A factor on its own place isn't asked about.
check("factor on its own place", dropped(loaded(["AGENT", "BRANCH", "PREMIUM"], 2), 1, 1), []);

// Answered No, the rows stay grouped as they were until the next refresh.
grid = loaded(["AGENT", "BRANCH", "PREMIUM"], 2);
var rows = grid.Rows;
dropped(grid, 0, 1, 7);
check("No: rows stay", [grid.Rows, rowOf(grid, 1)], [rows, ["Ζωής", "Άννα", "100,00"]]);

// Outside the columns: nothing moves, and the control goes on.
grid = loaded(["AGENT", "PREMIUM", "NOTE"]);
[-1, 3, 99].forEach(function (to) {
    dropped(grid, 1, to);
    check("dropped at " + to, [fieldsOf(grid), rowOf(grid, 1)], [["AGENT", "PREMIUM", "NOTE"], ["Άννα", "100,00", "α"]]);
});
dropped(grid, 1, 2);
check("usable afterwards", fieldsOf(grid), ["AGENT", "NOTE", "PREMIUM"]);

// Without any rows, and before anything is read.
grid = gridOf(["AGENT", "PREMIUM", "NOTE"]);
grid.Rows = 1;
dropped(grid, 0, 2);
check("heading row only", [fieldsOf(grid), rowOf(grid, 0)], [["PREMIUM", "NOTE", "AGENT"], ["PREMIUM", "NOTE", "AGENT"]]);

// The current cell goes along without a word: the tools and a typed caption are those of the moved column.
grid = loaded(["AGENT", "BRANCH", "PREMIUM", "NOTE"]);
grid.MSFlexGrid1.userSelect(2, 1);
var selectings = 0;
grid.events.Selecting.connect(function () { ++selectings; });
drop(grid, 1, 3);
check("moved", fieldsOf(grid), ["AGENT", "PREMIUM", "NOTE", "BRANCH"]);
check("the current cell", [grid.Row, grid.Col, selectings], [2, 3, 0]);
check("its caption in the tool", tool(grid, "mnuCaption").Text, "BRANCH");
grid.Picture1.changeText("mnuCaption", "Κλάδος");
check("a typed caption", rowOf(grid, 0), ["AGENT", "PREMIUM", "NOTE", "Κλάδος"]);

finish();
