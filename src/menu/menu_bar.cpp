#include "menu/menu_bar.h"

#include "base/error.h"
#include "base/text.h"

#include <algorithm>

namespace zkp {

namespace {

[[noreturn]] void failTool(QStringView name) {
    throw Error(kErrItemNotFound, QStringLiteral("There is no tool \"%1\"").arg(name));
}

} // namespace

Tool& Band::Tools(QStringView name) const {
    const QString key = nameKey(name);
    for (const auto& tool : tools)
        if (nameKey(tool->Name) == key)
            return *tool;
    failTool(name);
}

std::shared_ptr<Tool> MenuBar::needTool(QStringView name) const {
    std::shared_ptr<Tool> tool = tools_.value(nameKey(name));
    if (!tool)
        failTool(name);
    return tool;
}

Band& MenuBar::addBand(const QString& name) {
    for (const auto& band : bands_)
        if (sameName(band->Name, name))
            return *band;
    bands_.push_back(std::make_unique<Band>());
    bands_.back()->Name = name;
    return *bands_.back();
}

Tool& MenuBar::addTool(Band& band, const Tool& tool) {
    std::shared_ptr<Tool>& shared = tools_[nameKey(tool.Name)];
    if (!shared)
        shared = std::make_shared<Tool>(tool);
    const bool stands = std::find(band.tools.begin(), band.tools.end(), shared) != band.tools.end();
    if (!stands || tool.kind == ToolKind::Separator)
        band.tools.push_back(shared);
    return *shared;
}

Band& MenuBar::Bands(QStringView name) const {
    for (const auto& band : bands_)
        if (sameName(band->Name, name))
            return *band;
    throw Error(kErrItemNotFound, QStringLiteral("There is no band \"%1\"").arg(name));
}

Tool& MenuBar::Tools(QStringView name) const {
    return *needTool(name);
}

bool MenuBar::hasTool(QStringView name) const {
    return tools_.contains(nameKey(name));
}

bool MenuBar::isHeard(const Tool& tool) const {
    switch (tool.kind) {
    case ToolKind::Label:
        return true;
    case ToolKind::List:
        return !listChanged.isEmpty();
    case ToolKind::Text:
        return !textChanged.isEmpty();
    default:
        return !toolClicked.isEmpty();
    }
}

void MenuBar::Refresh() {
    views.tell([](const MenuBarView& view) {
        if (view.changed)
            view.changed();
    });
}

void MenuBar::popup(QStringView band) {
    const Band& opened = Bands(band);
    lastPopup_ = opened.Name;
    bool isOpen = false;
    views.tell([&](const MenuBarView& view) {
        if (view.popupWanted)
            view.popupWanted(opened, isOpen);
    });
}

void MenuBar::click(QStringView tool) {
    const std::shared_ptr<Tool> clicked = needTool(tool);
    if (clicked->Enabled)
        toolClicked.notify(*clicked);
}

void MenuBar::changeList(QStringView tool, int index) {
    const std::shared_ptr<Tool> list = needTool(tool);
    if (index < -1 || index >= list->ListCount())
        throw Error(kErrSubscript, QStringLiteral("The list has no entry %1").arg(index));
    if (!list->Enabled)
        return;
    list->ListIndex = index;
    list->Text = index < 0 ? QString() : list->list[index];
    listChanged.notify(*list);
}

void MenuBar::changeText(QStringView tool, const QString& text) {
    const std::shared_ptr<Tool> box = needTool(tool);
    if (!box->Enabled)
        return;
    box->Text = text;
    textChanged.notify(*box);
}

} // namespace zkp
