#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Rows whose cells stand under each other when letters have one width. `seiten` has a letter for
/// each column: "l" stands on the left, "r" on the right. A row may end early. Every line is
/// indented and ends with a line break.
QString ausgerichtet(const QList<QStringList> &zeilen, QLatin1String seiten);
