#include "widgets/dialogs/dialog_texts.h"

#include "base/texts/dialogs.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace zkp {

namespace {

struct Translation {
    const char* english;
    QString (*greek)();
};

constexpr Translation kTranslations[] = {
    {"&Basic colors", texts::basicColors},
    {"&Custom colors", texts::customColors},
    {"&Add to Custom Colors", texts::addToCustomColors},
    {"&Pick Screen Color", texts::pickScreenColor},
    {"Hu&e:", texts::hue},
    {"&Sat:", texts::saturation},
    {"&Val:", texts::brightness},
    {"&Red:", texts::red},
    {"&Green:", texts::green},
    {"Bl&ue:", texts::blue},
    {"&HTML:", texts::html},
    {"&Font", texts::fontFamily},
    {"Font st&yle", texts::fontStyle},
    {"&Size", texts::fontSize},
    {"Effects", texts::fontEffects},
    {"&Underline", texts::underline},
    {"Sample", texts::fontSample},
    {"OK", texts::ok},
    {"&OK", texts::ok},
    {"Cancel", texts::cancel},
    {"&Cancel", texts::cancel},
    {"Yes", texts::yes},
    {"&Yes", texts::yes},
    {"No", texts::no},
    {"&No", texts::no},
};

QString greekOf(const QString& text) {
    for (const Translation& entry : kTranslations)
        if (text == QLatin1String(entry.english))
            return entry.greek();
    return text;
}

} // namespace

void translateDialog(QWidget& dialog) {
    for (auto* label : dialog.findChildren<QLabel*>())
        if (const QString greek = greekOf(label->text()); greek != label->text())
            label->setText(greek);
    for (auto* button : dialog.findChildren<QAbstractButton*>())
        button->setText(greekOf(button->text()));
    for (auto* group : dialog.findChildren<QGroupBox*>())
        group->setTitle(greekOf(group->title()));
}

} // namespace zkp
