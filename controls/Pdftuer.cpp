#include "Pdftuer.h"

#include "Druckname.h"
#include "Fortschrittsanzeige.h"
#include "Hinweisstreifen.h"
#include "Seiteneinrichtung.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrinter>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>

namespace {

const QString schluessel = QStringLiteral("PdfOrdner");

QString uebersetzt(const char *text)
{
    return QCoreApplication::translate("Mahlberg", text);
}

/// The strip of the window, or of the one that it lies above.
Hinweisstreifen *streifenVon(QWidget *fenster)
{
    for (; fenster != nullptr; fenster = fenster->parentWidget()) {
        if (auto *streifen = fenster->findChild<Hinweisstreifen *>()) {
            return streifen;
        }
    }
    return nullptr;
}

/// Saves one print.
class Pdfablage
{
public:
    Pdfablage(QSettings &einstellungen, Meldungstuer melde, Dateituer frage, Ordnertuer oeffne)
        : m_einstellungen(einstellungen)
        , m_melde(std::move(melde))
        , m_frage(std::move(frage))
        , m_oeffne(std::move(oeffne))
    {
    }

    void sichere(QWidget *fenster, const Druckauftrag &auftrag,
                 const std::function<void()> &danach) const
    {
        frageUndSchreibe(fenster, auftrag, danach, brauchbarerOrdner(fenster));
    }

private:
    enum class Ausgang { Geschrieben, Abgebrochen, Misslungen };

    /// The folder to begin with. That the chosen one can't be used is said; it stays chosen, since
    /// it may lie on a stick that is plugged in again.
    QString brauchbarerOrdner(QWidget *fenster) const
    {
        QString ordner = pdfordner(m_einstellungen);
        if (nimmtDateien(ordner)) {
            return ordner;
        }
        m_melde(fenster,
                {uebersetzt(QT_TRANSLATE_NOOP("Mahlberg",
                                              "In den Ordner für PDF lässt sich nichts sichern.")),
                 uebersetzt(QT_TRANSLATE_NOOP(
                                "Mahlberg", "„%1“ ist nicht da oder geschützt. Wählen Sie einen "
                                            "anderen Ordner. Welcher vorgeschlagen wird, steht in "
                                            "den Einstellungen."))
                     .arg(QDir::toNativeSeparators(ordner)),
                 {uebersetzt("ok")}});
        return dokumentenordner();
    }

    /// What can't be written is asked about again, until it can or the user has enough.
    void frageUndSchreibe(QWidget *fenster, const Druckauftrag &auftrag,
                          const std::function<void()> &danach, const QString &ordner) const
    {
        m_frage(fenster,
                {.titel = uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Als PDF sichern")),
                 .vorschlag = freiesPdf(ordner, druckname(auftrag)),
                 .arten = QStringLiteral("PDF (*.pdf)"),
                 .endung = QStringLiteral("pdf"),
                 .zweck = Dateifrage::Zweck::Schreiben},
                [ablage = *this, fenster, auftrag, danach](const QString &pdf) {
                    switch (ablage.schreibe(fenster, auftrag, pdf)) {
                    case Ausgang::Geschrieben:
                        ablage.sageWo(fenster, pdf);
                        danach();
                        break;
                    case Ausgang::Misslungen:
                        ablage.sageMisslungenes(fenster, pdf);
                        ablage.frageUndSchreibe(fenster, auftrag, danach, ablage.daneben(pdf));
                        break;
                    case Ausgang::Abgebrochen:
                        break;
                    }
                });
    }

    void sageMisslungenes(QWidget *fenster, const QString &pdf) const
    {
        m_melde(fenster,
                {uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Das PDF ist nicht gesichert.")),
                 uebersetzt(QT_TRANSLATE_NOOP("Mahlberg",
                                              "Die Datei „%1“ lässt sich nicht schreiben. "
                                              "Vielleicht ist der Ordner geschützt oder kein Platz "
                                              "mehr frei."))
                     .arg(pdf),
                 {uebersetzt("ok")}});
    }

    static QString daneben(const QString &pdf)
    {
        const QString ordner = QFileInfo(pdf).path();
        return nimmtDateien(ordner) ? ordner : dokumentenordner();
    }

    /// Prints beside everything and takes only what is whole to its place.
    Ausgang schreibe(QWidget *fenster, const Druckauftrag &auftrag, const QString &pdf) const
    {
        const QTemporaryDir werkstatt;
        if (!werkstatt.isValid()) {
            return Ausgang::Misslungen;
        }
        const QString entwurf = werkstatt.filePath(QStringLiteral("entwurf.pdf"));
        QPrinter drucker(QPrinter::HighResolution);
        drucker.setOutputFormat(QPrinter::PdfFormat);
        QPageLayout seite = gemerkteSeite(m_einstellungen);
        seite.setMode(QPageLayout::FullPageMode); // takes any margins
        drucker.setPageLayout(seite);
        drucker.setDocName(druckname(auftrag));
        drucker.setOutputFileName(entwurf);
        Fortschrittsanzeige anzeige(auftrag.titel, Fortschrittsanzeige::seiten(), fenster);
        const auto grund = drucke(drucker, auftrag, [&anzeige](int fertig, int gesamt) {
            return anzeige.zeige(fertig, gesamt);
        });
        if (anzeige.abgebrochen()) {
            return Ausgang::Abgebrochen;
        }
        return !grund && legeAb(entwurf, pdf) ? Ausgang::Geschrieben : Ausgang::Misslungen;
    }

    /// What is no file, such as a device, is not replaced by one.
    static bool legeAb(const QString &entwurf, const QString &pdf)
    {
        const QFileInfo dort(pdf);
        if (dort.exists() && !dort.isFile()) {
            return false;
        }
        QFile fertiges(entwurf);
        QSaveFile datei(pdf);
        // Unbuffered: else a disk that becomes full on the way goes unnoticed.
        if (!fertiges.open(QIODevice::ReadOnly) ||
            !datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            return false;
        }
        const QByteArray bytes = fertiges.readAll();
        return !bytes.isEmpty() && datei.write(bytes) == bytes.size() && datei.commit();
    }

    void sageWo(QWidget *fenster, const QString &pdf) const
    {
        const QString satz = uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Das PDF ist gesichert: %1"))
                                 .arg(QDir::toNativeSeparators(pdf));
        Hinweisstreifen *streifen = streifenVon(fenster);
        if (streifen == nullptr) {
            m_melde(fenster, {satz, {}, {uebersetzt("ok")}});
            return;
        }
        streifen->zeige({.kennung = QStringLiteral("pdf"),
                         .text = satz,
                         .knopf = uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Ordner öffnen")),
                         .aktion = [melde = m_melde, oeffne = m_oeffne,
                                    fenster = streifen->window(), ordner = QFileInfo(pdf).path()] {
                             if (!oeffne(ordner)) {
                                 melde(fenster,
                                       {uebersetzt(QT_TRANSLATE_NOOP(
                                            "Mahlberg", "Der Ordner lässt sich nicht öffnen.")),
                                        QDir::toNativeSeparators(ordner),
                                        {uebersetzt("ok")}});
                             }
                         }});
    }

    QSettings &m_einstellungen;
    Meldungstuer m_melde;
    Dateituer m_frage;
    Ordnertuer m_oeffne;
};

} // namespace

QString gewaehlterPdfordner(const QSettings &einstellungen)
{
    return einstellungen.value(schluessel).toString();
}

QString pdfordner(const QSettings &einstellungen)
{
    const QString gewaehlter = gewaehlterPdfordner(einstellungen);
    return gewaehlter.isEmpty() ? dokumentenordner() : gewaehlter;
}

void merkePdfordner(QSettings &einstellungen, const QString &ordner)
{
    if (ordner.isEmpty()) {
        einstellungen.remove(schluessel);
    } else {
        einstellungen.setValue(schluessel, ordner);
    }
}

bool nimmtDateien(const QString &ordner)
{
    const QFileInfo info(ordner);
    return info.isDir() && info.isWritable() && info.isExecutable();
}

bool zeigeOrdner(const QString &ordner)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(ordner));
}

Pdftuer systempdftuer(QSettings &einstellungen, const Meldungstuer &melde, const Dateituer &frage,
                      const Ordnertuer &oeffne)
{
    return [ablage = Pdfablage(einstellungen, melde, frage, oeffne)](
               QWidget *fenster, const Druckauftrag &auftrag, const std::function<void()> &danach) {
        ablage.sichere(fenster, auftrag, danach);
    };
}
