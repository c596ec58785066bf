#include "interaction/menu_state.h"

#include "base/number.h"
#include "core/stat_field.h"

#include <algorithm>

namespace zkp {

namespace {

/// The alignments of a tool: three heights for each side.
int sideOf(int alignment) {
    return alignment >= 0 && alignment <= 8 ? alignment / 3 : -1;
}

} // namespace

/// Writes to tools, and tells the view at the end when something is different from before.
class MenuState::Changes {
public:
    explicit Changes(MenuBar& menu)
        : menu_(menu) {}

    template <class Value>
    void set(Value& place, const Value& value) {
        if (place == value)
            return;
        place = value;
        changed_ = true;
    }
    void enable(QStringView tool, bool enabled) { set(menu_.Tools(tool).Enabled, enabled); }
    void check(QStringView tool, bool checked) { set(menu_.Tools(tool).Checked, checked); }
    void tell() {
        if (changed_)
            menu_.Refresh();
    }

private:
    MenuBar& menu_;
    bool changed_ = false;
};

void MenuState::MenuRefresh() {
    if (tools_.MenusLocked || !face_.MenusVisible)
        return;
    Changes changes(menu_);
    checkAlignment(changes);
    for (const char16_t* tool :
         {u"mnuTemplate", u"mnuBackColor", u"mnuForeColor", u"mnuFonts", u"mnuSaveTemplate"})
        changes.enable(tool, true);
    fillField(changes);
    bringInLine(changes);
    changes.tell();
}

void MenuState::checkAlignment(Changes& changes) const {
    const int side = column() < 0 ? -1 : sideOf(properties_.ColAlignment(column()));
    int own = 0;
    for (const char16_t* tool : {u"mnuAlignLeft", u"mnuAlignCenter", u"mnuAlignRight"}) {
        changes.enable(tool, true);
        changes.check(tool, own++ == side);
    }
}

/// What a column allows depends on its being a group factor, and on the report's being one of totals.
void MenuState::bringInLine(Changes& changes) const {
    const bool factor = isFactor();
    const bool fixed = column() >= 0 && properties_.ColStatic(column());
    changes.enable(u"mnuInsertColumn", !factor);
    changes.enable(u"mnuSort", !factor);
    changes.enable(u"mnuColumnProperties", true);
    changes.enable(u"mnuDelColumn", !fixed);
    changes.enable(u"mnuInsertGroup", factor);
    changes.enable(u"mnuAddGroup", true);
    changes.enable(u"mnuGraph", factor && data_.TotalForm);
}

void MenuState::fillBandField() {
    Changes changes(menu_);
    fillField(changes);
    changes.tell();
}

/// Nobody hears of the list and the text that are written here: a caption would go to the column that was
/// clicked last, which may be another one.
void MenuState::fillField(Changes& changes) {
    if (!face_.MenusVisible || !dictionary_.isOpen() || statFields().Count() < 1 || column() < 0)
        return;
    listFields(menu_.Tools(u"mnuField"), changes);
    changes.set(menu_.Tools(u"mnuCaption").Text, properties_.ColCaption(column()));
}

/// A group factor takes what can be one; a plain column of a totals report what can't; one of a detail
/// report everything.
void MenuState::listFields(Tool& list, Changes& changes) {
    const StatFieldList& fields = statFields();
    const QString field = properties_.ColDataField(column());
    const bool factor = isFactor();
    QStringList captions;
    captions.reserve(fields.Count());
    tools_.FieldIndex.clear();
    int chosen = -1;
    for (int i = 1; i <= fields.Count(); ++i) {
        const StatField& entry = fields.Item(i);
        if (factor ? !entry.IsGroup : data_.TotalForm && entry.IsGroup)
            continue;
        if (entry.DataField == field)
            chosen = static_cast<int>(captions.size());
        captions.append(entry.Caption);
        tools_.FieldIndex.push_back(toInt16(i));
    }
    changes.set(list.list, captions);
    changes.set(list.ListIndex, chosen);
    changes.set(list.Text, chosen < 0 ? QString() : captions[chosen]);
}

void MenuState::setLocked(bool locked) {
    tools_.MenusLocked = locked;
    Changes changes(menu_);
    for (const char16_t* tool :
         {u"mnuRefresh", u"mnuColumnProperties", u"mnuAddColumn", u"mnuInsertColumn", u"mnuAddGroup",
          u"mnuInsertGroup", u"mnuDelColumn", u"mnuField", u"mnuSort", u"mnuPrint", u"mnuExport"})
        changes.enable(tool, !locked);
    changes.tell();
}

/// A host may leave the surface and the collection with different counts.
int MenuState::column() const {
    const int col = surface_.Col();
    return col < std::min(surface_.Cols(), columns_.Count()) ? col : -1;
}

} // namespace zkp
