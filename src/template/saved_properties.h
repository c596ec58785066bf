#pragma once

#include "bag/property_bag.h"
#include "core/child_controls.h"
#include "core/column_properties.h"
#include "core/report_state.h"
#include "core/reporting.h"
#include "template/saved_keys.h"

#include <functional>

namespace zkp {

/// What the reading of saved properties asks of parts that stand higher.
struct SavedPropertiesHooks {
    std::function<void()> layOut; ///< the choices area and the surface find their places
    std::function<void()> DrawInterface;
};

/// Moves the report's shape between the live control and a bag of typed values. The two directions are no
/// mirrors of one another: spelling, defaults and coverage differ, as the tables in saved_keys tell.
class SavedProperties {
public:
    SavedProperties(ReportState& state, ColumnList& columns, ColumnProperties& columnProperties,
                    ChildControls& children, const Reporting& reporting, SavedPropertiesHooks hooks)
        : state_(state)
        , columns_(columns)
        , columnProperties_(columnProperties)
        , children_(children)
        , reporting_(reporting)
        , hooks_(std::move(hooks))
        , control_{state, children.MSFlexGrid1, children.Picture1} {}

    /// Fills the bag from the control, which stays as it is. A failure shows the error box; what has been
    /// written so far stands in the bag.
    void UserControl_WriteProperties(const PropertyBagPtr& bag);
    /// The same, but a failure is shown and thrown: a bag that lacks keys must not be kept.
    void writeWhole(PropertyBag& bag) const;
    /// Applies the bag and draws the interface; reads no data. What the bag lacks takes its default. A
    /// failure in the first keys shows the error box and ends it there; later ones are passed over. New
    /// columns are added behind those that stand in `Columns`.
    void UserControl_ReadProperties(const PropertyBagPtr& bag);

private:
    void writeAll(PropertyBag& bag) const;
    void write(PropertyBag& bag, const std::vector<SavedKey>& keys) const;
    void writeColumns(PropertyBag& bag) const;
    void readKey(const PropertyBag& bag, const SavedKey& key) const;
    bool readFirst(const PropertyBagPtr& bag);
    void readColumn(const PropertyBag& bag, int index);
    void bringUpToDate(int index, const Column& column);
    void readFonts(const PropertyBag& bag);
    void readRest(const PropertyBag& bag);
    template <class Keys>
    void passEach(const PropertyBag& bag, const Keys& keys) const;

    ReportState& state_;
    ColumnList& columns_;
    ColumnProperties& columnProperties_;
    ChildControls& children_;
    Reporting reporting_;
    SavedPropertiesHooks hooks_;
    SavedControl control_;
};

} // namespace zkp
