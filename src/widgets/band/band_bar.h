#pragma once

#include "base/error.h"
#include "menu/menu_bar.h"
#include "widgets/band/band_popup.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QMenu;
class QToolButton;

namespace zkp {

/// Shows one band of a menu bar as a quiet row of tools, the labels at its end, and opens the other
/// bands as popup menus. Everything that the user does goes to the bar; the row shows its state, and
/// leaves out the tools that nobody listens to. Those that find no room stand behind a button of their
/// own, as a menu.
class BandBar : public QWidget {
    Q_OBJECT

public:
    BandBar(MenuBar& bar, const QString& band, QWidget* parent = nullptr);
    ~BandBar() override;

    /// The bar is gone.
    void detach();
    /// Brings the row in line with the model.
    void sync();
    QSize sizeHint() const override;

    /// Where an error goes that a click raised.
    std::function<void(const Error&)> failed;
    /// Where a popup opens that the keyboard asked for, in global pixels; nothing for one at the pointer.
    std::function<std::optional<QPoint>()> keyboardPlace;

Q_SIGNALS:
    void barChanged();
    /// Enter or Escape in a text or list: the user is through with the row.
    void left();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Item {
        std::shared_ptr<Tool> tool; ///< separators share theirs
        QWidget* widget;
    };

    const Band* band() const;
    void rebuild(const Band& band);
    bool isShown(const Item& item) const;
    /// Gives each widget its place; those at the end first.
    void place();
    int placeLabels(int right);
    void fillMore();
    /// False when nothing of the band can be shown.
    bool popup(const Band& band);
    BandActions actions();
    template <class F>
    void report(F call);

    MenuBar* bar_;
    Listening listening_;
    QString band_;
    std::vector<Item> row_;
    std::vector<Item> labels_;
    ToolList overflow_; ///< what found no room
    QToolButton* more_;
    QPointer<QMenu> menu_;
    bool syncing_ = false;
};

} // namespace zkp
