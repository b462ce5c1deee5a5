#pragma once

#include "Klientendaten.h"
#include "Vergleichszeile.h"

#include <cstdint>

/// The energy requirement at a visit in whole kcal per day, as the calculator works it out: of the
/// hours of sport only whole ones count, and a sport that is in no table adds nothing. What was not
/// told of sport and reduction counts as none. Absent where weight, activity or gender are not
/// known, and for children too young for the calculator.
std::optional<std::int32_t> energiebedarfBei(const Person &person, const Besuch &besuch);

/// What a plan of this day is measured against, in kcal per day: the requirement at the last visit
/// until then. 0 while it is unknown.
std::int32_t energiebedarfAm(const QDate &tag, const Klientenakte &akte);

/// Two visits of a client side by side: every field of a visit, and behind those from which they
/// follow body mass index, waist to hip and energy requirement.
QList<Vergleichszeile> besucheVergleichen(const Klientenakte &akte, const Besuch &links,
                                          const Besuch &rechts);
