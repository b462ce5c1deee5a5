#pragma once

#include "Referenzdatei.h"

/// What the reference values that ship must keep, beyond being readable.
namespace Referenzpruefung {

/// Objects to publications that the page does not list, to ages that are out of their order, to a
/// figure that another line gives for the same people as well, and to a remark in one language.
Beanstandungen pruefen(const Referenzzeilen &zeilen, const QString &seite);

} // namespace Referenzpruefung
