#include "widgets/qt_host.h"

#include "base/texts/dialogs.h"
#include "widgets/dialogs/dialog_texts.h"
#include "widgets/grid/palette_colors.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QFontInfo>
#include <QFontMetrics>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QUrl>

namespace zkp {

namespace {

// The low bits of a box's style say which buttons it has, bits 8 and 9 which of them is the default.
constexpr int kButtonBits = 0x0F;
constexpr int kIconBits = 0x70;
constexpr int kDefaultBits = 0x300;
enum Buttons { kOkCancel = 1, kYesNoCancel = 3, kYesNo = 4 };

// Pixels.
constexpr int kBesideTitle = 180;
constexpr int kWidestForTitle = 720;

constexpr int kShellDone = 33; // above 32: success
constexpr int kShellFileNotFound = 2;
constexpr int kShellNoProgram = 31;

QList<QMessageBox::StandardButton> buttonsOf(int style) {
    switch (style & kButtonBits) {
    case kOkCancel:
        return {QMessageBox::Ok, QMessageBox::Cancel};
    case kYesNoCancel:
        return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    case kYesNo:
        return {QMessageBox::Yes, QMessageBox::No};
    default:
        return {QMessageBox::Ok};
    }
}

QMessageBox::Icon iconOf(int style) {
    switch (style & kIconBits) {
    case kMsgBoxCritical:
        return QMessageBox::Critical;
    case kMsgBoxQuestion:
        return QMessageBox::Question;
    case kMsgBoxExclamation:
        return QMessageBox::Warning;
    case kMsgBoxInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

int answerOf(int button, int style) {
    switch (button) {
    case QMessageBox::Ok:
        return kAnswerOk;
    case QMessageBox::Yes:
        return kAnswerYes;
    case QMessageBox::No:
        return kAnswerNo;
    default: // Escape, or the window went away
        return (style & kButtonBits) == 0        ? kAnswerOk
               : (style & kButtonBits) == kYesNo ? kAnswerNo
                                                 : kAnswerCancel;
    }
}

/// Runs a dialog made with `new`, and hands it to `read` when it was accepted and is still there.
template <class Dialog, class Read>
auto run(Dialog* made, QWidget* parent, Read read) -> std::optional<decltype(read(*made))> {
    const QPointer<Dialog> dialog(made);
    if (parent)
        dialog->setWindowModality(Qt::WindowModal);
    const int result = dialog->exec();
    std::optional<decltype(read(*made))> answer;
    if (dialog && result == QDialog::Accepted)
        answer = read(*dialog);
    delete dialog;
    return answer;
}

/// A frame writes the title in a font of its own, between its buttons.
int widthForTitle(const QWidget& window) {
    QFont bold = window.font();
    bold.setBold(true);
    return std::min(kWidestForTitle,
                    QFontMetrics(bold).horizontalAdvance(window.windowTitle()) + kBesideTitle);
}

/// What was not changed in the dialog is as it was: a list of fonts knows only those that are there, and
/// a report keeps the name that it was given.
FontChoice chosenFont(const FontChoice& start, const QFont& shown, const QFont& chosen) {
    FontChoice choice = start;
    if (chosen.family() != shown.family())
        choice.FontName = chosen.family();
    if (chosen.pointSizeF() != shown.pointSizeF())
        choice.FontSize = chosen.pointSizeF();
    if (chosen.bold() != shown.bold())
        choice.FontBold = chosen.bold();
    if (chosen.italic() != shown.italic())
        choice.FontItalic = chosen.italic();
    if (chosen.underline() != shown.underline())
        choice.FontUnderline = chosen.underline();
    return choice;
}

/// "Βιβλίο (*.xlsx)|*.xlsx|..." as hosts write it, or a filter in the toolkit's own form.
QString dialogFilter(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    if (parts.size() < 2)
        return filter;
    QStringList entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section(u'(', 0, 0).trimmed();
        entries += QStringLiteral("%1 (%2)").arg(name, QString(parts[i + 1]).replace(u';', u' '));
    }
    return entries.join(QStringLiteral(";;"));
}

QString chosenFile(const QFileDialog& dialog) {
    return dialog.selectedFiles().value(0);
}

/// A choice holds no strikeout, and fonts are not sought by alphabet: what would set these is hidden.
QFontDialog* makeFontDialog(const QFont& font, QWidget* parent) {
    auto* dialog = new QFontDialog(font, parent);
    dialog->setOption(QFontDialog::DontUseNativeDialog);
    dialog->setWindowTitle(texts::chooseFont());
    for (auto* box : dialog->findChildren<QCheckBox*>())
        if (box->text() == QFontDialog::tr("Stri&keout"))
            box->hide();
    for (auto* label : dialog->findChildren<QLabel*>())
        if (auto* alphabets = qobject_cast<QComboBox*>(label->buddy())) {
            label->hide();
            alphabets->hide();
        }
    for (auto* line : dialog->findChildren<QLineEdit*>())
        if (line->text() == QStringLiteral("AaBbYyZz"))
            line->setText(texts::fontSampleLetters());
    translateDialog(*dialog);
    return dialog;
}

} // namespace

QtHost::QtHost(QWidget* parent)
    : parent_(parent) {}

QtHost::~QtHost() {
    if (pointer_ != kPointerDefault && qApp)
        QApplication::restoreOverrideCursor();
}

int QtHost::msgBox(const QString& text, int style, const QString& title) {
    const QPointer<QMessageBox> box(new QMessageBox(parent_));
    box->setText(text);
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(title);
    box->setIcon(iconOf(style));
    const auto buttons = buttonsOf(style);
    for (const auto button : buttons)
        box->addButton(button);
    translateDialog(*box);
    const qsizetype chosen = std::min<qsizetype>((style & kDefaultBits) >> 8, buttons.size() - 1);
    box->setDefaultButton(buttons[chosen]);
    if (parent_)
        box->setWindowModality(Qt::WindowModal);
    const int button = box->exec();
    const int answer = box ? answerOf(button, style) : answerOf(QMessageBox::NoButton, style);
    delete box;
    return answer;
}

std::optional<QString> QtHost::inputBox(const QString& prompt, const QString& title, const QString& text) {
    auto* dialog = new QInputDialog(parent_);
    dialog->setWindowTitle(title);
    dialog->setLabelText(prompt);
    dialog->setTextValue(text);
    if (auto* line = dialog->findChild<QLineEdit*>()) // the dialog's own width follows its parts
        line->setMinimumWidth(widthForTitle(*dialog));
    dialog->setOkButtonText(texts::ok());
    dialog->setCancelButtonText(texts::cancel());
    return run(dialog, parent_, [](QInputDialog& d) { return d.textValue(); });
}

std::optional<QString> QtHost::saveDialog(const QString& title, const QString& filter,
                                          const QString& fileName) {
    auto* dialog = new QFileDialog(parent_, title, QFileInfo(fileName).path(), dialogFilter(filter));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(fileName);
    return run(dialog, parent_, chosenFile);
}

std::optional<QString> QtHost::openDialog(const QString& title, const QString& filter,
                                          const QString& fileName) {
    auto* dialog = new QFileDialog(parent_, title, QFileInfo(fileName).path(), dialogFilter(filter));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->selectFile(fileName);
    return run(dialog, parent_, chosenFile);
}

std::optional<std::uint32_t> QtHost::colorDialog(std::uint32_t start) {
    const QColor before = paintedColor(start, parent_ ? parent_->palette() : QApplication::palette());
    auto* dialog = new QColorDialog(before, parent_);
    dialog->setOption(QColorDialog::DontUseNativeDialog); // which speaks the desktop's language
    dialog->setWindowTitle(texts::chooseColor());
    translateDialog(*dialog);
    return run(dialog, parent_, [](QColorDialog& d) { return storedColor(d.selectedColor()); });
}

std::optional<FontChoice> QtHost::fontDialog(const FontChoice& start) {
    QFont font(start.FontName);
    if (start.FontSize > 0)
        font.setPointSizeF(start.FontSize);
    font.setBold(start.FontBold);
    font.setItalic(start.FontItalic);
    font.setUnderline(start.FontUnderline);
    font.setFamily(QFontInfo(font).family()); // what cells in it are painted with
    auto* dialog = makeFontDialog(font, parent_);
    const QFont shown = dialog->currentFont();
    return run(dialog, parent_, [&](QFontDialog& d) { return chosenFont(start, shown, d.selectedFont()); });
}

void QtHost::beep() {
    QApplication::beep();
}

/// A file goes to the desktop's program for it; with parameters or a folder it is a program itself.
int QtHost::shellOpen(const QString& file, const QString&, const QString& parameters,
                      const QString& directory, int) {
    if (!parameters.isEmpty() || !directory.isEmpty())
        return QProcess::startDetached(file, QProcess::splitCommand(parameters), directory)
                   ? kShellDone
                   : kShellFileNotFound;
    const QUrl url = QUrl::fromUserInput(file, QStringLiteral("/"), QUrl::AssumeLocalFile);
    if (url.isLocalFile() && !QFileInfo::exists(url.toLocalFile()))
        return kShellFileNotFound;
    return QDesktopServices::openUrl(url) ? kShellDone : kShellNoProgram;
}

void QtHost::setPointer(int pointer) {
    if (pointer == pointer_)
        return;
    if (pointer_ != kPointerDefault)
        QApplication::restoreOverrideCursor();
    pointer_ = pointer;
    if (pointer == kPointerHourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else if (pointer == kPointerNoDrop)
        QApplication::setOverrideCursor(Qt::ForbiddenCursor);
    else if (pointer != kPointerDefault)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
}

void QtHost::runPendingEvents() {
    QCoreApplication::processEvents();
}

} // namespace zkp
