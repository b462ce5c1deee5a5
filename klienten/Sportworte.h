#pragma once

#include <QString>

/// How a sport that is kept under its German name is called in the language of the windows; the
/// empty name is that of none. A name that is in no table stays as it is.
QString sportworte(const QString &deutsch);
