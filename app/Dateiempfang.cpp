#include "Dateiempfang.h"

#include "AppController.h"
#include "Dateifenster.h"
#include "Dateihueter.h"
#include "Druckname.h"
#include "Eigenuebernahme.h"
#include "Hindernisworte.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

const QString eigeneDaten = QStringLiteral("customdaten");
const QString plandaten = QStringLiteral("plandaten");

/// A message with more lines than this would be higher than the screen.
constexpr qsizetype meisteZeilen = 10;

QString zeile(const QString &name, const QString &grund)
{
    return localizedString(QStringLiteral("„%1“: %2")).arg(name, grund);
}

} // namespace

Dateiempfang::Dateiempfang(AppController &controller, const Datenordner &ordner,
                           std::shared_ptr<Dateihueter> dateien, Meldungstuer melde,
                           Dateituer frage)
    : m_controller(controller)
    , m_ordner(ordner)
    , m_dateien(std::move(dateien))
    , m_melde(std::move(melde))
    , m_frage(std::move(frage))
{
    connect(&controller, &AppController::dateiGewuenscht, this, &Dateiempfang::frageNachDateien);
}

void Dateiempfang::frageNachDateien()
{
    if (!m_frage) {
        return;
    }
    const QString ordner = m_zuletzt.isEmpty() ? dokumentenordner() : m_zuletzt;
    m_frage(m_controller.Hauptfenster,
            {.titel = localizedString(QStringLiteral("Datei öffnen")),
             .vorschlag = QDir(ordner).filePath(QStringLiteral("x.daten")),
             .arten = localizedString(QStringLiteral("Lebensmittel (*.daten);;Alle Dateien (*)")),
             .zweck = Dateifrage::Zweck::AlleLesen},
            [this](const QString &pfad) { oeffne({pfad}); });
}

void Dateiempfang::oeffne(const QStringList &pfade)
{
    empfange(pfade, {});
}

void Dateiempfang::oeffneAdressen(const QList<QUrl> &adressen)
{
    QStringList pfade;
    QStringList fremde;
    for (const QUrl &adresse : adressen) {
        if (adresse.isLocalFile()) {
            pfade << adresse.toLocalFile();
        } else {
            fremde << zeile(adresse.toDisplayString(),
                            localizedString(QStringLiteral("Geöffnet werden nur Dateien dieses "
                                                           "Rechners.")));
        }
    }
    empfange(pfade, fremde);
}

void Dateiempfang::empfange(const QStringList &pfade, QStringList hindernisse)
{
    for (const QString &eine : pfade) {
        const Lebensmitteldatei datei =
            oeffneLebensmitteldatei(eine, pfad(eigeneDaten), pfad(plandaten));
        if (datei.lesbar()) {
            m_zuletzt = QFileInfo(eine).absolutePath();
            m_wartende << datei;
        } else {
            hindernisse << zeile(QDir::toNativeSeparators(eine), hinderniswort(datei));
        }
    }
    sageHindernisse(hindernisse);
    zeigeNaechste();
}

void Dateiempfang::sageHindernisse(const QStringList &hindernisse)
{
    if (hindernisse.isEmpty()) {
        return;
    }
    QStringList zeilen = hindernisse.first(std::min(hindernisse.size(), meisteZeilen));
    if (hindernisse.size() > meisteZeilen) {
        zeilen << localizedString(QStringLiteral("und %1 weitere"))
                      .arg(hindernisse.size() - meisteZeilen);
    }
    m_melde(m_controller.Hauptfenster,
            {localizedString(QStringLiteral("Das lässt sich nicht öffnen.")),
             zeilen.join(u'\n'),
             {localizedString(QStringLiteral("ok"))}});
}

void Dateiempfang::zeigeNaechste()
{
    if (m_zeigt || m_wartende.isEmpty()) {
        return;
    }
    // A question or a sheet in front is about the foods as they were when it came up, and what is
    // done in it would undo what a file brought meanwhile: the file waits until that has gone.
    if (const auto *davor = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
        connect(davor, &QDialog::finished, this, &Dateiempfang::zeigeNaechste,
                Qt::QueuedConnection);
        connect(davor, &QObject::destroyed, this, &Dateiempfang::zeigeNaechste,
                Qt::QueuedConnection);
        return;
    }
    m_zeigt = true;
    const Lebensmitteldatei datei = m_wartende.takeFirst();
    auto *fenster =
        new Dateifenster(datei, {m_controller.KundenDictionary, m_controller.KundenArray},
                         m_controller.Dictionary, m_controller.Hauptfenster);
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    connect(fenster, &Dateifenster::uebernehmen, this,
            [this, name = QFileInfo(datei.path).fileName()](const auto &lebensmittel,
                                                            const auto &wahl) {
                uebernimm(name, lebensmittel, wahl);
            });
    connect(fenster, &QObject::destroyed, this, [this] {
        m_zeigt = false;
        zeigeNaechste();
    });
    fenster->open();
}

void Dateiempfang::uebernimm(const QString &dateiname, const QList<Datenmodul> &lebensmittel,
                             const Namenswahl &wahl)
{
    const Uebernahme was =
        ::uebernimm({m_controller.KundenDictionary, m_controller.KundenArray}, lebensmittel, wahl);
    uebernimmInEigene(m_controller, was);
    meldeUebernommenes(dateiname, was);
}

/// Whether the file of the own foods holds them. That it could not be written is told by itself.
bool Dateiempfang::istGesichert() const
{
    const auto &offene = m_dateien->offeneMeldungen();
    return std::none_of(offene.begin(), offene.end(), [this](const Dateimeldung &eine) {
        return eine.art == Dateimeldung::Art::NichtGeschrieben && eine.path == pfad(eigeneDaten);
    });
}

void Dateiempfang::meldeUebernommenes(const QString &dateiname, const Uebernahme &was)
{
    const QString satz =
        istGesichert()
            ? localizedString(QStringLiteral("Aus „%1“ übernommen: neu %2, ersetzt %3."))
            : localizedString(QStringLiteral("Aus „%1“ in der Liste, aber nicht gesichert: neu %2, "
                                             "ersetzt %3."));
    m_controller.hinweise->zeige(
        {.kennung = AppController::hinweisGesichert,
         .text = satz.arg(kurzerName(dateiname), QString::number(was.neu.size()),
                          QString::number(was.ersetzt.size())),
         .knopf = localizedString(QStringLiteral("Rückgängig")),
         .aktion = [this] {
             Q_EMIT m_controller.zuruecknehmenGewuenscht();
         }});
}
