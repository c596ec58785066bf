#include "widgets/band/band_popup.h"

#include "base/text.h"
#include "widgets/band/tool_icons.h"

#include <QActionGroup>
#include <QLineEdit>
#include <QMenu>
#include <QWidgetAction>

namespace zkp {

namespace {

constexpr int kDeepest = 8; // a band that opens itself must not go on for ever

class Builder {
public:
    Builder(const MenuBar& bar, const BandActions& actions)
        : bar_(bar)
        , actions_(actions) {}

    void fill(QMenu& menu, const ToolList& tools, int depth) const {
        bool isParted = false;
        for (const auto& tool : tools) {
            if (!tool->Visible)
                continue;
            if (tool->kind == ToolKind::Separator) {
                isParted = true;
                continue;
            }
            if (isParted && !menu.isEmpty())
                menu.addSeparator();
            isParted = false;
            add(menu, *tool, depth);
        }
    }

private:
    void add(QMenu& menu, const Tool& tool, int depth) const {
        switch (tool.kind) {
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
        default:
            if (tool.subBand.isEmpty())
                addEntry(menu, tool);
            else
                addSubMenu(menu, tool, depth);
        }
    }

    void addEntry(QMenu& menu, const Tool& tool) const {
        QAction* action = menu.addAction(iconOf(menu, tool), tool.Caption);
        action->setObjectName(tool.Name);
        action->setEnabled(tool.Enabled);
        action->setCheckable(tool.kind == ToolKind::Check || tool.Checked);
        action->setChecked(tool.Checked);
        QObject::connect(action, &QAction::triggered, &menu,
                         [click = actions_.click, name = tool.Name] { click(name); });
    }

    void addSubMenu(QMenu& menu, const Tool& tool, int depth) const {
        QMenu* sub = addMenu(menu, tool);
        if (tool.kind != ToolKind::SubMenu) {
            addEntry(*sub, tool);
            sub->addSeparator();
        }
        if (depth < kDeepest)
            fill(*sub, toolsOfBand(bar_, tool.subBand), depth + 1);
        sub->setEnabled(tool.Enabled && !sub->isEmpty());
    }

    void addList(QMenu& menu, const Tool& tool) const {
        QMenu* sub = addMenu(menu, tool);
        auto* group = new QActionGroup(sub);
        for (int i = 0; i < tool.ListCount(); ++i) {
            QAction* action = sub->addAction(QString(tool.list[i]).replace(u'&', QStringLiteral("&&")));
            action->setCheckable(true);
            action->setChecked(i == tool.ListIndex);
            group->addAction(action);
            QObject::connect(action, &QAction::triggered, sub,
                             [change = actions_.changeList, name = tool.Name, i] { change(name, i); });
        }
        sub->setEnabled(tool.Enabled && !sub->isEmpty());
    }

    void addText(QMenu& menu, const Tool& tool) const {
        auto* box = new QLineEdit(tool.Text, &menu);
        box->setPlaceholderText(tool.Caption);
        box->setAccessibleName(tool.Caption);
        box->setEnabled(tool.Enabled);
        auto* action = new QWidgetAction(&menu);
        action->setObjectName(tool.Name);
        action->setDefaultWidget(box);
        menu.addAction(action);
        QObject::connect(box, &QLineEdit::returnPressed, &menu,
                         [change = actions_.changeText, name = tool.Name, box, menu = &menu] {
                             menu->close();
                             change(name, box->text());
                         });
    }

    static QMenu* addMenu(QMenu& menu, const Tool& tool) {
        QMenu* sub = menu.addMenu(iconOf(menu, tool), tool.Caption);
        sub->setObjectName(tool.Name);
        return sub;
    }

    static QIcon iconOf(const QMenu& menu, const Tool& tool) {
        return toolIcon(tool.Name, menu.palette(), IconPlace::Menu);
    }

    const MenuBar& bar_;
    const BandActions& actions_;
};

} // namespace

void fillBandMenu(QMenu& menu, const MenuBar& bar, const ToolList& tools, const BandActions& actions) {
    Builder(bar, actions).fill(menu, tools, 0);
}

ToolList toolsOfBand(const MenuBar& bar, const QString& name) {
    for (const auto& band : bar.bands())
        if (sameName(band->Name, name))
            return band->tools;
    return {};
}

} // namespace zkp
