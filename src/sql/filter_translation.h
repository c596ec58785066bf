#pragma once

#include "sql/builder_inputs.h"

namespace zkp {

/// Turns a filter in dictionary keys into one in physical names, by a fixed series of replacements for
/// each dictionary row; what they don't match passes unchanged.
class FilterTranslation {
public:
    explicit FilterTranslation(BuilderInputs& inputs)
        : inputs_(inputs) {}

    /// Overwrites `Filter`; `Tables` gains the tables that the filter needs. On a failure a box shows
    /// and `Filter` stays.
    ///
    /// A person's filter is always translated from what was typed, with the standing condition in front.
    /// One that can't be kept to its brackets then lets nothing through, nor does one whose standing
    /// condition can't be translated.
    void TranslateFilter(QString& Tables);

private:
    class Text;
    void translate(Text& text, QString& Tables);

    BuilderInputs& inputs_;
};

} // namespace zkp
