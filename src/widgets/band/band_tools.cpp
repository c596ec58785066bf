#include "widgets/band/band_tools.h"

#include "widgets/band/tool_icons.h"
#include "widgets/grid/full_text_tip.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFrame>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QToolButton>
#include <QWheelEvent>

namespace zkp {

namespace {

constexpr int kWidestList = 420; // pixels
constexpr int kFewLetters = 8;   // a list shows these at least
constexpr int kIconSize = 16;
constexpr int kBesideText = 1; // what a list leaves free left and right of its text
constexpr int kLineEnds = 3;   // what a separator leaves above and below

/// A list may stand in a narrow place and opens as wide as its entries; a text that has no room ends with
/// an ellipsis and shows under a resting pointer.
class ToolCombo : public QComboBox {
public:
    explicit ToolCombo(QWidget* parent)
        : QComboBox(parent) {
        setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        setMinimumContentsLength(kFewLetters);
    }
    void showPopup() override {
        const int entries = view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width();
        view()->setMinimumWidth(std::min(kWidestList, entries));
        QComboBox::showPopup();
    }

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::ToolTip || shownText() == currentText())
            return QComboBox::event(event);
        showFullText(*static_cast<QHelpEvent*>(event), *this, rect(), currentText());
        return true;
    }
    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        QStyleOptionComboBox option;
        initStyleOption(&option);
        painter.drawComplexControl(QStyle::CC_ComboBox, option);
        if (currentIndex() < 0)
            option.palette.setBrush(QPalette::ButtonText, option.palette.placeholderText());
        option.currentText = shownText();
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    }
    /// A wheel that turns on its way over the row must not give a column another field.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

private:
    QString shownText() const {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const QRect field =
            style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
        return fontMetrics().elidedText(currentIndex() < 0 ? placeholderText() : currentText(),
                                        Qt::ElideRight, field.width() - 2 * kBesideText);
    }
};

/// One quiet line; the toolkit's own is bright on a dark palette.
class SeparatorLine : public QFrame {
public:
    using QFrame::QFrame;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(width() / 2, kLineEnds, 1, height() - 2 * kLineEnds,
                                palette().color(QPalette::Mid));
    }
};

QWidget* makeList(const Tool& tool, const BandActions& actions, QWidget* parent) {
    auto* list = new ToolCombo(parent);
    QObject::connect(list, &QComboBox::activated, list,
                     [change = actions.changeList, name = tool.Name](int index) { change(name, index); });
    return list;
}

QWidget* makeText(const Tool& tool, const BandActions& actions, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    QObject::connect(
        box, &QLineEdit::textEdited, box,
        [change = actions.changeText, name = tool.Name](const QString& text) { change(name, text); });
    return box;
}

QWidget* makeButton(const Tool& tool, const BandActions& actions, const std::function<void(QMenu&)>& fillMenu,
                    QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIconSize({kIconSize, kIconSize});
    button->setCheckable(tool.kind == ToolKind::Check);
    if (!tool.subBand.isEmpty()) {
        auto* menu = new QMenu(button);
        button->setMenu(menu);
        button->setPopupMode(tool.kind == ToolKind::SubMenu ? QToolButton::InstantPopup
                                                            : QToolButton::MenuButtonPopup);
        QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, fillMenu] { fillMenu(*menu); });
    }
    if (tool.kind != ToolKind::SubMenu)
        QObject::connect(button, &QToolButton::clicked, button,
                         [click = actions.click, name = tool.Name] { click(name); });
    return button;
}

QString tip(const Tool& tool) {
    QString text = tool.Caption;
    return text.remove(u'&');
}

void syncList(QComboBox& combo, const Tool& tool) {
    // The same list shares its data: a row is synchronised far more often than a list is filled.
    if (combo.property("entries").toStringList() != tool.list) {
        combo.setProperty("entries", tool.list);
        combo.clear();
        combo.addItems(tool.list);
    }
    combo.setPlaceholderText(tip(tool));
    combo.setCurrentIndex(tool.ListIndex);
}

} // namespace

QWidget* makeToolWidget(const Tool& tool, const BandActions& actions,
                        const std::function<void(QMenu&)>& fillMenu, QWidget* parent) {
    switch (tool.kind) {
    case ToolKind::List:
        return makeList(tool, actions, parent);
    case ToolKind::Text:
        return makeText(tool, actions, parent);
    case ToolKind::Label:
        return new QLabel(parent);
    case ToolKind::Separator:
        return new SeparatorLine(parent);
    default:
        return makeButton(tool, actions, fillMenu, parent);
    }
}

void syncToolWidget(QWidget& widget, const Tool& tool) {
    const QSignalBlocker quiet(widget);
    widget.setEnabled(tool.Enabled);
    if (const QString name = tip(tool);
        widget.toolTip() != name) { // each assignment is told to screen readers
        widget.setToolTip(name);
        widget.setAccessibleName(name);
    }
    if (auto* button = qobject_cast<QToolButton*>(&widget)) {
        if (button->text() != tool.Caption)
            button->setText(tool.Caption);
        button->setChecked(tool.Checked);
    } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
        const QString& text = tool.Text.isEmpty() ? tool.Caption : tool.Text;
        if (label->text() != text)
            label->setText(text);
    } else if (auto* box = qobject_cast<QLineEdit*>(&widget)) {
        box->setPlaceholderText(tip(tool));
        if (box->text() != tool.Text) {
            box->setText(tool.Text);
            if (!box->hasFocus())
                box->setCursorPosition(0); // a long text shows its beginning
        }
    } else if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        syncList(*list, tool);
    }
}

void setToolIcon(QWidget& widget, const Tool& tool, const QPalette& palette) {
    if (auto* button = qobject_cast<QToolButton*>(&widget))
        button->setIcon(toolIcon(tool.Name, palette, IconPlace::Row));
}

} // namespace zkp
