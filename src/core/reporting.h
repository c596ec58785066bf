#pragma once

#include "base/error_in_flight.h"
#include "core/load_notes.h"
#include "core/state/lifetime.h"
#include "host/error_box.h"

#include <utility>

namespace zkp {

/// How an operation of a control ends. Whatever it does, an operation under which a handler has destroyed
/// the control unwinds (ControlDestroyed), and nothing is shown.
class Reporting {
public:
    /// `notes` learn of every failure that is told, since a load goes on after most of them.
    Reporting(const Lifetime& lifetime, ErrorBox box, LoadNotes* notes = nullptr)
        : lifetime_(lifetime)
        , box_(box)
        , notes_(notes) {}

    /// Runs an operation whose failure shows the error box. True when there was none.
    template <class Operation>
    bool run(Operation operation) const {
        return run(std::move(operation), [this](const Error& error) { box_.show(error); });
    }

    /// The same for a failure that is told in another way.
    template <class Operation, class Tell>
    bool run(Operation operation, Tell tell) const {
        return end(std::move(operation), [&](const Error& error) {
            if (notes_)
                notes_->failed(error);
            tell(error);
        });
    }

    /// Runs a step whose failure is passed over.
    template <class Step>
    void passOver(Step step) const {
        end(std::move(step), [](const Error&) {});
        lifetime_.throwIfDestroyed();
    }

    /// The same end for what belongs to no load.
    Reporting unnoted() const { return {lifetime_, box_}; }

    /// The error box at once.
    void show(const Error& error) const { box_.show(error); }

private:
    template <class Operation, class Tell>
    bool end(Operation operation, Tell tell) const {
        try {
            operation();
            return true;
        } catch (const ControlDestroyed&) {
            throw;
        } catch (...) {
            const Error error = errorInFlight();
            lifetime_.throwIfDestroyed();
            tell(error);
            return false;
        }
    }

    const Lifetime& lifetime_;
    ErrorBox box_;
    LoadNotes* notes_;
};

} // namespace zkp
