#pragma once

#include "base/error_in_flight.h"
#include "core/report_state.h"
#include "host/error_box.h"

#include <utility>

namespace zkp {

/// How an operation of a control ends. Whatever it does, an operation under which a handler has destroyed
/// the control unwinds (ControlDestroyed), and nothing is shown.
class Reporting {
public:
    Reporting(const ReportState& state, ErrorBox box)
        : state_(state)
        , box_(box) {}

    /// Runs an operation whose failure shows the error box. True when there was none.
    template <class Operation>
    bool run(Operation operation) const {
        return run(std::move(operation), [this](const Error& error) { box_.show(error); });
    }

    /// The same for a failure that is told in another way.
    template <class Operation, class Tell>
    bool run(Operation operation, Tell tell) const {
        try {
            operation();
            return true;
        } catch (const ControlDestroyed&) {
            throw;
        } catch (...) {
            const Error error = errorInFlight();
            state_.throwIfDestroyed();
            tell(error);
            return false;
        }
    }

    /// Runs a step whose failure is passed over.
    template <class Step>
    void passOver(Step step) const {
        run(std::move(step), [](const Error&) {});
        state_.throwIfDestroyed();
    }

    /// The error box at once.
    void show(const Error& error) const { box_.show(error); }

private:
    const ReportState& state_;
    ErrorBox box_;
};

} // namespace zkp
