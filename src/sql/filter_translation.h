#pragma once

#include "host/message_boxes.h"
#include "sql/builder_inputs.h"

namespace zkp {

/// Turns a filter in dictionary keys into one in physical names, by a fixed series of replacements for
/// each dictionary row; what they don't match passes unchanged.
class FilterTranslation {
public:
    FilterTranslation(BuilderInputs& inputs, MessageBoxes& boxes)
        : inputs_(inputs)
        , boxes_(boxes) {}

    /// Overwrites `Filter`; `Tables` gains the tables that the filter needs. On a failure a box shows
    /// and `Filter` stays.
    void TranslateFilter(QString& Tables);

private:
    QString startingText() const;

    BuilderInputs& inputs_;
    MessageBoxes& boxes_;
};

/// One dictionary row's fourteen replacements of a key by its physical text, in their fixed order. False
/// when the key does not occur at all, and the filter is as it was.
bool replaceKey(QString& filter, const QString& key, const QString& physical);

} // namespace zkp
