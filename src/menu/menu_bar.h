#pragma once

#include "base/listeners.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace zkp {

enum class ToolKind { Button, Check, List, Text, Label, Separator, SubMenu };

/// One command of the menu bar. A tool may stand in several bands; its state is one.
struct Tool {
    QString Name;
    QString Caption;
    QString Category;
    ToolKind kind = ToolKind::Button;
    QString subBand; ///< the band that a SubMenu opens; on a Button, more of the same kind
    bool Enabled = true;
    bool Visible = true;
    bool Checked = false;
    QString Text;
    QStringList list;
    int ListIndex = -1;

    int ListCount() const { return static_cast<int>(list.size()); }
};

/// A row of tools: the bar that stays on screen, a popup, a submenu.
struct Band {
    QString Name;
    double Height = 0; ///< twips; a view sets it, or a script where there is none
    std::vector<std::shared_ptr<Tool>> tools;

    /// Without regard to case; Error kErrItemNotFound when there is none.
    Tool& Tools(QStringView name) const;
};

/// What a view of the bar wants to hear. Each may be empty.
struct MenuBarView {
    std::function<void()> changed = {}; ///< anything
    /// This band is to open as a popup at the pointer. All views hear of it; the first that opens it says
    /// so in `isOpen`, and the others leave it at that.
    std::function<void(const Band& band, bool& isOpen)> popupWanted = {};
};

/// The menu and template bar as a plain model: bands of tools, and what the user does with them.
class MenuBar {
public:
    using ToolListeners = Listeners<std::function<void(Tool&)>>;
    ToolListeners toolClicked;
    ToolListeners listChanged;
    ToolListeners textChanged;
    Listeners<MenuBarView> views;

    bool Visible = true;

    Band& addBand(const QString& name);
    /// Puts the bar's tool of that name at the band's end, making it when it is new. It stands there once
    /// only, unless it is a separator.
    Tool& addTool(Band& band, const Tool& tool);
    /// Without regard to case; Error kErrItemNotFound when there is none.
    Band& Bands(QStringView name) const;
    Tool& Tools(QStringView name) const;
    bool hasTool(QStringView name) const;
    /// True when what a user does with such a tool reaches somebody: nobody listens to its click, or to
    /// the change of its list or text, until the command behind it has been built.
    bool isHeard(const Tool& tool) const;
    const std::vector<std::unique_ptr<Band>>& bands() const { return bands_; }

    /// Tells the views that tools changed.
    void Refresh();
    /// Opens a band as a popup menu; `lastPopup` keeps its name.
    void popup(QStringView band);
    const QString& lastPopup() const { return lastPopup_; }

    // What a user does, as a view (or a script) reports it. A disabled tool does nothing.
    void click(QStringView tool);
    void changeList(QStringView tool, int index);
    void changeText(QStringView tool, const QString& text);

private:
    std::shared_ptr<Tool> needTool(QStringView name) const;

    std::vector<std::unique_ptr<Band>> bands_;
    QHash<QString, std::shared_ptr<Tool>> tools_; ///< by the key of the name
    QString lastPopup_;
};

} // namespace zkp
