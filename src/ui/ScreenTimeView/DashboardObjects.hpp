#pragma once

#include "ui/ScreenTimeView/DashboardContent.hpp"

#include <QVariantMap>

namespace kestrelfen {

/// What the cards of the dashboard show, as their views take it: by the names that they ask for.
QVariantMap objectOf(const HeroContent& hero);
QVariantMap objectOf(const WeekContent& week);
QVariantMap objectOf(const ScoreContent& score);
QVariantMap objectOf(const UsageCardContent& usage);
QVariantMap objectOf(const UsageCardContent::Row& row);

} // namespace kestrelfen
