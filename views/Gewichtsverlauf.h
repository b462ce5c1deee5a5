#pragma once

#include <array>

/// Body weights in kg: today and after one, two, three and four weeks.
using Wochengewichte = std::array<float, 5>;

/// The weights to expect when `aufnahme` kcal are eaten every day by someone who weighs `gewicht`
/// kg and needs `bedarf` kcal a day at that weight. A kilogram of body weight holds 7000 kcal; the
/// requirement falls and rises in proportion to the weight. Every step is in single precision.
///
/// A weight of 0 has no requirement per kilogram: it gives 0 for every week. Where a week ends at
/// exactly 0 the requirement of the next is 0. Senseless figures may end in infinite or undefined
/// weights; whoever shows them has to expect that.
Wochengewichte gewichtsverlauf(float gewicht, int bedarf, int aufnahme);

/// The weight in kg at which a body of `groesse` metres has the body mass index `bmi`.
float gewichtBeiBmi(float bmi, float groesse);
