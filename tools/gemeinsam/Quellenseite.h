#pragma once

#include "Tabellendatei.h"

/// The publications that a page for people lists. What the tables say is from one of them.
namespace Quellenseite {

/// The keys of the publications, the first cells of the lines of the page's table. "USDA-nnnnn"
/// stands for every number of a food in that publication.
QStringList schluessel(const QString &seite);

/// Objects to a line of a table that names no publication, and to those that are not among the
/// keys of the page. `was` is the word for what the line says: "value".
Beanstandungen pruefen(int zeile, const QString &was, const QStringList &quellen,
                       const QStringList &bekannte);

} // namespace Quellenseite
