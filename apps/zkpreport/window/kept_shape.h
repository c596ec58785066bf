#pragma once

#include "bag/property_bag.h"
#include "window/dictionary_fields.h"
#include "zkp_grid.h"

#include <QPalette>

#include <functional>

namespace zkp::app {

/// The shape of a report on its way from one control to the next.
struct KeptShape {
    PropertyBagPtr bag;   ///< null: none
    bool isStart = false; ///< its columns are those that the report starts with
};

/// While this stands, a control is ready for its shape to be saved: it names itself, its filter is that of
/// the user, in dictionary keys and without rights, and it has no colours but those that were chosen. What
/// was there before comes back in the end.
class ShapeToSave {
public:
    ShapeToSave(ZkpGrid& grid, const QPalette& palette, const QString& filter, const QString& name);
    ~ShapeToSave();
    ShapeToSave(const ShapeToSave&) = delete;
    ShapeToSave& operator=(const ShapeToSave&) = delete;

private:
    ZkpGrid& grid_;
    QPalette palette_;
    QString filter_;
    QString name_;
};

/// Lets `give` read a shape into a prepared control and makes it whole: the columns are those of the shape
/// and no others, and the user's refresh loads.
void takeShape(ZkpGrid& grid, const QPalette& palette, const std::vector<DictionaryField>& fields,
               const std::function<void()>& give);

/// The fields of a control's columns and factors that are neither offered nor an aggregate of an offered
/// one.
QStringList deniedFields(ZkpGrid& grid, const std::vector<DictionaryField>& fields);

} // namespace zkp::app
