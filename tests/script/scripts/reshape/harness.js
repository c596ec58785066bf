// What every case of this folder starts from. To run one by hand:
//     cat harness.js menu_state.js > /tmp/case.js && zkpreport run /tmp/case.js

host.locale = "el_GR";

var failed = 0;

function check(what, got, expected) {
    if (JSON.stringify(got) === JSON.stringify(expected))
        return;
    ++failed;
    print("FAILED " + what + "\n   got      " + JSON.stringify(got) + "\n   expected " + JSON.stringify(expected));
}

// The last line of each case.
function finish() {
    if (failed > 0)
        throw new Error(failed + " checks failed");
    print("passed");
}

// Six fields, one of them not offered. By caption: agent, branch (both may group), premium (sums),
// count (averages), note (neither).
var cn = new Connection();
cn.Open("sqlite:");
cn.Execute("CREATE TABLE FIELDS (dtfld TEXT, Cptn TEXT, wdth MONEY, Algn INTEGER, isgroup INTEGER, isTot INTEGER, " +
           "visbl INTEGER, IsPublic INTEGER, [Sum] INTEGER, [Avg] INTEGER, [Min] INTEGER, [Max] INTEGER, " +
           "crosstabdate INTEGER, SOURCEFIELDNAME TEXT, SourceTableName TEXT, Expr TEXT, KeyMaster TEXT, " +
           "foreignkey TEXT)");
cn.Execute("INSERT INTO FIELDS VALUES " +
           "('AGENT',   'Ασφαλιστής', 2000, 1, 1, 0, 1, 1, 0, 0, 0, 0, 0, 'AGENT',   'SALES', NULL, NULL, NULL), " +
           "('BRANCH',  'Κλάδος',     1500, 4, 1, 0, 1, 1, 0, 0, 0, 0, 0, 'BRANCH',  'SALES', NULL, NULL, NULL), " +
           "('PREMIUM', 'Μικτά',      1200, 7, 0, 1, 1, 1, 1, 0, 0, 0, 0, 'PREMIUM', 'SALES', NULL, NULL, NULL), " +
           "('PCOUNT',  'Πλήθος',      900, 7, 0, 1, 1, 1, 0, 1, 0, 0, 0, 'PCOUNT',  'SALES', NULL, NULL, NULL), " +
           "('NOTE',    'Σχόλιο',     3000, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0, 'NOTE',    'SALES', NULL, NULL, NULL), " +
           "('OLD',     'Άχρηστο',     500, 0, 1, 1, 0, 1, 1, 0, 0, 0, 0, 'OLD',     'SALES', NULL, NULL, NULL)");
cn.Execute("CREATE TABLE SALES (AGENT TEXT, BRANCH TEXT, PREMIUM MONEY, PCOUNT INTEGER, NOTE TEXT)");
cn.Execute("INSERT INTO SALES VALUES ('Άννα', 'Ζωής', 100, 1, 'α'), ('Άννα', 'Πυρός', 200, 2, 'β'), " +
           "('Βασίλης', 'Ζωής', 300, 3, 'γ')");

// A control with a column for each field, headed by the field's name, and nothing read yet.
function gridOf(fields) {
    var grid = new ZkpGrid();
    grid.Cols = fields.length;
    for (var c = 0; c < fields.length; ++c) {
        grid.setColDataField(c, fields[c]);
        grid.setColCaption(c, fields[c]);
        grid.setColWidth(c, 1000 + 10 * c);
        grid.setColAlignment(c, 0);
    }
    grid.clmns = "FIELDS";
    grid.Fill(cn, "SELECT * FROM SALES ORDER BY AGENT, BRANCH", ZKP_SQLStatement);
    return grid;
}

// The same, the first `factors` columns being group factors, its three records read.
function loaded(fields, factors) {
    var grid = gridOf(fields);
    for (var c = 0; c < (factors || 0); ++c)
        grid.setColForTot(c, true);
    grid.CheckGroupBy();
    grid.refresh();
    return grid;
}

// A totals report in its shape: its dictionary is read, its rows are not.
function totalsShape(fields, factors) {
    var grid = gridOf(fields);
    grid.TotalForm = true;
    grid.RefreshOnChange = false;
    for (var c = 0; c < factors; ++c)
        grid.setColForTot(c, true);
    grid.CheckGroupBy();
    grid.FillGrid();
    return grid;
}

function tool(grid, name) {
    return grid.Picture1.Tools(name);
}

function entries(listTool) {
    var all = [];
    for (var i = 0; i < listTool.ListCount; ++i)
        all.push(listTool.List(i));
    return all;
}

function fieldsOf(grid) {
    var all = [];
    for (var n = 1; n <= grid.Columns.Count; ++n)
        all.push(grid.Columns.Item(n).Datafield);
    return all;
}

// The texts of one row of the surface.
function rowOf(grid, row) {
    var all = [];
    for (var c = 0; c < grid.MSFlexGrid1.Cols; ++c)
        all.push(grid.MSFlexGrid1.TextMatrix(row, c));
    return all;
}

// An array that fills with the names of these events as they are raised.
function listen(grid, names) {
    var log = [];
    names.forEach(function (name) {
        grid.events[name].connect(function (e) {
            log.push(name === "InsertColumn" || name === "DelColumn" ? name + " " + e.WhatCol : name);
        });
    });
    return log;
}

// The boxes shown by an act, as "STYLE TEXT"; each is answered with `button` (6 Yes, 7 No, 2 Cancel).
function boxesOf(button, act) {
    var before = host.messages.length;
    host.onMsgBox = function () {
        return button;
    };
    act();
    host.onMsgBox = null;
    return host.messages.slice(before).map(function (box) {
        return box.style + " " + box.text;
    });
}

function press(grid, row, col) {
    grid.MSFlexGrid1.userPress(1, 0, 100, 100, row, col);
}

function drop(grid, from, to) {
    press(grid, 0, from);
    grid.MSFlexGrid1.userDrop(from, to);
}
