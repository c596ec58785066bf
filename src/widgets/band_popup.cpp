#include "widgets/band_popup.h"

#include <QActionGroup>
#include <QLineEdit>
#include <QMenu>
#include <QWidgetAction>

namespace zkp {

namespace {

constexpr int kDeepest = 8; // a band that opens itself must not go on for ever

class Builder {
public:
    Builder(const MenuBar& bar, const BandPopupActions& actions)
        : bar_(bar)
        , actions_(actions) {}

    void fill(QMenu& menu, const Band& band, int depth) const {
        for (const auto& tool : band.tools)
            if (tool->Visible)
                add(menu, *tool, depth);
    }

private:
    void add(QMenu& menu, const Tool& tool, int depth) const {
        switch (tool.kind) {
        case ToolKind::Separator:
            menu.addSeparator();
            return;
        case ToolKind::SubMenu:
            addSubMenu(menu, tool, depth);
            return;
        case ToolKind::List:
            addList(menu, tool);
            return;
        case ToolKind::Text:
            addText(menu, tool);
            return;
        case ToolKind::Label:
            menu.addSection(tool.Text.isEmpty() ? tool.Caption : tool.Text);
            return;
        case ToolKind::Button:
        case ToolKind::Check:
            addEntry(menu, tool);
        }
    }

    void addEntry(QMenu& menu, const Tool& tool) const {
        QAction* action = menu.addAction(tool.Caption);
        action->setEnabled(tool.Enabled);
        action->setCheckable(tool.kind == ToolKind::Check || tool.Checked);
        action->setChecked(tool.Checked);
        QObject::connect(action, &QAction::triggered, &menu,
                         [click = actions_.click, name = tool.Name] { click(name); });
    }

    void addSubMenu(QMenu& menu, const Tool& tool, int depth) const {
        QMenu* sub = menu.addMenu(tool.Caption);
        sub->setEnabled(tool.Enabled);
        for (const auto& band : bar_.bands())
            if (depth < kDeepest && band->Name.compare(tool.subBand, Qt::CaseInsensitive) == 0)
                fill(*sub, *band, depth + 1);
    }

    void addList(QMenu& menu, const Tool& tool) const {
        QMenu* sub = menu.addMenu(tool.Caption);
        sub->setEnabled(tool.Enabled);
        auto* group = new QActionGroup(sub);
        for (int i = 0; i < tool.ListCount(); ++i) {
            QAction* action = sub->addAction(tool.list[i]);
            action->setCheckable(true);
            action->setChecked(i == tool.ListIndex);
            group->addAction(action);
            QObject::connect(action, &QAction::triggered, sub,
                             [change = actions_.changeList, name = tool.Name, i] { change(name, i); });
        }
    }

    void addText(QMenu& menu, const Tool& tool) const {
        auto* box = new QLineEdit(tool.Text, &menu);
        box->setPlaceholderText(tool.Caption);
        box->setEnabled(tool.Enabled);
        auto* action = new QWidgetAction(&menu);
        action->setDefaultWidget(box);
        menu.addAction(action);
        QObject::connect(box, &QLineEdit::returnPressed, &menu,
                         [change = actions_.changeText, name = tool.Name, box, menu = &menu] {
                             menu->close();
                             change(name, box->text());
                         });
    }

    const MenuBar& bar_;
    const BandPopupActions& actions_;
};

} // namespace

QMenu* makeBandPopup(const MenuBar& bar, const Band& band, const BandPopupActions& actions, QWidget* parent) {
    auto* menu = new QMenu(parent);
    Builder(bar, actions).fill(*menu, band, 0);
    return menu;
}

} // namespace zkp
