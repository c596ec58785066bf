#pragma once

#include "base/error.h"
#include "core/report_state.h"
#include "host/scripted_host.h"
#include "print_qt.h"
#include "zkp_grid.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

/// The error that a call ends in; nothing when it ends well.
inline std::optional<zkp::Error> errorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const zkp::Error& error) {
        return error;
    }
    return std::nullopt;
}

inline std::uint32_t errorNumberOf(const std::function<void()>& call) {
    const auto error = errorOf(call);
    return error ? error->number() : 0;
}

/// A control with a host that records its boxes, in the Greek locale.
class GridTest : public testing::Test {
protected:
    GridTest() {
        zkp::ClickedColumn::take(0); // which other controls of the process have left behind
        grid->setLocale(QLocale(QStringLiteral("el_GR")));
        QObject::connect(&grid->events(), &zkp::Events::PropertyChanged,
                         [this](zkp::PropertyArgs& e) { changed << e.name; });
    }

    /// The keys reported while a call runs.
    QStringList keysOf(const std::function<void()>& call) {
        changed.clear();
        call();
        return changed;
    }

    std::shared_ptr<zkp::ScriptedHost> host = std::make_shared<zkp::ScriptedHost>();
    std::unique_ptr<zkp::ZkpGrid> grid = std::make_unique<zkp::ZkpGrid>(host);
    QStringList changed;
};
