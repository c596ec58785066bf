#include "interaction/menu_commands.h"

#include "base/text.h"
#include "base/texts/columns.h"
#include "interaction/owner_guard.h"

#include <algorithm>

namespace zkp {

/// Which tool runs what.
struct MenuCommands::Table {
    struct Row {
        const char16_t* tool;
        void (*run)(MenuCommands&, const Tool&);
    };

    template <auto command, auto... arguments>
    static void call(MenuCommands& commands, const Tool& /*tool*/) {
        (commands.*command)(arguments...);
    }
    static void missing(MenuCommands& commands, const Tool& tool) { commands.sayMissing(tool); }

    template <auto event>
    static constexpr auto raise = call<&MenuCommands::raise, event>;
    template <auto command>
    static constexpr auto columns = call<&MenuCommands::changeColumns, command>;
    template <int section>
    static constexpr auto back = call<&MenuCommands::style, section, 0>;
    template <int section>
    static constexpr auto fore = call<&MenuCommands::style, section, 1>;
    template <int section>
    static constexpr auto font = call<&MenuCommands::font, section>;

    /// Tools that open a band, the list, the text and the label run nothing; nor do "mnuGraphColumn" and
    /// "mnuGiantGraph", as wanted.
    static constexpr Row rows[] = {
        {u"mnuRefresh", call<&MenuCommands::refresh>},
        {u"mnuPrint", raise<&Events::PrintCommand>},
        {u"ExportToExcel", missing},
        {u"mnuExport", raise<&Events::MenuExportTable>},
        {u"mnuGraph", missing},
        {u"mnuAddColumn", columns<&ColumnCommands::addColumn>},
        {u"mnuInsertColumn", columns<&ColumnCommands::insertColumn>},
        {u"mnuAddGroup", columns<&ColumnCommands::addGroup>},
        {u"mnuInsertGroup", columns<&ColumnCommands::insertGroup>},
        {u"mnuDelColumn", columns<&ColumnCommands::deleteCurrent>},
        {u"mnuColumnProperties", missing},
        {u"mnuAlignLeft", call<&MenuCommands::align, 0>},
        {u"mnuAlignCenter", call<&MenuCommands::align, 3>},
        {u"mnuAlignRight", call<&MenuCommands::align, 6>},
        {u"mnuSort", call<&MenuCommands::sort, false>},
        {u"mnuSaveTemplate", raise<&Events::MenuSaveTemplate>},
        {u"mnuSaveTemplateAs", raise<&Events::MenuSaveTemplateAs>},
        {u"mnuTitle", call<&MenuCommands::askForTitle>},
        {u"mnuGraphProperties", missing},
        {u"mnuFixedBackColor", back<0>},
        {u"mnuGroupedBackColor", back<1>},
        {u"mnuDetailsBackColor", back<2>},
        {u"mnuSubTotalsBackColor", back<3>},
        {u"mnuTotalsBackColor", back<4>},
        {u"mnuTitleBackColor", back<5>},
        {u"mnuFixedForeColor", fore<0>},
        {u"mnuGroupedForeColor", fore<1>},
        {u"mnuDetailsForeColor", fore<2>},
        {u"mnuSubTotalsForeColor", fore<3>},
        {u"mnuTotalsForeColor", fore<4>},
        {u"mnuTitleForeColor", fore<5>},
        {u"mnuStoixeiaForeColor", fore<6>},
        {u"mnuFixedFont", font<0>},
        {u"mnuGroupedFont", font<1>},
        {u"mnuDetailsFont", font<2>},
        {u"mnuSubTotalsFont", font<3>},
        {u"mnuTotalsFont", font<4>},
        {u"mnuSortAsc", call<&MenuCommands::sort, false>},
        {u"mnuSortDesc", call<&MenuCommands::sort, true>},
        {u"mnubarGraph", missing},
        {u"mnuHorBarGraph", missing},
        {u"mnuAreaGraph", missing},
        {u"mnuLineGraph", missing},
        {u"mnuPieChart", missing},
        {u"mnuCylinderGraph", missing},
        {u"mnuGraphKonoi", missing},
        {u"mnuPyramidGraph", missing},
        {u"mnuPrintGraph", missing},
    };
};

void MenuCommands::connect(MenuBar& menu, const std::weak_ptr<void>& owner) {
    clicks_ = menu.toolClicked.add(guardedBy(owner, lifetime_, [this](Tool& tool) { clicked(tool); }));
}

/// The menus follow a command that failed too.
void MenuCommands::clicked(const Tool& tool) {
    try {
        run(tool);
    } catch (const ControlDestroyed&) {
        throw;
    } catch (...) {
        lifetime_.throwIfDestroyed();
        menus_.MenuRefresh();
        throw;
    }
    lifetime_.throwIfDestroyed();
    menus_.MenuRefresh();
}

void MenuCommands::run(const Tool& tool) {
    const QString key = nameKey(tool.Name);
    for (const Table::Row& row : Table::rows) {
        if (nameKey(row.tool) != key)
            continue;
        row.run(*this, tool);
        return;
    }
}

/// A report that is being designed is read again even where changes to it held the rows.
void MenuCommands::refresh() {
    if (face_.DesignMode)
        setters_.setRefreshOnChange(true);
    lifetime_.throwIfDestroyed();
    refresh_();
}

void MenuCommands::sort(bool descending) {
    sorting_.setDirection(descending);
    sorting_.SortByDirection();
}

void MenuCommands::align(int alignment) {
    const int col = surface_.Col();
    if (col < std::min(surface_.Cols(), columns_.Count()))
        properties_.setColAlignment(col, alignment);
}

/// A cancelled box answers with an empty title, which is taken without a word to the host's bindings;
/// wanted. The host hears of it by the event.
void MenuCommands::askForTitle() {
    const QString title =
        boxes_.inputBox(texts::titlePrompt(), texts::titleHeading(), print_.PrintCaption).value_or(QString());
    lifetime_.throwIfDestroyed();
    setters_.keepPrintCaption(title);
    if (!isBlank(title))
        setters_.setPrintCaption(title);
    lifetime_.throwIfDestroyed();
    Q_EMIT events_.MenuTitle();
}

void MenuCommands::sayMissing(const Tool& tool) {
    boxes_.msgBox(texts::notThereYet(tool.Caption), kMsgBoxInformation);
}

} // namespace zkp
