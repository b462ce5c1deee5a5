#pragma once

#include "Tabellendatei.h"

#include <QString>

#include <optional>

/// What the programs of the food table have in common.
namespace Kommandozeile {

enum Ausgang { Gelungen = 0, Misslungen = 1, FalscherAufruf = 2 };

/// The bytes of a file; nothing, and a message, when it can't be read.
std::optional<QByteArray> lesen(const QString &path);

/// Replaces a file whole; false, and a message, when it can't be written.
bool schreiben(const QString &path, const QByteArray &bytes);

/// One line on the output.
void drucken(const QString &zeile);

/// One line on the error output.
void melden(const QString &zeile);

/// Each objection as a line "file:12: error: text [check]", which editors jump to.
void melden(const QString &path, const Beanstandungen &beanstandungen);

} // namespace Kommandozeile
