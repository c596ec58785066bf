#include "interaction/dialog_helpers.h"

#include "base/error.h"
#include "base/text.h"

namespace zkp {

namespace {

constexpr std::uint32_t kErrInvalidPropertyValue = 380;

void centre(FormPlace& form, double width, double height) {
    form.Left = (width - form.Width) / 2;
    form.Top = (height - form.Height) / 2;
}

} // namespace

void SelectAllText(TextBoxModel& box) {
    box.SelStart = 0;
    box.SelLength = static_cast<int>(box.Text.size());
}

void CenterForm(FormPlace& form, const ScreenSize& screen) {
    centre(form, screen.Width, screen.Height);
}

void CenterForm(FormPlace& form, const FormPlace& owner) {
    centre(form, owner.ScaleWidth, owner.ScaleHeight);
}

void SelectInList(ListModel& list, const QString& text, int* found) {
    const QStringView wanted = trimmed(text);
    if (wanted.isEmpty())
        return;
    int row = found ? *found : -1;
    for (qsizetype i = 0; i < list.List.size(); ++i) {
        if (trimmed(list.List.at(i)) == wanted)
            row = static_cast<int>(i);
    }
    if (found)
        *found = row;
    if (row >= list.List.size())
        throw Error(kErrInvalidPropertyValue, QStringLiteral("Invalid property value"));
    if (row > 0) // a match in the first row is not chosen, as wanted
        list.ListIndex = row;
}

void SetGreekCharset(FontModel& font) {
    const QString name = font.Name;
    font.setCharset(kGreekCharset);
    if (font.Name == name)
        return;
    font.setCharset(kAnsiCharset);
    font.Name = name;
}

} // namespace zkp
