#pragma once

#include "bag/property_value.h"
#include "core/column.h"
#include "core/report_state.h"
#include "menu/menu_bar.h"
#include "surface/grid_surface.h"

#include <cstdint>
#include <type_traits>

namespace zkp {

/// What saved properties are read from and written to: the whole state, since a saved shape is written as a
/// host writes properties.
struct SavedControl {
    ReportState& state;
    GridSurface& surface;
    MenuBar& menu;
};

/// Where one saved value lives: how it is read there, and how it is put there.
struct SavedTarget {
    BagValue (*get)(const SavedControl& control);
    void (*set)(const SavedControl& control, const BagValue& value, const QString& key);
};

/// The same for a value of a column.
struct SavedColumnTarget {
    BagValue (*get)(const Column& column);
    void (*set)(Column& column, const BagValue& value, const QString& key);
};

/// A single as the number that its shortest decimal form names, so that 9.1 comes back as 9.1.
double doubleOfSingle(float single);

/// The value in a member's type, as valueAs takes it.
template <class T>
T takenAs(const BagValue& value, const QString& key) {
    if constexpr (std::is_same_v<T, double>) {
        if (const float* single = std::get_if<float>(&value))
            return doubleOfSingle(*single);
    }
    return valueAs<T>(value, key);
}

namespace saved {

template <class T>
BagValue held(const T& value) {
    return BagValue(std::in_place_type<T>, value);
}

template <class Owner, class T>
T typeOf(T Owner::*);
template <class Owner, class T>
T typeOf(T (Owner::*)() const);

/// Where a stored property stands, under its name.
namespace places {
#define ZKP_PLACE(Type, Name, Key, Subject, ...)                                                             \
    inline Type& Name(ReportState& state) {                                                                  \
        return state.Subject.Name;                                                                           \
    }
#define ZKP_SILENT_PLACE(Type, Name, Subject, ...) ZKP_PLACE(Type, Name, "", Subject)
ZKP_STORED_ROWS(ZKP_PLACE, ZKP_PLACE, ZKP_SILENT_PLACE, ZKP_SILENT_PLACE)
#undef ZKP_PLACE
#undef ZKP_SILENT_PLACE
} // namespace places

template <class T>
T storedAt(T& (*)(ReportState&));

/// A stored property of the control.
template <auto Place>
constexpr SavedTarget member() {
    using T = decltype(storedAt(Place));
    return {[](const SavedControl& control) { return held<T>(Place(control.state)); },
            [](const SavedControl& control, const BagValue& value, const QString& key) {
                Place(control.state) = takenAs<T>(value, key);
            }};
}

/// A property of the surface.
template <auto Get, auto Set>
constexpr SavedTarget surface() {
    using T = decltype(typeOf(Get));
    return {[](const SavedControl& control) { return held<T>((control.surface.*Get)()); },
            [](const SavedControl& control, const BagValue& value, const QString& key) {
                (control.surface.*Set)(takenAs<T>(value, key));
            }};
}

/// A plain setting of the surface.
template <auto Setting>
constexpr SavedTarget look() {
    using T = decltype(typeOf(Setting));
    return {[](const SavedControl& control) { return held<T>(control.surface.look().*Setting); },
            [](const SavedControl& control, const BagValue& value, const QString& key) {
                GridSurface::Look changed = control.surface.look();
                changed.*Setting = takenAs<T>(value, key);
                control.surface.setLook(changed);
            }};
}

/// A member of a column.
template <auto Member>
constexpr SavedColumnTarget column() {
    using T = decltype(typeOf(Member));
    return {[](const Column& entry) { return held<T>(entry.*Member); },
            [](Column& entry, const BagValue& value, const QString& key) {
                entry.*Member = takenAs<T>(value, key);
            }};
}

} // namespace saved

} // namespace zkp
