// Rows, meals and days that are moved about: by the clipboard, the mouse and the keys.

#include "Tagefenster.h"

#include "Tabellenkopie.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenzug.h"

#include <QAbstractSpinBox>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>

#include <utility>

using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;
using Stelle = Aufzeichnungsaenderung::Stelle;

namespace {

/// What its notice is about.
const QString hinweisUmzug = QStringLiteral("umzug");

constexpr int lesezeit = 8000; // milliseconds

/// The field in which the keyboard is; null while it is in none.
QLineEdit *schreibfeld(const QWidget &fenster)
{
    QWidget *wo = fenster.focusWidget();
    return qobject_cast<QAbstractSpinBox *>(wo) != nullptr ? wo->findChild<QLineEdit *>()
                                                           : qobject_cast<QLineEdit *>(wo);
}

/// How many rows something was done to.
QString zeilenworte(const char *satz, int anzahl)
{
    return localizedString(QString::fromUtf8(satz)).arg(anzahl);
}

/// Why nothing can be brought in, for the user; null where something can.
QString hindernis(Ablagelesung::Zustand zustand)
{
    switch (zustand) {
    case Ablagelesung::Zustand::Leer:
        return localizedString(
            QStringLiteral("In der Zwischenablage steht nichts, was hierher passt."));
    case Ablagelesung::Zustand::ZuViel:
        return localizedString(QStringLiteral("In der Zwischenablage stehen mehr als %1 Zeilen. "
                                              "Es wurde nichts eingefügt."))
            .arg(meisteAblagezeilen);
    case Ablagelesung::Zustand::Neuer:
        return localizedString(
            QStringLiteral("Was in der Zwischenablage steht, kommt aus einer neueren Fassung "
                           "des Programms. Es wurde nichts eingefügt."));
    case Ablagelesung::Zustand::Beschaedigt:
        return localizedString(QStringLiteral("Was in der Zwischenablage steht, ist beschädigt. "
                                              "Es wurde nichts eingefügt."));
    case Ablagelesung::Zustand::Gelesen:
        break;
    }
    return {};
}

} // namespace

void Tagefenster::verbindeUmzug()
{
    ansicht->setNachschlag(m_tueren.lebensmittel);
    ansicht->setZiehquelle([this] { return ziehdaten(); });
    ansicht->setAbwurfpruefung([this](const QMimeData &daten) { return nimmt(daten); });
    connect(ansicht, &Tagesansicht::abgeworfen, this, &Tagefenster::nimmAbwurf);
    // Rows can be carried to another day: the tab under them opens.
    tage->setAcceptDrops(true);
    tage->setChangeCurrentOnDrag(true);
    // The way back that a notice offers is that of the last change, so it goes with the next one.
    connect(&buch.schritte, &QUndoStack::indexChanged, this,
            [this] { hinweise->nimmZurueck(hinweisUmzug); });
}

void Tagefenster::sageUmzug(const QString &text, bool rueckweg)
{
    hinweise->zeige({.kennung = hinweisUmzug,
                     .text = text,
                     .knopf = rueckweg ? localizedString(QStringLiteral("Rückgängig")) : QString(),
                     .aktion = [this] { buch.schritte.undo(); },
                     .dauer = lesezeit});
}

/// What is being typed is kept first, so that it moves along.
bool Tagefenster::darfUmziehen()
{
    ansicht->beende();
    if (!buch.aenderbar()) {
        sageUmzug(
            buch.jetzige()
                ? localizedString(QStringLiteral("Diese Aufzeichnung lässt sich nicht ändern."))
                : localizedString(QStringLiteral("Es gibt noch keine Aufzeichnung.")),
            false);
    }
    return buch.aenderbar();
}

Speisequellen Tagefenster::speisequellen() const
{
    return {.schluessel =
                [this](const QString &name) {
                    return m_tueren.schluessel ? m_tueren.schluessel(name)
                           : m_tueren.lebensmittel(name) != nullptr
                               ? name
                               : zeileFuer(name, {}).schluessel;
                },
            .lebensmittel = m_tueren.lebensmittel,
            .gramm =
                [this](const QString &schluessel, const QString &angabe) {
                    Mahlzeitzeile zeile;
                    zeile.schluessel = schluessel;
                    setzeAngabe(zeile, angabe);
                    return zeile.gramm;
                }};
}

/// Behind the row with the cursor; on the name of a meal, and where the next food is typed, at the
/// end of the meal.
Stelle Tagefenster::einfuegestelle() const
{
    const Platz platz = ansicht->platz().value_or(Platz());
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    const auto ende =
        eine ? static_cast<int>(eine->tage[buch.tag()].mahlzeiten[platz.mahlzeit].zeilen.size())
             : 0;
    return {buch.tag(), platz.mahlzeit, platz.art == Art::Speise ? platz.zeile + 1 : ende};
}

QList<Stelle> Tagefenster::gewaehlteStellen() const
{
    QList<Stelle> stellen;
    for (const Platz &platz : ansicht->gewaehlteZeilen()) {
        stellen << Stelle{buch.tag(), platz.mahlzeit, platz.zeile};
    }
    return stellen;
}

void Tagefenster::waehleStellen(const QList<Stelle> &stellen)
{
    QList<Platz> plaetze;
    for (const Stelle &stelle : stellen) {
        plaetze << Platz{Art::Speise, stelle.mahlzeit, stelle.zeile};
    }
    ansicht->waehle(plaetze);
}

/// The chosen rows; without any, the meal whose name the cursor is on. Absent where that is
/// nothing.
std::optional<Zeilenablage> Tagefenster::gewaehlteAblage() const
{
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    const std::optional<Platz> platz = ansicht->platz();
    if (!eine || !platz) {
        return std::nullopt;
    }
    const QList<Stelle> stellen = gewaehlteStellen();
    if (!stellen.isEmpty()) {
        return ablageVon(*eine, stellen);
    }
    const Zeilenablage ablage = ablageDerMahlzeit(*eine, buch.tag(), platz->mahlzeit);
    const bool etwas =
        zeilenzahl(ablage) > 0 || !ablage.inhalt.mahlzeiten.constFirst().notiz.isEmpty();
    return platz->art == Art::Mahlzeit && etwas ? std::optional(ablage) : std::nullopt;
}

/// For this program as it is, for others as a table.
void Tagefenster::legeAb(const Zeilenablage &ablage)
{
    QMimeData *daten = Tabellenkopie::alsZwischenablage(alsTabelle(ablage));
    daten->setData(QLatin1String(ablageformat), alsText(ablage));
    QGuiApplication::clipboard()->setMimeData(daten);
}

void Tagefenster::kopiere()
{
    if (QLineEdit *feld = schreibfeld(*this)) {
        feld->copy();
        return;
    }
    if (const std::optional<Zeilenablage> ablage = gewaehlteAblage()) {
        legeAb(*ablage);
        sageUmzug(
            zeilenworte(QT_TRANSLATE_NOOP("Mahlberg", "Kopierte Zeilen: %1."), zeilenzahl(*ablage)),
            false);
    } else {
        sageUmzug(localizedString(QStringLiteral("Es ist keine Zeile ausgewählt.")), false);
    }
}

void Tagefenster::schneideAus()
{
    if (QLineEdit *feld = schreibfeld(*this)) {
        feld->cut();
        return;
    }
    if (!darfUmziehen()) {
        return;
    }
    const std::optional<Zeilenablage> ablage = gewaehlteAblage();
    if (!ablage) {
        sageUmzug(localizedString(QStringLiteral("Es ist keine Zeile ausgewählt.")), false);
        return;
    }
    legeAb(*ablage);
    const QList<Stelle> stellen = gewaehlteStellen();
    const int mahlzeit = ansicht->platz()->mahlzeit;
    aendere(QT_TRANSLATE_NOOP("Mahlberg", "Zeilen ausschneiden"), [&](Aufzeichnung &eine) {
        if (stellen.isEmpty()) {
            eine.tage[buch.tag()].mahlzeiten[mahlzeit] = Mahlzeit();
            return true;
        }
        return Zeilenzug::nimmHeraus(eine, stellen);
    });
    sageUmzug(zeilenworte(QT_TRANSLATE_NOOP("Mahlberg", "Ausgeschnittene Zeilen: %1."),
                          zeilenzahl(*ablage)),
              true);
}

/// Rows of this program as they are, and texts as far as they can be understood.
Ablagelesung Tagefenster::lies(const QMimeData *daten) const
{
    if (daten == nullptr) {
        return {};
    }
    const Speisequellen quellen = speisequellen();
    if (!daten->hasFormat(QLatin1String(ablageformat))) {
        return leseZeilentext(daten->text(), quellen);
    }
    Ablagelesung gelesen = leseAblage(daten->data(QLatin1String(ablageformat)));
    bringeAufHeute(gelesen.ablage, quellen);
    return gelesen;
}

void Tagefenster::bringeEin(const char *was, const Zeilenablage &ablage, const Stelle &hier,
                            const QString &worte)
{
    QList<Stelle> angekommen;
    const bool gekommen = aendere(was, [&](Aufzeichnung &eine) {
        angekommen = Zeilenzug::fuegeEin(eine, ablage, hier);
        return true; // notes may have come without a row
    });
    waehleStellen(angekommen);
    QStringList saetze = {worte};
    if (const int unverstanden = unverstandene(ablage); unverstanden > 0) {
        saetze << zeilenworte(QT_TRANSLATE_NOOP("Mahlberg", "Davon zählen nicht: %1."),
                              unverstanden);
    }
    sageUmzug(saetze.join(u' '), gekommen);
}

void Tagefenster::fuegeEin()
{
    if (QLineEdit *feld = schreibfeld(*this)) {
        feld->paste();
    } else if (darfUmziehen()) {
        fuegeGelesenesEin(lies(QGuiApplication::clipboard()->mimeData()));
    }
}

void Tagefenster::kopiereTag()
{
    ansicht->beende();
    if (const std::optional<Aufzeichnung> eine = buch.jetzige()) {
        const Zeilenablage ablage = ablageDesTages(*eine, buch.tag());
        legeAb(ablage);
        sageUmzug(localizedString(QStringLiteral("Kopiert: %1 mit %2 Zeilen."))
                      .arg(tagesname(*eine, buch.tag()), QString::number(zeilenzahl(ablage))),
                  false);
    }
}

/// The day stays, with nothing on it.
void Tagefenster::schneideTagAus()
{
    if (darfUmziehen()) {
        kopiereTag();
        leereTag();
    }
}

void Tagefenster::fuegeTagEin()
{
    if (!darfUmziehen()) {
        return;
    }
    const Ablagelesung gelesen = lies(QGuiApplication::clipboard()->mimeData());
    if (gelesen.zustand == Ablagelesung::Zustand::Gelesen &&
        gelesen.ablage.art != Zeilenablage::Art::Tag) {
        sageUmzug(localizedString(QStringLiteral("In der Zwischenablage steht kein Tag. Mit "
                                                 "„Tag kopieren“ kommt einer hinein.")),
                  false);
    } else {
        fuegeGelesenesEin(gelesen);
    }
}

/// A day takes the place of what the day here holds; that it is told of, and can be brought back.
void Tagefenster::fuegeGelesenesEin(const Ablagelesung &gelesen)
{
    const QString grund = hindernis(gelesen.zustand);
    if (!grund.isEmpty()) {
        sageUmzug(grund, false);
        return;
    }
    const Aufzeichnung vorher = *buch.jetzige();
    if (gelesen.ablage.art != Zeilenablage::Art::Tag) {
        bringeEin(QT_TRANSLATE_NOOP("Mahlberg", "Zeilen einfügen"), gelesen.ablage,
                  einfuegestelle(),
                  zeilenworte(QT_TRANSLATE_NOOP("Mahlberg", "Eingefügte Zeilen: %1."),
                              zeilenzahl(gelesen.ablage)));
        return;
    }
    const int ersetzte = zeilenzahl(ablageDesTages(vorher, buch.tag()));
    QString worte =
        localizedString(QStringLiteral("%1 hat jetzt den kopierten Tag: %2 Zeilen."))
            .arg(tagesname(vorher, buch.tag()), QString::number(zeilenzahl(gelesen.ablage)));
    if (ersetzte > 0) {
        worte +=
            u' ' + zeilenworte(QT_TRANSLATE_NOOP("Mahlberg", "Ersetzte Zeilen: %1."), ersetzte);
    }
    bringeEin(QT_TRANSLATE_NOOP("Mahlberg", "Tag einfügen"), gelesen.ablage, einfuegestelle(),
              worte);
}

void Tagefenster::rueckeZeilen(bool hinunter)
{
    if (!darfUmziehen()) {
        return;
    }
    const QList<Stelle> stellen = gewaehlteStellen();
    QList<Stelle> angekommen;
    aendere(QT_TRANSLATE_NOOP("Mahlberg", "Zeilen verschieben"), [&](Aufzeichnung &eine) {
        angekommen = hinunter ? Zeilenzug::rueckeHinunter(eine, stellen)
                              : Zeilenzug::rueckeHinauf(eine, stellen);
        return !angekommen.isEmpty();
    });
    waehleStellen(angekommen);
}

/// A single row carries its food as the plan's table takes it.
QMimeData *Tagefenster::ziehdaten() const
{
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    const QList<Stelle> stellen = gewaehlteStellen();
    if (!eine || stellen.isEmpty()) {
        return nullptr;
    }
    auto *daten = new QMimeData;
    daten->setData(QLatin1String(ablageformat), alsText(ablageVon(*eine, stellen)));
    daten->setData(QLatin1String(herkunftsformat), alsText(Zeilenherkunft{eine->kennung, stellen}));
    const Mahlzeitzeile *zeile = ansicht->tagesmodell().zeile(ansicht->currentIndex().row());
    if (stellen.size() == 1 && zeile != nullptr && !zeile->schluessel.isNull()) {
        daten->setText(zeile->schluessel);
    }
    return daten;
}

/// Rows of this program, and foods from its tables.
bool Tagefenster::nimmt(const QMimeData &daten) const
{
    return daten.hasFormat(QLatin1String(ablageformat)) ||
           (daten.hasText() && m_tueren.lebensmittel(daten.text()) != nullptr);
}

/// The places of the rows that are dragged, while they still stand there; none when they come from
/// elsewhere.
QList<Stelle> Tagefenster::herkunft(const QMimeData &daten) const
{
    const auto genannte = leseHerkunft(daten.data(QLatin1String(herkunftsformat)));
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    const bool nochDort = genannte && eine && genannte->kennung == eine->kennung &&
                          ablageVon(*eine, genannte->zeilen) ==
                              leseAblage(daten.data(QLatin1String(ablageformat))).ablage;
    return nochDort ? genannte->zeilen : QList<Stelle>();
}

void Tagefenster::nimmAbwurf(const QMimeData *daten, const Platz &vor, bool kopie)
{
    const Stelle hier{buch.tag(), vor.mahlzeit, vor.zeile};
    const QList<Stelle> stellen = herkunft(*daten);
    if (!stellen.isEmpty()) {
        QList<Stelle> angekommen;
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Zeilen verschieben"), [&](Aufzeichnung &was) {
            angekommen = Zeilenzug::ziehe(was, stellen, hier, kopie);
            return !angekommen.isEmpty();
        });
        waehleStellen(angekommen);
        return;
    }
    Ablagelesung gelesen;
    if (daten->hasFormat(QLatin1String(ablageformat))) {
        gelesen = lies(daten);
    } else {
        gelesen.zustand = Ablagelesung::Zustand::Gelesen;
        gelesen.ablage.mahlzeiten << QString();
        gelesen.ablage.inhalt.mahlzeiten << Mahlzeit{{uebliche(daten->text())}, {}};
    }
    const QString grund = hindernis(gelesen.zustand);
    if (!grund.isEmpty()) {
        sageUmzug(grund, false);
        return;
    }
    bringeEin(QT_TRANSLATE_NOOP("Mahlberg", "Zeilen einfügen"), gelesen.ablage, hier,
              zeilenworte(QT_TRANSLATE_NOOP("Mahlberg", "Eingefügte Zeilen: %1."),
                          zeilenzahl(gelesen.ablage)));
}
