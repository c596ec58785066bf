#pragma once

#include "print_qt.h"
#include "widgets/band/band_bar.h"

#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QToolTip>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <memory>

namespace zkp {

/// A bar with a row of one tool of each kind, listened to.
class BandBarTest : public testing::Test {
protected:
    BandBarTest() {
        Band& band = bar.addBand(kBand);
        add(band, QStringLiteral("txtRecs"), ToolKind::Label).Text = QStringLiteral("20.000");
        add(band, QStringLiteral("mnuRefresh"), ToolKind::Button).Caption = QStringLiteral("&Ανανέωση");
        Tool& list = add(band, QStringLiteral("mnuField"), ToolKind::List);
        list.list = QStringList{QStringLiteral("Κλάδος"), QStringLiteral("Πελάτης")};
        add(band, QStringLiteral("mnuCaption"), ToolKind::Text).Text = QStringLiteral("τίτλος");
        clicks = bar.toolClicked.add([](Tool&) {});
        lists = bar.listChanged.add([](Tool&) {});
        texts = bar.textChanged.add([](Tool&) {});
        row = std::make_unique<BandBar>(bar, kBand);
        row->resize(600, row->sizeHint().height());
        row->show();
    }
    Tool& add(Band& band, const QString& name, ToolKind kind) {
        Tool tool;
        tool.Name = name;
        tool.kind = kind;
        return bar.addTool(band, tool);
    }
    /// The menu that stands open.
    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    static void settle() {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    void resize(int width) {
        row->resize(width, row->sizeHint().height());
        settle();
    }
    template <class Widget>
    Widget* tool(const char* name) {
        return row->findChild<Widget*>(QString::fromLatin1(name));
    }

    const QString kBand = QStringLiteral("BndTemplate");
    MenuBar bar;
    Listening clicks;
    Listening lists;
    Listening texts;
    std::unique_ptr<BandBar> row;
};

} // namespace zkp
