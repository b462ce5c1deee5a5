#pragma once

#include <QPageLayout>

class QSettings;

/// The page setup that all prints of the program share, as the settings hold it: paper size,
/// orientation and margins. Where they hold none, or nothing that makes sense, it is the paper of
/// the user's country, upright and without margins: what is printed brings its own distance from
/// the edge.
QPageLayout gemerkteSeite(const QSettings &einstellungen);

/// Keeps the page setup for the next print and the next start.
void merkeSeite(QSettings &einstellungen, const QPageLayout &seite);
