#pragma once

#include "Meldung.h"

#include <QDate>
#include <QPageLayout>
#include <QPageRanges>
#include <QString>

#include <functional>
#include <optional>

class QPainter;
class QPrinter;
class QSettings;
class QWidget;

/// Something to be printed. It may be painted several times, on a screen for a preview as well as
/// on paper, and on another paper each time.
struct Druckauftrag
{
    /// How the print is called in the preview, in a printer's queue and in a PDF.
    QString titel;
    /// How many pages it takes on such a paper.
    std::function<int(const QPageLayout &seite)> seitenzahl;
    /// Paints a page, counted from 1. The painter's unit is the point, its origin the paper's top
    /// left corner, and nothing is to stand outside of the margins.
    std::function<void(QPainter &maler, const QPageLayout &seite, int nummer)> male;
    /// What sets the print apart from others of the same title, such as "Liste"; it becomes part of
    /// a PDF's name. Empty where there is nothing to tell apart.
    QString form = {};
    /// The day that stands on the print.
    QDate tag = QDate::currentDate();
};

/// Prints over a window, after asking the user how. Made in `main`, so that a test can print to a
/// file without being asked.
using Drucktuer = std::function<void(QWidget *fenster, const Druckauftrag &auftrag)>;

/// Saves a print as a PDF over a window, after asking the user where; `danach` is run when it is
/// there. Made in `main` as well; see Pdftuer.h for the one of the program.
using Pdftuer = std::function<void(QWidget *fenster, const Druckauftrag &auftrag,
                                   const std::function<void()> &danach)>;

/// The door that shows a preview with the page setup, and from there the system's print dialog or,
/// without a printer, the question for a PDF. For a PDF a new name in the folder for PDFs is
/// proposed. The preview saves a PDF through `alsPdf` too, on the paper that it shows; without that
/// door it has no button for it. Many pages show how far they have come and can be
/// cancelled, for the preview as well as for the print; either way the preview closes. Paper,
/// orientation and margins come from the settings and go back there. Printing that fails is told
/// through `melde`; cancelling does nothing. The settings outlive the door.
Drucktuer systemdrucktuer(QSettings &einstellungen, const Meldungstuer &melde,
                          const Pdftuer &alsPdf = {});

/// Told how many pages are done and how many there will be, first with none and then after each.
/// Answers whether to go on.
using Druckfortschritt = std::function<bool(int fertig, int gesamt)>;

/// Prints on a printer as it is set up: its paper, its range of pages, their order and copies.
/// Returns what went wrong, in the user's language, and nothing when all went well or when
/// `fortschritt` ended it. A PDF that was ended before its last page is taken away again; a
/// printer prints the pages that it has got by then.
std::optional<QString> drucke(QPrinter &drucker, const Druckauftrag &auftrag,
                              const Druckfortschritt &fortschritt = {});

/// The numbers of the pages in the order in which they leave the printer. No ranges mean all pages.
QList<int> druckfolge(int seitenzahl, const QPageRanges &bereiche, bool letzteZuerst, int kopien);

/// How many times as large something gets when it is fitted into a place, with its proportions
/// kept. Neither may be empty.
double passmass(const QSizeF &quelle, const QSizeF &ziel);

/// Moves and shrinks the painter's coordinates so that `quelle` lies within `ziel` as large as it
/// can, at its top left corner, with its proportions kept.
void passeEin(QPainter &maler, const QRectF &quelle, const QRectF &ziel);
