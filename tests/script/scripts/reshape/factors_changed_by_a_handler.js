// A handler brings the factors up to date, or takes them away, while their columns are being placed.
["CheckGroupBy", "MakeFixedForGroup"].forEach(function (step) {
    for (var round = 0; round < 20; ++round) {
        var grid = gridOf(["PREMIUM", "NOTE"]);
        grid.Groupby = "AGENT,BRANCH";
        var inside = false;
        grid.events.PropertyChanged.connect(function (e) {
            if (e.name !== "ColCaption" || inside)
                return;
            inside = true;
            grid[step]();
            inside = false;
        });
        grid.MakeFixedForGroup();
        check(step + ": both factors stand in front", fieldsOf(grid).slice(0, 2), ["AGENT", "BRANCH"]);
    }
});

var emptied = gridOf(["PREMIUM"]);
emptied.Groupby = "AGENT,BRANCH";
emptied.events.PropertyChanged.connect(function (e) {
    if (e.name === "ColDataField")
        emptied.Groupby = "";
});
emptied.MakeFixedForGroup();
check("a list that is emptied meanwhile", fieldsOf(emptied), ["AGENT", "BRANCH", "PREMIUM"]);

finish();
