// Hundreds of commands in a row, held against a plain list of what each does to a column.

var dictionary = [
    {field: "AGENT", caption: "Ασφαλιστής", alignment: 1, width: 2000, group: true},
    {field: "BRANCH", caption: "Κλάδος", alignment: 4, width: 1500, group: true},
    {field: "PREMIUM", caption: "Μικτά", alignment: 7, width: 1200},
    {field: "PCOUNT", caption: "Πλήθος", alignment: 7, width: 900},
    {field: "NOTE", caption: "Σχόλιο", alignment: 0, width: 3000},
];
var shown = {1: 0, 4: 3, 7: 6};

function surfaceAlignment(stored) {
    return shown[stored] === undefined ? stored : shown[stored];
}

// The same sequence in every run.
function Dice(seed) {
    this.state = seed;
}
Dice.prototype.upTo = function (n) {
    this.state = (this.state * 1103515245 + 12345) % 2147483648;
    return Math.floor(this.state / 65536) % n;
};

function newColumn(width, alignment) {
    return {field: " ", caption: " ", heading: " ", factor: false, width: width, alignment: alignment,
            aligned: surfaceAlignment(alignment), texts: ["", "", ""]};
}

function start(grid) {
    return ["AGENT", "PREMIUM", "NOTE"].map(function (field, c) {
        return {field: field, caption: field, heading: field, factor: c === 0, width: 1000 + 10 * c, alignment: 0, aligned: 0,
                texts: [1, 2, 3].map(function (row) { return grid.TextMatrix(row, c); })};
    });
}

function expectedState(list) {
    return list.map(function (column) {
        return [column.field, column.caption, column.heading, column.factor, column.width, column.alignment, column.aligned].concat(column.texts).join("|");
    });
}

function state(grid) {
    return fieldsOf(grid).map(function (field, c) {
        return [field, grid.ColCaption(c), grid.TextMatrix(0, c), grid.ColForTot(c), grid.ColWidth(c), grid.Columns.Item(c + 1).Alignment, grid.ColAlignment(c),
                grid.TextMatrix(1, c), grid.TextMatrix(2, c), grid.TextMatrix(3, c)].join("|");
    });
}

function factorsOf(list) {
    return list.filter(function (column) {
        return column.factor;
    }).length;
}

function blankFactors(list) {
    return list.some(function (column) {
        return column.factor && column.field.trim() === "";
    });
}

// Each act does something to the control and the same to the list; `c` is the current column, `n` another number.
var acts = {
    add: function (grid, list) {
        grid.Picture1.click("mnuAddColumn");
        // Nothing is written to the surface yet: it shows a column of its own width, with no heading.
        var made = newColumn(grid.MSFlexGrid1.ColWidth(list.length), list[list.length - 1].aligned);
        made.heading = "";
        made.aligned = 0;
        list.push(made);
    },
    insert: function (grid, list, c) {
        if (list[c].factor)
            return;
        grid.Picture1.click("mnuInsertColumn");
        list.splice(c, 0, newColumn(1000, 0));
    },
    addFactor: function (grid, list) {
        grid.Picture1.click("mnuAddGroup");
        var made = newColumn(1000, 0);
        made.factor = true;
        list.splice(factorsOf(list), 0, made);
    },
    insertFactor: function (grid, list, c) {
        if (!list[c].factor)
            return;
        grid.Picture1.click("mnuInsertGroup");
        var made = newColumn(1000, 0);
        made.factor = true;
        list.splice(c, 0, made);
    },
    remove: function (grid, list, c) {
        grid.Picture1.click("mnuDelColumn");
        if (list.length > 1)
            list.splice(c, 1);
    },
    drop: function (grid, list, c, n) {
        var to = n % list.length, a = list[c], b = list[to];
        drop(grid, c, to);
        var noField = a.field.trim() === "" || b.field.trim() === "";
        if (c === to || a.factor !== b.factor || a.factor && noField)
            return;
        list.splice(to, 0, list.splice(c, 1)[0]);
        list.forEach(function (column) {
            column.heading = column.caption;
            column.aligned = surfaceAlignment(column.alignment);
        });
    },
    field: function (grid, list, c, n) {
        var offered = list[c].factor ? dictionary.slice(0, 2) : dictionary, entry = offered[n % offered.length];
        // Factors without a field beside this one would bring more columns in.
        if (list[c].factor && blankFactors(list.slice(0, c).concat(list.slice(c + 1))))
            return;
        grid.Picture1.changeList("mnuField", n % offered.length);
        if (list[c].field === entry.field)
            return;
        list[c].field = entry.field;
        list[c].caption = list[c].heading = entry.caption;
        list[c].alignment = entry.alignment;
        list[c].aligned = surfaceAlignment(entry.alignment);
        list[c].width = entry.width;
        list[c].texts = ["", "", ""];
    },
    caption: function (grid, list, c, n) {
        grid.Picture1.changeText("mnuCaption", "Στήλη " + n);
        list[c].caption = list[c].heading = "Στήλη " + n;
    },
    width: function (grid, list, c, n) {
        grid.MSFlexGrid1.userResizeColumn(c, 500 + n);
        list[c].width = 500 + n;
    },
    align: function (grid, list, c, n) {
        grid.Picture1.click(["mnuAlignLeft", "mnuAlignCenter", "mnuAlignRight"][n % 3]);
        list[c].alignment = list[c].aligned = [0, 3, 6][n % 3];
    },
    text: function (grid, list, c, n) {
        grid.setTextMatrix(1 + n % 3, c, "t" + n);
        list[c].texts[n % 3] = "t" + n;
    },
};
var names = Object.keys(acts);

for (var seed = 1; seed <= 12 && failed === 0; ++seed) {
    var dice = new Dice(seed);
    var grid = loaded(["AGENT", "PREMIUM", "NOTE"], 1);
    var list = start(grid);
    grid.RowSelect = seed % 2 === 0;
    grid.RefreshOnChange = false;
    host.onMsgBox = function () {
        return 7;
    };
    var told = "";
    for (var step = 0; step < 150 && failed === 0; ++step) {
        var c = dice.upTo(list.length), n = dice.upTo(1000);
        var name = list.length > 9 ? "remove" : names[dice.upTo(names.length)];
        told = "seed " + seed + ", step " + step + ", " + name + " at " + c + ", number " + n;
        grid.MSFlexGrid1.userSelect(1 + n % 3, c);
        acts[name](grid, list, c, n);
        check(told, state(grid), expectedState(list));
        check(told + ": sizes", [grid.Cols, grid.MSFlexGrid1.Cols, grid.GroupFactorCount, grid.Rows], [list.length, list.length, factorsOf(list), 4]);
        check(told + ": at rest", [host.pointer, grid.MousePointer, grid.Redraw, grid.RefreshOnChange], [0, 0, true, false]);
    }
    host.onMsgBox = null;
}

finish();
