#pragma once

#include "base/error.h"
#include "core/enums.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace zkp {

/// How a load ended. A load is what `refresh` and `FillGrid` start, and what the control starts itself
/// when it is sorted by a column or reshaped; a step that a host calls by itself is none.
struct LoadOutcome {
    ZKPLoadResult result = ZKPLoadNone;
    QString built;            ///< the statement as its builder, or the host, made it; empty when none was
    QString sent;             ///< as the database received it last; empty when it received none
    std::int64_t records = 0; ///< as far as their number was known
    /// Milliseconds from the start until the first record could be read: statement and fetch. 0 when
    /// the load didn't come so far.
    double firstRecordMs = 0;
    double lastRecordMs = 0;      ///< until the last record stood in its row
    std::optional<Error> failure; ///< of a failed or refused load: what failed first
};

/// Hears of a control's loads. What one throws ends in the error box and changes no outcome.
struct LoadListener {
    /// A load begins; one that is refused doesn't.
    std::function<void()> begins;
    /// It has ended, or was refused. Whoever hears it may load again.
    std::function<void(const LoadOutcome&)> ended;
};

} // namespace zkp
