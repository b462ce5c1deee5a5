#pragma once

#include "Klientendaten.h"

#include <QByteArray>

/// The rows of a plan as JSON, in which they are kept and handed over. Each food stands with its
/// values by name, so that other programs can read them too.
QByteArray postenAlsText(const QList<Planposten> &posten);

/// Reads them back, to the last bit of each number. Absent for a text that says something else: a
/// row without a key, an amount or value that is no number.
std::optional<QList<Planposten>> postenAusText(const QByteArray &text);
