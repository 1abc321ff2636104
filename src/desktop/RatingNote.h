// Why a rating series may have no point.
#pragma once

#include <QString>

/// For the input that the series in force varies: what its values must be, and where to choose others.
QString WhyNoPoints();
