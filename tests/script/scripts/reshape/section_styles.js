// Colours and fonts of the report's sections, each by its own tool.

var backs = ["BackColorFixed", "GroupedBackColor", "BackColor", "SubTotalsBackColor", "TotalsBackcolor", "TitleBackColor"];
var fores = ["ForeColorFixed", "GroupedForecolor", "ForeColor", "SubTotalsForeColor", "TotalsForeColor", "TitleForecolor", "StoixeiaForecolor"];
var all = backs.concat(fores);

function report() {
    var grid = loaded(["AGENT", "PREMIUM"], 1);
    all.forEach(function (name, i) {
        grid[name] = 0x100 + i;
    });
    return grid;
}

function values(grid) {
    return all.map(function (name) {
        return grid[name];
    });
}

// What an act changes when the colour dialog is answered with `answer`: its start, the changed, the paints.
function chosen(grid, answer, act) {
    var before = values(grid), starts = [], paints = listen(grid, ["StopInterface"]);
    host.onColorDialog = function (e) {
        starts.push(e.Color);
        return answer;
    };
    act(grid);
    host.onColorDialog = null;
    var changed = all.filter(function (name, i) {
        return grid[name] !== before[i];
    });
    return [starts, changed.map(function (name) {
        return name + " " + grid[name].toString(16);
    }), paints.length];
}

[
    [0, 0, "mnuFixedBackColor", "BackColorFixed"],
    [1, 0, "mnuGroupedBackColor", "GroupedBackColor"],
    [2, 0, "mnuDetailsBackColor", "BackColor"],
    [3, 0, "mnuSubTotalsBackColor", "SubTotalsBackColor"],
    [4, 0, "mnuTotalsBackColor", "TotalsBackcolor"],
    [5, 0, "mnuTitleBackColor", "TitleBackColor"],
    [0, 1, "mnuFixedForeColor", "ForeColorFixed"],
    [1, 1, "mnuGroupedForeColor", "GroupedForecolor"],
    [2, 1, "mnuDetailsForeColor", "ForeColor"],
    [3, 1, "mnuSubTotalsForeColor", "SubTotalsForeColor"],
    [4, 1, "mnuTotalsForeColor", "TotalsForeColor"],
    [5, 1, "mnuTitleForeColor", "TitleForecolor"],
    [6, 1, "mnuStoixeiaForeColor", "StoixeiaForecolor"],
].forEach(function (row) {
    var start = 0x100 + all.indexOf(row[3]);
    check("section " + row[0] + ", what " + row[1], chosen(report(), 0x123456, function (grid) {
        grid.ChooseSectionStyle(row[0], row[1]);
    }), [[start], [row[3] + " 123456"], 1]);
    check(row[2], chosen(report(), 0x654321, function (grid) {
        grid.Picture1.click(row[2]);
    }), [[start], [row[3] + " 654321"], 1]);
    check(row[2] + " cancelled", chosen(report(), null, function (grid) {
        grid.Picture1.click(row[2]);
    }), [[start], [], 0]);
});

// The company block has no background.
check("section 6, background", chosen(report(), 0x123456, function (grid) {
    grid.ChooseSectionStyle(6, 0);
})[1], []);

// What is painted: the body, and the group factor's cells.
var painted = report();
chosen(painted, 0x00FF00, function (grid) {
    grid.Picture1.click("mnuGroupedBackColor");
});
painted.MSFlexGrid1.Select(1, 0);
check("group cells", painted.MSFlexGrid1.CellBackColor, 0x00FF00);

// Fonts: five values of a family.
var parts = ["FontName", "FontSize", "FontBold", "FontItalic", "FontUnderline"];
var families = ["Fixed", "Grouped", "", "SubTotals", "Totals"];

function font(grid, family) {
    return parts.map(function (part) {
        return grid[family + part];
    });
}

["mnuFixedFont", "mnuGroupedFont", "mnuDetailsFont", "mnuSubTotalsFont", "mnuTotalsFont"].forEach(function (name, section) {
    [function (grid) {
        grid.ChooseSectionFont(section, 2);
    }, function (grid) {
        grid.Picture1.click(name);
    }].forEach(function (act) {
        var grid = loaded(["AGENT", "PREMIUM"], 1);
        families.forEach(function (family, i) {
            grid[family + "FontName"] = "Serif";
            grid[family + "FontSize"] = 10 + i;
            grid[family + "FontBold"] = i % 2 === 0;
            grid[family + "FontItalic"] = i % 2 === 1;
            grid[family + "FontUnderline"] = false;
        });
        var paints = listen(grid, ["StopInterface"]), start = null;
        host.onFontDialog = function (e) {
            start = [e.FontName, e.FontSize, e.FontBold, e.FontItalic, e.FontUnderline];
            return null;
        };
        act(grid);
        var own = ["Serif", 10 + section, section % 2 === 0, section % 2 === 1, false];
        check(name + " cancelled", [start, font(grid, families[section]), paints.length], [own, own, 0]);

        host.onFontDialog = function () {
            return {FontName: "Sans", FontSize: 20, FontBold: true, FontItalic: false, FontUnderline: true};
        };
        act(grid);
        host.onFontDialog = null;
        check(name + " chosen", [font(grid, families[section]), paints.length], [["Sans", 20, true, false, true], 1]);
        check(name + " leaves the others", families.filter(function (family) {
            return grid[family + "FontName"] === "Sans";
        }), [families[section]]);
    });
});

// The heading shows its font at once, before any report is loaded.
var bare = gridOf(["AGENT", "PREMIUM"]);
host.onFontDialog = function () {
    return {FontName: "Sans", FontSize: 17, FontBold: false, FontItalic: true, FontUnderline: true};
};
bare.Picture1.click("mnuFixedFont");
host.onFontDialog = null;
bare.MSFlexGrid1.Select(0, 1);
check("heading cell", [bare.MSFlexGrid1.CellFontSize, bare.MSFlexGrid1.CellFontBold, bare.MSFlexGrid1.CellFontItalic,
                       bare.MSFlexGrid1.CellFontUnderline], [17, false, true, true]);

finish();
