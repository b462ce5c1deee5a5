#pragma once

#include "Drucktuer.h"
#include "Klientendaten.h"

#include <QDate>

/// Everything that is kept of a client, as it is put into a folder of paper: who it is, the visits
/// with what was measured, the courses of weight, body mass index and waist, the plans with
/// their foods, and the records of days with what was eaten. Black on white on any paper, with the
/// day and the page at the foot.
Druckauftrag klientenblatt(const Klientenakte &akte, const QDate &heute);
