#include "platform/menu_bar.h"

#include "base/error.h"
#include "base/text.h"

#include <algorithm>

namespace zkp {

namespace {

std::shared_ptr<Tool> findTool(const std::vector<std::shared_ptr<Tool>>& tools, QStringView name) {
    const QString key = nameKey(name);
    const auto found = std::find_if(tools.begin(), tools.end(), [&](const std::shared_ptr<Tool>& tool) {
        return nameKey(tool->Name) == key;
    });
    return found == tools.end() ? nullptr : *found;
}

std::shared_ptr<Tool> needTool(const std::vector<std::shared_ptr<Tool>>& tools, QStringView name) {
    std::shared_ptr<Tool> tool = findTool(tools, name);
    if (!tool)
        throw Error(kErrItemNotFound, QStringLiteral("There is no tool \"%1\"").arg(name));
    return tool;
}

/// Calls a copy, since the function may put another one in its place while it runs.
template <class... Args>
void call(std::function<void(Args...)> function, Args... args) {
    if (function)
        function(args...);
}

} // namespace

Tool& Band::Tools(QStringView name) const {
    return *needTool(tools, name);
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
    std::shared_ptr<Tool> shared = findTool(tools_, tool.Name);
    if (!shared) {
        shared = std::make_shared<Tool>(tool);
        tools_.push_back(shared);
    }
    if (tool.kind == ToolKind::Separator || !findTool(band.tools, tool.Name))
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
    return *needTool(tools_, name);
}

bool MenuBar::hasTool(QStringView name) const {
    return findTool(tools_, name) != nullptr;
}

bool MenuBar::isHeard(const Tool& tool) const {
    switch (tool.kind) {
    case ToolKind::Label:
        return true;
    case ToolKind::List:
        return listChanged != nullptr;
    case ToolKind::Text:
        return textChanged != nullptr;
    default:
        return toolClicked != nullptr;
    }
}

void MenuBar::Refresh() {
    call(changed);
}

void MenuBar::popup(QStringView band) {
    const Band& opened = Bands(band);
    lastPopup_ = opened.Name;
    call<const Band&>(popupWanted, opened);
}

void MenuBar::click(QStringView tool) {
    const std::shared_ptr<Tool> clicked = needTool(tools_, tool);
    if (clicked->Enabled)
        call<Tool&>(toolClicked, *clicked);
}

void MenuBar::changeList(QStringView tool, int index) {
    const std::shared_ptr<Tool> list = needTool(tools_, tool);
    if (index < -1 || index >= list->ListCount())
        throw Error(kErrSubscript, QStringLiteral("The list has no entry %1").arg(index));
    if (!list->Enabled)
        return;
    list->ListIndex = index;
    list->Text = index < 0 ? QString() : list->list[index];
    call<Tool&>(listChanged, *list);
}

void MenuBar::changeText(QStringView tool, const QString& text) {
    const std::shared_ptr<Tool> box = needTool(tools_, tool);
    if (!box->Enabled)
        return;
    box->Text = text;
    call<Tool&>(textChanged, *box);
}

} // namespace zkp
