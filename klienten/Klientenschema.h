#pragma once

#include <QList>
#include <QStringList>

/// The tables of the store of clients. They are the same in a file and on a server.
namespace Klientenschema {

/// The form of the tables that this version of the program writes. It changes what is older in
/// steps, and only reads what is newer.
inline constexpr int fassung = 3;

/// The statements that lead from the form before to this one, 1 to `fassung`. A new store goes
/// through all of them too, so that there is one way to each form.
QStringList schritt(int nach);

} // namespace Klientenschema
