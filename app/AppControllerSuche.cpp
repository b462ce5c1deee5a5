// Finding foods, by part of their name or by their profile. Both searches fill the same column.

#include "AppController.h"

#include "Namenssuche.h"
#include "Profilsuche.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QElapsedTimer>

namespace {

/// While a long search runs, the column is painted this often, in milliseconds.
constexpr qint64 bildabstand = 40;

const QString platzhalter = QStringLiteral("-");

} // namespace

/// Paints the growing column from time to time: the search keeps the thread to itself.
class AppController::Suchanzeige
{
public:
    explicit Suchanzeige(AppController &controller) : m_controller(controller)
    {
        m_controller.m_tipppause.stop();
        m_controller.suchfortschritt->show();
        m_controller.m_vergeblich.clear();
        m_controller.suchArray.clear();
        m_controller.suchArray2.clear();
        m_uhr.start();
    }

    ~Suchanzeige() { m_controller.suchfortschritt->hide(); }

    Suchanzeige(const Suchanzeige &) = delete;
    Suchanzeige &operator=(const Suchanzeige &) = delete;

    void zeile(const QString &anzeige, const QString &schluessel)
    {
        m_controller.suchArray << anzeige;
        m_controller.suchArray2 << schluessel;
        m_controller.Tabelle->reloadData();
        if (m_uhr.elapsed() >= bildabstand) {
            m_controller.Tabelle->viewport()->repaint();
            m_controller.suchfortschritt->repaint();
            m_uhr.restart();
        }
    }

private:
    AppController &m_controller;
    QElapsedTimer m_uhr;
};

Namenssuchergebnis AppController::sucheNamen(const QString &text) const
{
    return namenSuchen(KundenArray, Array, m_uebersetzt, text);
}

void AppController::suchen(const Wertehalter &sender)
{
    Suchanzeige anzeige(*this);
    anzeige.zeile(platzhalter, platzhalter);
    const Namenssuchergebnis ergebnis = sucheNamen(sender.stringValue());
    for (qsizetype i = 0; i < ergebnis.treffer.size(); ++i) {
        const Suchtreffer &treffer = ergebnis.treffer[i];
        anzeige.zeile(treffer.anzeige, treffer.schluessel);
        if (i >= ergebnis.eigeneTreffer) {
            m_tueren.protokolliere(QStringLiteral("array:%1\n").arg(treffer.anzeige));
        }
    }
    for (qsizetype i = 0; i < ergebnis.nichtGefunden; ++i) {
        Tabelle->selectRow(0);
        Tabelle->scrollRowToVisible(0);
        if (direkteuebernahme->isChecked()) {
            Laden();
        }
    }
    const QString text = sender.stringValue();
    const bool gesucht = !text.isEmpty();
    m_vergeblich =
        localizedString(
            QStringLiteral("Zu „%1“ wurde nichts gefunden. Versuchen Sie ein kürzeres Wort, die "
                           "Einzahl oder eine andere Schreibweise."))
            .arg(kurzerName(text));
    zeigeTrefferzahl(gesucht ? std::optional(ergebnis.treffer.size()) : std::nullopt);
}

void AppController::proteinsuche()
{
    Suchanzeige anzeige(*this);
    Tabelle->reloadData();
    Tabelle->scrollRowToVisible(0); // the results begin there, and nothing else leads to them
    schalteKriterien();
    const QStringList treffer =
        profilSuchen({KundenDictionary, KundenArray}, {Dictionary, Array}, gewaehltesProfil());
    for (const QString &name : treffer) {
        anzeige.zeile(name, name);
    }
    m_vergeblich = localizedString(
        QStringLiteral("Kein Lebensmittel erfüllt alle Kriterien. Schalten Sie eines aus, oder "
                       "ändern Sie eine Grenze."));
    zeigeTrefferzahl(treffer.size());
}

/// Says above the results how many foods were found, and below what to try when none was; absent
/// when nothing was looked for.
void AppController::zeigeTrefferzahl(std::optional<qsizetype> treffer)
{
    const QString zahl = treffer ? zahlenform().toString(*treffer) : QString();
    const QString titel = !treffer ? localizedString(QStringLiteral("Suche"))
                          : *treffer == 0
                              ? localizedString(QStringLiteral("Suche: nichts gefunden"))
                              : localizedString(QStringLiteral("Suche: %1 gefunden")).arg(zahl);
    Tabelle->modell()->setTitel(QStringLiteral("such"), titel, zahl);
    m_trefferzahl = treffer.value_or(0);
    m_treffer = -1;
    zeigeTrefferleiste();
    if (treffer != 0) {
        m_vergeblich.clear();
    }
    zeigeLeeres();
}

/// A switch that is off takes its criterion out of the search.
void AppController::schalteKriterien()
{
    const QList<QList<QWidget *>> kriterien = {
        {proteingroesserkleiner, proteineingabe},
        {uebergewichtprofil},
        {diabetesprofil},
        {gichtprofil},
        {hkkprofil},
        {kaloriengroesserkleiner, kalorieneingabe},
    };
    for (zaehlereinaus = 0; zaehlereinaus < kriterien.size(); ++zaehlereinaus) {
        for (QWidget *feld : kriterien[zaehlereinaus]) {
            feld->setEnabled(suchprofileinaus->istEin(zaehlereinaus));
        }
    }
}

Profil AppController::gewaehltesProfil() const
{
    Profil profil;
    const auto zahl = [](const Auswahlfeld &vergleich, const Textfeld &eingabe) {
        return vergleich.isEnabledTo(vergleich.parentWidget())
                   ? std::optional(Zahlkriterium{vergleich.stringValue(), eingabe.floatValue()})
                   : std::nullopt;
    };
    profil.protein = zahl(*proteingroesserkleiner, *proteineingabe);
    profil.energie = zahl(*kaloriengroesserkleiner, *kalorieneingabe);
    const std::array<const Auswahlfeld *, anzahlWertungen> felder = {
        uebergewichtprofil, diabetesprofil, gichtprofil, hkkprofil};
    for (std::size_t i = 0; i < felder.size(); ++i) {
        if (felder[i]->isEnabledTo(felder[i]->parentWidget())) {
            profil.wertungen[i] = felder[i]->stringValue();
        }
    }
    return profil;
}

/// Searches for what was typed without Return. A search shows another food, and a question that is
/// open may be about the one on display: then it does not begin by itself.
void AppController::sucheGetipptes()
{
    if (QApplication::activeModalWidget() == nullptr) {
        suchen(*suchfeld);
    }
}

/// The search box's keys: down into the results, Escape for an empty box and an empty search.
bool AppController::taste(int taste)
{
    if (taste == Qt::Key_Down) {
        Tabelle->setFocus(Qt::OtherFocusReason);
        Tabelle->setzeSchreibmarke(suchArray.size() > 1 ? 1 : 0, QStringLiteral("such"));
        return true;
    }
    if (taste == Qt::Key_Escape) {
        suchfeld->setStringValue(QString());
        suchen(*suchfeld);
        return true;
    }
    return false;
}
