#pragma once

#include <QString>

struct Druckauftrag;

/// What a print is called as a file, without an ending: its title, its day and its form, such as
/// "Mahlzeitenplan 2026-11-22 Liste". It holds no sign that a disk or another system refuses, and
/// of a long title the beginning.
QString druckname(const Druckauftrag &auftrag);

/// The path of a PDF of this name in the folder. Where there is one already, a number tells the new
/// one from it: "Plan.pdf", "Plan (2).pdf".
QString freiesPdf(const QString &ordner, const QString &name);

/// Where the user keeps documents, or the home folder of one who has no such place.
QString dokumentenordner();
