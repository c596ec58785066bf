#pragma once

#include "base/error.h"
#include "platform/menu_bar.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

class QHBoxLayout;
class QMenu;

namespace zkp {

/// Shows one band of a menu bar as a quiet row of tools, the labels at its end, and opens the other
/// bands as popup menus. Everything that the user does goes to the bar; the row shows its state, and
/// leaves out the tools that nobody listens to.
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

Q_SIGNALS:
    void barChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void rebuild(const Band& band);
    QWidget* makeWidget(const Tool& tool);
    void syncWidget(QWidget& widget, const Tool& tool);
    const Band* band() const;
    void popup(const Band& band);
    template <class F>
    void report(F call);

    MenuBar* bar_;
    QString band_;
    QHBoxLayout* row_;
    QStringList built_; // names of the tools that the row was built for
    std::vector<std::pair<QString, QWidget*>> widgets_; // by the tool's name; separators share theirs
    QPointer<QMenu> menu_;
    bool syncing_ = false;
};

} // namespace zkp
