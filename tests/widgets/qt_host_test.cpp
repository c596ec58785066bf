#include "widgets/qt_host.h"

#include "print_qt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFile>
#include <QFileDialog>
#include <QFontDialog>
#include <QGroupBox>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace zkp {
namespace {

/// Runs `answer` on the dialog once it is open.
template <class Dialog>
void whenOpen(std::function<void(Dialog&)> answer) {
    QTimer::singleShot(0, qApp, [answer] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        answer(*dialog);
    });
}

TEST(QtHostTest, ABoxShowsItsTextsAndGivesTheButton) {
    QtHost host;
    QString text, title;
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        text = box.text();
        title = box.windowTitle();
        box.button(QMessageBox::No)->click();
    });
    EXPECT_EQ(
        host.msgBox(QStringLiteral("Να ανανεώσω τώρα τη λίστα;"), kMsgBoxQuestion + 4, QStringLiteral("QRN")),
        kAnswerNo);
    EXPECT_EQ(text, QStringLiteral("Να ανανεώσω τώρα τη λίστα;"));
    EXPECT_EQ(title, QStringLiteral("QRN"));
}

TEST(QtHostTest, APlainBoxAnswersOk) {
    QtHost host;
    whenOpen<QMessageBox>([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(host.msgBox(QStringLiteral("HitBottom"), kMsgBoxPlain, {}), kAnswerOk);
}

TEST(QtHostTest, ABoxWithAParentIsModalToItsWindowOnly) {
    QWidget window;
    window.show();
    QtHost host(&window);
    Qt::WindowModality modality = Qt::NonModal;
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        modality = box.windowModality();
        box.accept();
    });
    host.msgBox(QStringLiteral("x"), kMsgBoxCritical, {});
    EXPECT_EQ(modality, Qt::WindowModal);
}

TEST(QtHostTest, AParentThatGoesAwayCancels) {
    auto* window = new QWidget;
    window->show();
    QtHost host(window);
    QTimer::singleShot(0, qApp, [window] { delete window; });
    EXPECT_EQ(host.msgBox(QStringLiteral("x"), kMsgBoxQuestion + 3, {}), kAnswerCancel);
}

TEST(QtHostTest, AnInputIsTheTextOrNothing) {
    QtHost host;
    whenOpen<QInputDialog>([](QInputDialog& dialog) {
        dialog.setTextValue(QStringLiteral("Νέο"));
        dialog.accept();
    });
    EXPECT_EQ(host.inputBox(QStringLiteral("Όνομα"), {}, QStringLiteral("Παλιό")), QStringLiteral("Νέο"));
    whenOpen<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(host.inputBox(QStringLiteral("Όνομα"), {}, {}), std::nullopt);
}

TEST(QtHostTest, AnInputIsAsWideAsItsTitle) {
    QtHost host;
    const QString title = QStringLiteral("Αλλαγή Τίτλου Υποδείγματος");
    int width = 0;
    int titleWidth = 0;
    whenOpen<QInputDialog>([&](QInputDialog& dialog) {
        width = dialog.width();
        titleWidth = dialog.fontMetrics().horizontalAdvance(title);
        dialog.reject();
    });
    host.inputBox(QStringLiteral("Τίτλος"), title, {});
    EXPECT_GE(width, titleWidth + 120) << "and room for the frame's buttons";
}

TEST(QtHostTest, AColourComesBackAsItIsStored) {
    QtHost host;
    whenOpen<QColorDialog>([](QColorDialog& dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(1, 2, 3));
        dialog.setCurrentColor(QColor(0x10, 0x20, 0x30));
        dialog.accept();
    });
    EXPECT_EQ(host.colorDialog(0x030201), 0x302010u);
}

TEST(QtHostTest, AFontComesBackAsItWasChosen) {
    QtHost host;
    whenOpen<QFontDialog>([](QFontDialog& dialog) {
        EXPECT_EQ(dialog.currentFont().pointSizeF(), 11);
        EXPECT_TRUE(dialog.currentFont().bold());
        QFont font(QStringLiteral("DejaVu Sans"), 14);
        font.setItalic(true);
        dialog.setCurrentFont(font);
        dialog.accept();
    });
    const auto chosen = host.fontDialog({QStringLiteral("Liberation Sans"), 11, true, false, false});
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->FontName, QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(chosen->FontSize, 14);
    EXPECT_FALSE(chosen->FontBold);
    EXPECT_TRUE(chosen->FontItalic);
    whenOpen<QFontDialog>([](QFontDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(host.fontDialog({}));
}

TEST(QtHostTest, AFontThatIsNotInstalledStaysWhatItWas) {
    QtHost host;
    const FontChoice start{QStringLiteral("No Such Family"), 8.25, true, true, true};
    whenOpen<QFontDialog>([](QFontDialog& dialog) {
        EXPECT_EQ(dialog.currentFont().family(), QFontInfo(QFont(QStringLiteral("No Such Family"))).family());
        EXPECT_TRUE(dialog.currentFont().bold());
        dialog.accept();
    });
    const auto same = host.fontDialog(start);
    ASSERT_TRUE(same);
    EXPECT_EQ(same->FontName, start.FontName);
    EXPECT_EQ(same->FontSize, 8.25);
    EXPECT_TRUE(same->FontBold);
    EXPECT_TRUE(same->FontItalic);
    EXPECT_TRUE(same->FontUnderline);
    whenOpen<QFontDialog>([](QFontDialog& dialog) {
        QFont font = dialog.currentFont();
        font.setPointSize(10);
        dialog.setCurrentFont(font);
        dialog.accept();
    });
    const auto larger = host.fontDialog(start);
    ASSERT_TRUE(larger);
    EXPECT_EQ(larger->FontName, start.FontName);
    EXPECT_EQ(larger->FontSize, 10);
    EXPECT_TRUE(larger->FontBold);
}

TEST(QtHostTest, AFileThatIsThereIsChosenToBeOpened) {
    QtHost host;
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("φόντο.png"));
    ASSERT_TRUE(QFile(picture).open(QIODevice::WriteOnly));
    QString title;
    QStringList filters;
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        title = dialog.windowTitle();
        filters = dialog.nameFilters();
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(host.openDialog(QStringLiteral("Εικόνα"), QStringLiteral("Εικόνες (*.png)|*.png;*.jpg|Όλα|*"),
                              picture),
              picture);
    EXPECT_EQ(title, QStringLiteral("Εικόνα"));
    EXPECT_EQ(filters, (QStringList{QStringLiteral("Εικόνες (*.png *.jpg)"), QStringLiteral("Όλα (*)")}));
    whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(host.openDialog({}, {}, picture), std::nullopt);
}

TEST(QtHostTest, AFileToBeSavedNeedNotBeThere) {
    QtHost host;
    const QTemporaryDir folder;
    const QString report = folder.filePath(QStringLiteral("report.xlsx"));
    whenOpen<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(host.saveDialog({}, {}, report), report);
    whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(host.saveDialog({}, {}, report), std::nullopt);
}

/// Every text of a dialog that is still English.
template <class Dialog>
QStringList englishIn(Dialog& dialog) {
    QStringList texts{dialog.windowTitle()};
    for (auto* label : dialog.template findChildren<QLabel*>())
        if (!label->isHidden())
            texts += label->text();
    for (auto* button : dialog.template findChildren<QAbstractButton*>())
        if (!button->isHidden())
            texts += button->text();
    for (auto* group : dialog.template findChildren<QGroupBox*>())
        texts += group->title();
    QStringList english;
    for (const QString& text : texts)
        if (text.contains(QRegularExpression(QStringLiteral("[A-Za-z]{3}"))) &&
            text != QStringLiteral("&HTML:"))
            english += text;
    return english;
}

TEST(QtHostTest, TheDialogsSpeakGreek) {
    QtHost host;
    QStringList english, buttons;
    whenOpen<QColorDialog>([&](QColorDialog& dialog) {
        english += englishIn(dialog);
        dialog.reject();
    });
    EXPECT_FALSE(host.colorDialog(0));
    whenOpen<QFontDialog>([&](QFontDialog& dialog) {
        english += englishIn(dialog);
        dialog.reject();
    });
    host.fontDialog({QStringLiteral("Liberation Sans"), 10});
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        for (const auto* button : box.buttons())
            buttons += button->text().remove(u'&');
        box.reject();
    });
    host.msgBox(QStringLiteral("x"), kMsgBoxQuestion + 3, QStringLiteral("Τίτλος"));
    whenOpen<QInputDialog>([&](QInputDialog& dialog) {
        buttons += dialog.okButtonText() + dialog.cancelButtonText();
        dialog.reject();
    });
    host.inputBox(QStringLiteral("Όνομα"), {}, {});
    EXPECT_EQ(english, QStringList());
    buttons.sort();
    EXPECT_EQ(buttons, (QStringList{QStringLiteral("Άκυρο"), QStringLiteral("Όχι"),
                                    QStringLiteral("ΕντάξειΆκυρο"), QStringLiteral("Ναι")}));
}

TEST(QtHostTest, ThePointerIsTheApplications) {
    {
        QtHost host;
        host.setPointer(kPointerHourglass);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        EXPECT_EQ(host.pointer(), kPointerHourglass);
        host.setPointer(kPointerHourglass);
        host.setPointer(kPointerDefault);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        host.setPointer(kPointerHourglass);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "a host that goes away leaves no pointer behind";
}

TEST(QtHostTest, AFileThatIsNotThereIsNotOpened) {
    QtHost host;
    EXPECT_LE(host.shellOpen(QStringLiteral("/no/such/file.xlsx"), QStringLiteral("open"), {}, {}, 1), 32);
    EXPECT_LE(host.shellOpen(QStringLiteral("/no/such/program"), QStringLiteral("open"), QStringLiteral("-x"),
                             {}, 1),
              32);
}

TEST(QtHostTest, TheScreensHostIsEachOfItsServices) {
    const auto host = std::make_shared<QtHost>();
    Host& services = *host;
    EXPECT_EQ(&services.boxes(), host.get());
    EXPECT_EQ(&services.styleDialogs(), host.get());
    EXPECT_EQ(&services.fileDialogs(), host.get());
    EXPECT_EQ(&services.shell(), host.get());
    EXPECT_EQ(&services.screenPointer(), host.get());
    EXPECT_EQ(&services.bell(), host.get());
    EXPECT_EQ(&services.pendingEvents(), host.get());
}

TEST(QtHostTest, PendingEventsRunOnce) {
    QtHost host;
    int ran = 0;
    QTimer::singleShot(0, qApp, [&] { ++ran; });
    host.runPendingEvents();
    EXPECT_EQ(ran, 1);
}

} // namespace
} // namespace zkp
