// The title command: the answer is the title at once, even an empty one, and the host is always told.

function titled(answer) {
    var grid = loaded(["AGENT", "PREMIUM"]);
    grid.PrintCaption = "Παλιός";
    var asked = null, seen = null, keys = 0, raised = 0;
    grid.events.PropertyChanged.connect(function (e) {
        if (e.name === "PrintCaption")
            ++keys;
    });
    grid.events.MenuTitle.connect(function () {
        ++raised;
        seen = grid.PrintCaption;
    });
    host.onInputBox = function (e) {
        asked = [e.prompt, e.title, e.text];
        return answer;
    };
    grid.Picture1.click("mnuTitle");
    host.onInputBox = null;
    return [asked, grid.PrintCaption, raised, seen, keys];
}

var asked = ["Τίτλος Υποδείγματος:", "Αλλαγή Τίτλου Υποδείγματος", "Παλιός"];
check("a title", titled("Νέος"), [asked, "Νέος", 1, "Νέος", 1]);
check("nothing, or cancelled", titled(""), [asked, "", 1, "", 0]);
check("blanks", titled("   "), [asked, "   ", 1, "   ", 0]);
check("blanks around", titled(" α "), [asked, " α ", 1, " α ", 1]);

finish();
