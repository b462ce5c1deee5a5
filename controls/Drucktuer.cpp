#include "Drucktuer.h"

#include "Druckname.h"
#include "Fortschrittsanzeige.h"
#include "Pdftuer.h"
#include "Seiteneinrichtung.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPaintEngine>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QSettings>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr double punkteJeZoll = 72;

QString uebersetzt(const char *text)
{
    return QCoreApplication::translate("Mahlberg", text);
}

/// The paper with the margins that hold: the chosen ones, but no smaller than the printer's own.
QPageLayout bedruckbareSeite(const QPrinter &drucker)
{
    QPageLayout seite = drucker.pageLayout();
    seite.setUnits(QPageLayout::Point);
    const QMarginsF gewaehlt = seite.margins();
    const QMarginsF kleinste = seite.minimumMargins();
    seite.setMode(QPageLayout::StandardMode);
    seite.setMinimumMargins({});
    seite.setMargins(gewaehlt | kleinste);
    return seite;
}

bool schreibtPdf(QPrinter &drucker)
{
    return drucker.paintEngine()->type() == QPaintEngine::Pdf &&
           !drucker.outputFileName().isEmpty();
}

/// A full disk goes unnoticed while a PDF is written, but then its end is missing.
bool istVollstaendig(const QString &pdf)
{
    constexpr qint64 endestelle = 32;
    QFile datei(pdf);
    return datei.open(QIODevice::ReadOnly) &&
           datei.seek(qMax<qint64>(0, datei.size() - endestelle)) &&
           datei.read(endestelle).contains("%%EOF");
}

QString fehler(QPrinter &drucker)
{
    if (schreibtPdf(drucker)) {
        return uebersetzt(QT_TRANSLATE_NOOP("Mahlberg",
                                            "Die Datei „%1“ lässt sich nicht schreiben. Vielleicht "
                                            "ist der Ordner geschützt oder kein Platz mehr frei."))
            .arg(drucker.outputFileName());
    }
    return uebersetzt(QT_TRANSLATE_NOOP("Mahlberg",
                                        "Der Drucker „%1“ nimmt den Auftrag nicht an. Vielleicht "
                                        "ist er ausgeschaltet oder nicht mehr angeschlossen."))
        .arg(drucker.printerName());
}

enum class Druckende { Fertig, Abgebrochen, Misslungen };

Druckende maleSeiten(QPrinter &drucker, const Druckauftrag &auftrag, const QPageLayout &seite,
                     const QList<int> &folge, const Druckfortschritt &fortschritt)
{
    const auto weiter = [&fortschritt, gesamt = static_cast<int>(folge.size())](qsizetype fertig) {
        return !fortschritt || fortschritt(static_cast<int>(fertig), gesamt);
    };
    QPainter maler;
    if (!maler.begin(&drucker)) {
        return Druckende::Misslungen;
    }
    bool geht = weiter(0);
    for (qsizetype i = 0; geht && i < folge.size(); ++i) {
        if (i > 0 && !drucker.newPage()) {
            return Druckende::Misslungen;
        }
        maler.save();
        maler.scale(drucker.logicalDpiX() / punkteJeZoll, drucker.logicalDpiY() / punkteJeZoll);
        auftrag.male(maler, seite, folge[i]);
        maler.restore();
        geht = weiter(i + 1) || i + 1 == folge.size(); // too late to cancel when all is done
    }
    if (!geht) {
        maler.end();
        return Druckende::Abgebrochen;
    }
    return maler.end() && drucker.printerState() != QPrinter::Error ? Druckende::Fertig
                                                                    : Druckende::Misslungen;
}

/// Half a PDF is of no use. What is no ordinary file is left where it is.
void raeumeAuf(QPrinter &drucker)
{
    if (schreibtPdf(drucker) && QFileInfo(drucker.outputFileName()).isFile()) {
        QFile::remove(drucker.outputFileName());
    }
}

/// The preview needs its printer from its first to its last moment.
struct Druckerhalter
{
    QPrinter drucker{QPrinter::HighResolution};
};

class Druckvorschau : private Druckerhalter, public QPrintPreviewDialog
{
public:
    Druckvorschau(QSettings &einstellungen, const Druckauftrag &auftrag, const Meldungstuer &melde,
                  QWidget *fenster)
        : QPrintPreviewDialog(eingerichtet(drucker, gemerkteSeite(einstellungen), auftrag.titel),
                              fenster)
        , m_einstellungen(einstellungen)
        , m_name(druckname(auftrag))
    {
        setObjectName(QStringLiteral("druckvorschau"));
        drucker.setDocName(m_name); // the window has its title by now
        QCoreApplication::instance()->installEventFilter(this);
        connect(this, &QPrintPreviewDialog::paintRequested, this,
                [this, auftrag, melde](QPrinter *geraet) { male(*geraet, auftrag, melde); });
    }

    void merkeSeite() { ::merkeSeite(m_einstellungen, drucker.pageLayout()); }

    /// Puts a button for a PDF behind the one that prints.
    void nimmPdfAuf(const Druckauftrag &auftrag, const Pdftuer &alsPdf)
    {
        const QString was = uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Als PDF sichern …"));
        auto *leiste = findChild<QToolBar *>();
        QAction *aktion = leiste->addAction(uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "PDF …")));
        aktion->setObjectName(QStringLiteral("alsPdf"));
        aktion->setToolTip(was);
        leiste->widgetForAction(aktion)->setAccessibleName(was);
        connect(aktion, &QAction::triggered, this, [this, auftrag, alsPdf] {
            merkeSeite(); // the PDF takes it from there
            alsPdf(this, auftrag, [this] { reject(); });
        });
    }

protected:
    /// The print dialog has messages of its own, with the name of the file in them, and proposes
    /// the same file for every print.
    bool eventFilter(QObject *ziel, QEvent *event) override
    {
        if (event->type() == QEvent::Polish) {
            if (const auto *kasten = qobject_cast<QMessageBox *>(ziel)) {
                zeigeAlsKlartext(*kasten);
            } else if (const auto *frage = qobject_cast<QPrintDialog *>(ziel)) {
                schlageDateiVor(*frage);
            }
        }
        return QPrintPreviewDialog::eventFilter(ziel, event);
    }

private:
    void schlageDateiVor(const QPrintDialog &frage) const
    {
        if (auto *zeile = frage.findChild<QLineEdit *>(QStringLiteral("filename"))) {
            const QString ordner = pdfordner(m_einstellungen);
            zeile->setText(freiesPdf(nimmtDateien(ordner) ? ordner : dokumentenordner(), m_name));
        }
    }

    void male(QPrinter &geraet, const Druckauftrag &auftrag, const Meldungstuer &melde)
    {
        std::optional<Fortschrittsanzeige> anzeige;
        anzeige.emplace(auftrag.titel, Fortschrittsanzeige::seiten(),
                        isVisible() ? this : parentWidget());
        const auto grund = drucke(geraet, auftrag, [&anzeige](int fertig, int gesamt) {
            return anzeige->zeige(fertig, gesamt);
        });
        const bool abgebrochen = anzeige->abgebrochen();
        anzeige.reset(); // it would come up again over a message
        if (grund) {
            melde(this,
                  {uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Das Drucken ist nicht gelungen.")),
                   *grund,
                   {uebersetzt("ok")}});
        } else if (abgebrochen) { // a preview of some of the pages would pass for all of them
            QMetaObject::invokeMethod(this, &QDialog::reject, Qt::QueuedConnection);
        }
    }

    static QPrinter *eingerichtet(QPrinter &geraet, const QPageLayout &seite, const QString &titel)
    {
        QPageLayout ganz = seite;
        ganz.setMode(
            QPageLayout::FullPageMode); // else a margin smaller than the printer's is refused
        geraet.setPageLayout(ganz);
        geraet.setDocName(titel);
        return &geraet;
    }

    QSettings &m_einstellungen;
    QString m_name;
};

} // namespace

QList<int> druckfolge(int seitenzahl, const QPageRanges &bereiche, bool letzteZuerst, int kopien)
{
    QList<int> einmal;
    for (int nummer = 1; nummer <= seitenzahl; ++nummer) {
        if (bereiche.isEmpty() || bereiche.contains(nummer)) {
            einmal << nummer;
        }
    }
    if (letzteZuerst) {
        std::reverse(einmal.begin(), einmal.end());
    }
    QList<int> folge;
    for (int i = 0; i < kopien; ++i) {
        folge << einmal;
    }
    return folge;
}

double passmass(const QSizeF &quelle, const QSizeF &ziel)
{
    return std::min(ziel.width() / quelle.width(), ziel.height() / quelle.height());
}

void passeEin(QPainter &maler, const QRectF &quelle, const QRectF &ziel)
{
    if (quelle.isEmpty() || ziel.isEmpty()) {
        return;
    }
    const double mass = passmass(quelle.size(), ziel.size());
    maler.translate(ziel.topLeft());
    maler.scale(mass, mass);
    maler.translate(-quelle.topLeft());
}

std::optional<QString> drucke(QPrinter &drucker, const Druckauftrag &auftrag,
                              const Druckfortschritt &fortschritt)
{
    drucker.setFullPage(true); // the painter's origin is the paper's corner
    const QPageLayout seite = bedruckbareSeite(drucker);
    const bool auswahl = drucker.printRange() == QPrinter::PageRange;
    const QList<int> folge =
        druckfolge(auftrag.seitenzahl(seite), auswahl ? drucker.pageRanges() : QPageRanges(),
                   drucker.pageOrder() == QPrinter::LastPageFirst,
                   drucker.supportsMultipleCopies() ? 1 : drucker.copyCount());
    if (folge.isEmpty()) {
        return uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Die gewählten Seiten gibt es nicht."));
    }
    switch (maleSeiten(drucker, auftrag, seite, folge, fortschritt)) {
    case Druckende::Fertig:
        if (schreibtPdf(drucker) && !istVollstaendig(drucker.outputFileName())) {
            return fehler(drucker);
        }
        break;
    case Druckende::Abgebrochen:
        raeumeAuf(drucker);
        break;
    case Druckende::Misslungen:
        return fehler(drucker);
    }
    return {};
}

Drucktuer systemdrucktuer(QSettings &einstellungen, const Meldungstuer &melde,
                          const Pdftuer &alsPdf)
{
    return [&einstellungen, melde, alsPdf](QWidget *fenster, const Druckauftrag &auftrag) {
        auto *vorschau = new Druckvorschau(einstellungen, auftrag, melde, fenster);
        if (alsPdf) {
            vorschau->nimmPdfAuf(auftrag, alsPdf);
        }
        vorschau->setAttribute(Qt::WA_DeleteOnClose);
        vorschau->setWindowModality(Qt::ApplicationModal); // what is printed stays as it is
        QObject::connect(vorschau, &QDialog::finished, vorschau,
                         [vorschau] { vorschau->merkeSeite(); });
        // In the preview's own size a page can hardly be read.
        constexpr QSize kleinste(752, 515); // room for its buttons
        vorschau->resize(fenster->size().expandedTo(kleinste));
        vorschau->show();
    };
}
