#pragma once

#include "Simulation.hpp"
#include "ui/ScreenTimeView/Dashboard.hpp"

namespace kestrelfen {

/// The dashboard as if first shown: it has loaded, and is gone when what was done on it has ended. What was
/// chosen on it is kept.
template <typename Action>
void withDashboard(Simulation& simulation, Action action) {
    SimulatedProgram& program = simulation.program();
    SimulatedProgram::DashboardChoices& kept = program.dashboardChoices();
    Dashboard dashboard(simulation.world().ports(), {.engine = program.engine(),
                                                     .screenTime = program.screenTime(),
                                                     .store = program.store(),
                                                     .navigation = program.delegate().router()});
    dashboard.setUsageSource(kept.usageSource);
    dashboard.setHoveredDay(kept.hoveredDay);
    dashboard.takePendingDetail();
    dashboard.load();
    simulation.settle();
    action(dashboard);
    kept = {dashboard.usageSource(), dashboard.hoveredDay()};
    simulation.settle();
}

} // namespace kestrelfen
