#pragma once

#include "core/report_state.h"
#include "host/scripted_host.h"
#include "error_of.h"
#include "print_qt.h"
#include "zkp_grid.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using zkp::test::errorNumber;
using zkp::test::errorOf;

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
