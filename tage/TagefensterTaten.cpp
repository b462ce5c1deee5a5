// What the menus of the window of the days do.

#include "Tagefenster.h"

#include "Aufzeichnungsaenderung.h"
#include "Sperrgrund.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenzug.h"

#include <QCoreApplication>
#include <QMenuBar>

#include <algorithm>

namespace {

constexpr int tageEinerWoche = 7;

const QString hinweisTat = QStringLiteral("tat");

struct Menuezeile
{
    const char *text;
    QKeySequence tasten;
    void (Tagefenster::*tat)();
    bool trennung = false; ///< a line below it
};

void fuelle(QMenu &menue, Tagefenster &fenster, std::initializer_list<Menuezeile> zeilen)
{
    for (const Menuezeile &zeile : zeilen) {
        QAction *aktion = menue.addAction(localizedString(QString::fromUtf8(zeile.text)));
        aktion->setShortcut(zeile.tasten);
        QObject::connect(aktion, &QAction::triggered, &fenster, zeile.tat);
        if (zeile.trennung) {
            menue.addSeparator();
        }
    }
}

} // namespace

void Tagefenster::baueMenue()
{
    QMenu &aufzeichnung = *menuBar()->addMenu(localizedString(QStringLiteral("&Aufzeichnung")));
    fuelle(aufzeichnung, *this,
           {{QT_TRANSLATE_NOOP("Mahlberg", "&Neues Protokoll"), QKeySequence::New,
             &Tagefenster::neuesProtokoll},
            {QT_TRANSLATE_NOOP("Mahlberg", "Neuer &Wochenplan"),
             QKeySequence(QStringLiteral("Ctrl+Shift+N")), &Tagefenster::neuerWochenplan},
            {QT_TRANSLATE_NOOP("Mahlberg", "Aufzeichnung &löschen …"),
             {},
             &Tagefenster::loescheAufzeichnung,
             true},
            {QT_TRANSLATE_NOOP("Mahlberg", "Handzettel &drucken …"), QKeySequence::Print,
             &Tagefenster::handzettelDrucken},
            {QT_TRANSLATE_NOOP("Mahlberg", "Handzettel als &PDF …"),
             {},
             &Tagefenster::handzettelAlsPdf},
            {QT_TRANSLATE_NOOP("Mahlberg", "Aktenform d&rucken …"),
             {},
             &Tagefenster::aktenformDrucken},
            {QT_TRANSLATE_NOOP("Mahlberg", "Aktenform als PD&F …"),
             {},
             &Tagefenster::aktenformAlsPdf,
             true}});
    QAction *schliessen = aufzeichnung.addAction(localizedString(QStringLiteral("S&chließen")));
    schliessen->setShortcut(QKeySequence::Close);
    connect(schliessen, &QAction::triggered, this, &QWidget::close);

    QMenu &bearbeiten = *menuBar()->addMenu(localizedString(QStringLiteral("&Bearbeiten")));
    QAction *zurueck =
        buch.schritte.createUndoAction(this, localizedString(QStringLiteral("Rückgängig:")));
    zurueck->setShortcut(QKeySequence::Undo);
    QAction *wieder =
        buch.schritte.createRedoAction(this, localizedString(QStringLiteral("Wiederholen:")));
    wieder->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+Z")));
    bearbeiten.addActions({zurueck, wieder});
    bearbeiten.addSeparator();
    fuelle(
        bearbeiten, *this,
        {{QT_TRANSLATE_NOOP("Mahlberg", "Zeilen &herausnehmen"), {}, &Tagefenster::loescheZeilen},
         {QT_TRANSLATE_NOOP("Mahlberg", "Als &Wahl zur Zeile davor („oder“)"),
          QKeySequence(QStringLiteral("Ctrl+Shift+O")), &Tagefenster::wechsleOder},
         {QT_TRANSLATE_NOOP("Mahlberg", "Haushalts&maße des Lebensmittels …"),
          {},
          &Tagefenster::zeigeMasse}});

    QMenu &mahlzeit = *menuBar()->addMenu(localizedString(QStringLiteral("&Mahlzeit")));
    fuelle(
        mahlzeit, *this,
        {{QT_TRANSLATE_NOOP("Mahlberg", "&Neue Mahlzeit darunter"), {}, &Tagefenster::neueMahlzeit},
         {QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeit hinau&f"), {}, &Tagefenster::mahlzeitHinauf},
         {QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeit h&inunter"), {}, &Tagefenster::mahlzeitHinunter},
         {QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeit &herausnehmen"),
          {},
          &Tagefenster::loescheMahlzeit}});

    QMenu &tag = *menuBar()->addMenu(localizedString(QStringLiteral("&Tag")));
    fuelle(tag, *this,
           {{QT_TRANSLATE_NOOP("Mahlberg", "&Nächster Tag"),
             QKeySequence(QStringLiteral("Ctrl+PgDown")), &Tagefenster::naechsterTag},
            {QT_TRANSLATE_NOOP("Mahlberg", "&Voriger Tag"),
             QKeySequence(QStringLiteral("Ctrl+PgUp")), &Tagefenster::vorigerTag, true},
            {QT_TRANSLATE_NOOP("Mahlberg", "In alle &folgenden Tage füllen"),
             {},
             &Tagefenster::fuelleTage},
            {QT_TRANSLATE_NOOP("Mahlberg", "Tag &leeren"), {}, &Tagefenster::leereTag}});
    baueUmzug(bearbeiten, tag);

    QMenu &darstellung = *menuBar()->addMenu(localizedString(QStringLiteral("&Darstellung")));
    fuelle(darstellung, *this,
           {{QT_TRANSLATE_NOOP("Mahlberg", "Aus&wertung"), QKeySequence(QStringLiteral("Ctrl+E")),
             &Tagefenster::zeigeAuswertungsfenster}});

    QMenu &hilfe = *menuBar()->addMenu(localizedString(QStringLiteral("&Hilfe")));
    QAction *handbuch = hilfe.addAction(localizedString(QStringLiteral("&Handbuch")));
    handbuch->setShortcut(QKeySequence(QStringLiteral("F1")));
    connect(handbuch, &QAction::triggered, this, &Tagefenster::hilfeGewuenscht);
}

void Tagefenster::begruendeSperren()
{
    const QString nichtZuAendern =
        localizedString(QStringLiteral("Es gibt keine Aufzeichnung, die sich hier ändern lässt."));
    for (QWidget *feld :
         std::initializer_list<QWidget *>{titel, art, datum, tagezahl, tagesnotiz, imMittel}) {
        new Sperrgrund(feld, nichtZuAendern);
    }
    new Sperrgrund(auswahl, localizedString(QStringLiteral("Es gibt noch keine Aufzeichnung.")));
    new Sperrgrund(neuknopf, localizedString(
                                 QStringLiteral("Hier lassen sich keine Aufzeichnungen anlegen.")));
    new Sperrgrund(mahlzeitnotiz,
                   localizedString(QStringLiteral("Wählen Sie zuerst eine Mahlzeit in einer "
                                                  "Aufzeichnung, die sich ändern lässt.")));
}

/// Clients write down three days as a rule.
void Tagefenster::neuesProtokoll()
{
    constexpr int tageEinesProtokolls = 3;
    ansicht->beende();
    if (buch.ablage().beschreibbar()) {
        buch.beginne(
            neueAufzeichnung(Aufzeichnungsart::Protokoll, m_tueren.heute(), tageEinesProtokolls));
        ansicht->setFocus();
        geheZuMahlzeit(0);
    }
}

void Tagefenster::neuerWochenplan()
{
    ansicht->beende();
    if (buch.ablage().beschreibbar()) {
        buch.beginne(neueAufzeichnung(Aufzeichnungsart::Wochenplan, {}, tageEinerWoche));
        ansicht->setFocus();
        geheZuMahlzeit(0);
    }
}

void Tagefenster::loescheAufzeichnung()
{
    ansicht->beende();
    if (!buch.aenderbar()) {
        return;
    }
    const int antwort = m_tueren.melde(
        this, {.text = localizedString(QStringLiteral("Die Aufzeichnung „%1“ löschen?"))
                           .arg(auswahl->currentText()),
               .erklaerung = localizedString(QStringLiteral(
                   "Alle ihre Tage gehen verloren. Das lässt sich nicht zurücknehmen.")),
               .knoepfe = {localizedString(QStringLiteral("Behalten")),
                           localizedString(QStringLiteral("Löschen"))},
               .gefahr = true});
    if (antwort == 1) {
        buch.loesche();
    }
}

void Tagefenster::loescheZeilen()
{
    QList<Zeilenzug::Stelle> stellen;
    for (const Tagesmodell::Platz &platz : ansicht->gewaehlteZeilen()) {
        stellen << Zeilenzug::Stelle{buch.tag(), platz.mahlzeit, platz.zeile};
    }
    aendere(QT_TRANSLATE_NOOP("Mahlberg", "Zeilen herausnehmen"),
            [&](Aufzeichnung &eine) { return Zeilenzug::nimmHeraus(eine, stellen); });
}

void Tagefenster::wechsleOder()
{
    const std::optional<Tagesmodell::Platz> platz = ansicht->platz();
    const Mahlzeitzeile *zeile = ansicht->tagesmodell().zeile(ansicht->currentIndex().row());
    if (platz && zeile != nullptr) {
        const bool oder = !zeile->oder;
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Wahl ändern"), [&](Aufzeichnung &eine) {
            return Aufzeichnungsaenderung::setzeOder(
                eine, {buch.tag(), platz->mahlzeit, platz->zeile}, oder);
        });
    }
}

void Tagefenster::fuelleTage()
{
    aendere(QT_TRANSLATE_NOOP("Mahlberg", "Tage füllen"), [this](Aufzeichnung &eine) {
        QList<int> folgende;
        for (int tag = buch.tag() + 1; tag < eine.tage.size(); ++tag) {
            folgende << tag;
        }
        return Aufzeichnungsaenderung::fuelle(eine, buch.tag(), folgende);
    });
}

void Tagefenster::leereTag()
{
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    if (aendere(QT_TRANSLATE_NOOP("Mahlberg", "Tag leeren"), [this](Aufzeichnung &was) {
            return Aufzeichnungsaenderung::leere(was, buch.tag());
        })) {
        sageMitRueckweg(
            localizedString(QStringLiteral("%1 ist leer.")).arg(tagesname(*eine, buch.tag())));
    }
}

/// What goes with the days at the end is told: nobody sees them any more.
void Tagefenster::setzeTagezahl(int zahl)
{
    const Aufzeichnung eine = buch.jetzige().value_or(Aufzeichnung());
    QStringList verlorene;
    for (int tag = zahl; tag < eine.tage.size(); ++tag) {
        if (hatInhalt(eine.tage[tag])) {
            verlorene << tagesname(eine, tag);
        }
    }
    if (aendere(QT_TRANSLATE_NOOP("Mahlberg", "Zahl der Tage ändern"),
                [zahl](Aufzeichnung &was) {
                    return Aufzeichnungsaenderung::setzeTagezahl(was, zahl);
                }) &&
        !verlorene.isEmpty()) {
        sageMitRueckweg(localizedString(QStringLiteral("Weggenommen mit dem, was dort stand: %1."))
                            .arg(verlorene.join(QStringLiteral(", "))));
    }
}

/// What was done is told with the way back, as long as nothing else is done.
void Tagefenster::sageMitRueckweg(const QString &text)
{
    const int schritt = buch.schritte.index();
    hinweise->zeige({.kennung = hinweisTat,
                     .text = text,
                     .knopf = localizedString(QStringLiteral("Rückgängig")),
                     .aktion = [this, schritt] {
                         buch.schritte.setIndex(schritt - 1);
                     }});
    connect(
        &buch.schritte, &QUndoStack::indexChanged, hinweise,
        [this] { hinweise->nimmZurueck(hinweisTat); }, Qt::SingleShotConnection);
}

void Tagefenster::neueMahlzeit()
{
    const std::optional<Tagesmodell::Platz> platz = ansicht->platz();
    const int stelle = platz ? platz->mahlzeit + 1 : 0;
    const QString name = localizedString(QStringLiteral("Neue Mahlzeit"));
    if (aendere(QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeit einfügen"), [&](Aufzeichnung &eine) {
            return Aufzeichnungsaenderung::fuegeMahlzeitEin(eine, stelle, name);
        })) {
        ansicht->geheZu({Tagesmodell::Art::Mahlzeit, stelle, 0}, Tagesmodell::Name);
        ansicht->beginne();
    }
}

void Tagefenster::loescheMahlzeit()
{
    const std::optional<Tagesmodell::Platz> platz = ansicht->platz();
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    if (!platz || !eine) {
        return;
    }
    if (aendere(QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeit herausnehmen"), [&](Aufzeichnung &was) {
            return Aufzeichnungsaenderung::nimmMahlzeitHeraus(was, platz->mahlzeit);
        })) {
        sageMitRueckweg(localizedString(QStringLiteral("„%1“ ist an allen Tagen herausgenommen."))
                            .arg(kurzerName(mahlzeitname(eine->mahlzeiten[platz->mahlzeit]))));
    }
}

void Tagefenster::verschiebeMahlzeit(int um)
{
    const std::optional<Tagesmodell::Platz> platz = ansicht->platz();
    if (!platz) {
        return;
    }
    const int nach = platz->mahlzeit + um;
    if (aendere(QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeit verschieben"), [&](Aufzeichnung &eine) {
            return Aufzeichnungsaenderung::verschiebeMahlzeit(eine, platz->mahlzeit, nach);
        })) {
        ansicht->geheZu({Tagesmodell::Art::Mahlzeit, nach, 0}, Tagesmodell::Name);
    }
}
