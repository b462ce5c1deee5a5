#include "Referenzblatt.h"

#include "Einblickworte.h"
#include "Referenzworte.h"
#include "Rollbereich.h"
#include "Schriftstufe.h"
#include "Zeichenkettentabelle.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int wenigstens = 100; // px of the rows that are seen at once
constexpr int letzteReihe = static_cast<int>(anzahlNaehrwerte) - 1;

const QString mitte = QStringLiteral(" · ");

QString angefuegt(const QStringList &teile)
{
    QStringList gefuellte = teile;
    gefuellte.removeAll(QString());
    return gefuellte.join(mitte);
}

std::optional<Zielbereich> zielVon(const Zielbereiche &ziele, Kenngroesse groesse)
{
    const auto gesuchtes = std::ranges::find(ziele, groesse, &Zielbereich::groesse);
    return gesuchtes != ziele.end() ? std::optional(*gesuchtes) : std::nullopt;
}

} // namespace

Referenzblatt::Referenzblatt(QWidget *parent) : Einblickblatt(parent), m_kopf(new QLabel)
{
    baue();
    folgeSprache();
}

void Referenzblatt::baue()
{
    m_kopf->setObjectName(QStringLiteral("kopf"));
    m_kopf->setTextFormat(Qt::PlainText);
    m_kopf->setWordWrap(true);
    auto *seite = new QWidget;
    auto *reihen = new QVBoxLayout(seite);
    reihen->setContentsMargins(0, 0, 0, 0);
    reihen->setSpacing(0);
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        auto *posten = new Referenzposten(eine.kennung);
        posten->setFocusPolicy(eine.wert == Naehrwert::kal ? Qt::StrongFocus : Qt::ClickFocus);
        posten->installEventFilter(this);
        reihen->addWidget(posten);
        m_posten[stelle(eine.wert)] = posten;
    }
    reihen->addStretch(1);
    m_rolle = new Rollbereich(seite);
    m_rolle->setMinimumHeight(wenigstens);
    auto *anordnung = new QVBoxLayout(this);
    anordnung->addWidget(m_kopf);
    anordnung->addWidget(m_rolle, 1);
    Schriftstufe::kleide(*this);
}

void Referenzblatt::zeige(const Einblickstand &stand)
{
    m_stand = stand;
    zeigeAlles();
}

void Referenzblatt::folgeSprache()
{
    zeigeAlles();
}

void Referenzblatt::zeigeAlles()
{
    m_kopf->setText(kopfworte());
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        m_posten[stelle(eine.wert)]->zeige(angabe(eine.wert));
    }
    gleicheSpalten();
}

QString Referenzblatt::kopfworte() const
{
    QStringList saetze = {localizedString(QStringLiteral("Verglichen mit: %1"))
                              .arg(Referenzworte::satz(m_stand.referenz.satz))};
    if (m_stand.speisen.isEmpty()) {
        saetze << localizedString(QStringLiteral("Hier zählt noch kein Lebensmittel."));
    } else if (m_stand.gegenstand == Gegenstand::Lebensmittel) {
        saetze << localizedString(
            QStringLiteral("Die Balken zeigen, was diese Menge zu einem Tag beiträgt."));
    }
    saetze << localizedString(QStringLiteral("Mehr zu einer Zeile: F1 oder die Maus darauf."));
    return saetze.join(u'\n');
}

Postenangabe Referenzblatt::angabe(Naehrwert wert) const
{
    const Kenngroesse groesse = kenngroesse(wert);
    const Stoffsumme summe = summiere(m_stand.speisen, groesse, m_stand.wissen);
    Postenangabe eine;
    eine.name = nameVon(groesse);
    eine.ziel = zielVon(m_stand.ziele, groesse);
    if (m_stand.speisen.isEmpty()) {
        eine.menge = QStringLiteral("–");
    } else if (summe.unbekannt >= 1) {
        eine.menge = localizedString(QStringLiteral("unbekannt"));
    } else {
        eine.menge = Einblickworte::menge(groesse, summe.wert);
        eine.wert = summe.wert;
        if (eine.ziel && m_stand.gegenstand != Gegenstand::Lebensmittel) {
            eine.urteil = beurteile(*eine.ziel, summe.wert, summe.unbekannt);
        }
    }
    eine.worte = worteFuer(eine, wert, summe);
    eine.auskunft = auskunftFuer(eine, wert, summe);
    return eine;
}

/// "zu wenig · mind. 950 mg · Empfehlung · höchstens 2500 mg · bei 12 % der Menge unbekannt"
QString Referenzblatt::worteFuer(const Postenangabe &angabe, Naehrwert wert,
                                 const Stoffsumme &summe) const
{
    QStringList teile = {urteilswort(angabe.urteil)};
    if (angabe.wert && angabe.ziel && m_stand.gegenstand == Gegenstand::Lebensmittel) {
        const std::optional<double> ganzes =
            angabe.ziel->unten ? angabe.ziel->unten : angabe.ziel->oben;
        if (ganzes && *ganzes > 0) {
            teile << localizedString(QStringLiteral("%1 davon"))
                         .arg(Einblickworte::anteil(*angabe.wert / *ganzes));
        }
    }
    if (m_stand.referenz.istLeer()) {
        teile << (angabe.ziel
                      ? Referenzworte::bereich(*angabe.ziel)
                      : localizedString(QStringLiteral("Energiebedarf noch nicht bekannt")));
    } else {
        const Referenzwert &einer = m_stand.referenz.wert(wert);
        teile << Referenzworte::bereich(einer);
        teile << (einer.art ? Referenzworte::art(*einer.art)
                            : localizedString(QStringLiteral("kein Wert: %1"))
                                  .arg(Referenzworte::mangel(einer.mangel)));
        teile << Referenzworte::grenze(einer);
    }
    if (angabe.wert) {
        teile << Einblickworte::unbekanntes(summe.unbekannt);
    }
    return angefuegt(teile);
}

QStringList Referenzblatt::auskunftFuer(const Postenangabe &angabe, Naehrwert wert,
                                        const Stoffsumme &summe) const
{
    QStringList zeilen = {angefuegt({angabe.name, angabe.menge, urteilswort(angabe.urteil)})};
    if (m_stand.referenz.istLeer()) {
        zeilen << angabe.worte;
    } else {
        zeilen << Referenzworte::auskunft(m_stand.referenz.wert(wert));
    }
    if (summe.unbekannt > 0) {
        zeilen << QStringLiteral("%1: %2").arg(Einblickworte::unbekanntes(summe.unbekannt),
                                               Einblickworte::namen(summe.unbekannte));
    }
    return zeilen;
}

/// The bars of all rows begin at one place.
void Referenzblatt::gleicheSpalten()
{
    QSize breiten;
    for (const Referenzposten *posten : m_posten) {
        breiten = breiten.expandedTo(posten->spaltenbedarf());
    }
    for (Referenzposten *posten : m_posten) {
        posten->setSpalten(breiten.width(), breiten.height());
    }
}

void Referenzblatt::changeEvent(QEvent *event)
{
    Einblickblatt::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_posten.back() != nullptr) {
        gleicheSpalten();
    }
}

/// One stop of the Tab key for all rows; the arrows go through them.
void Referenzblatt::geheZu(int reihe)
{
    Referenzposten &alter = *m_posten[static_cast<std::size_t>(m_reihe)];
    m_reihe = std::clamp(reihe, 0, letzteReihe);
    Referenzposten &neuer = *m_posten[static_cast<std::size_t>(m_reihe)];
    alter.setFocusPolicy(Qt::ClickFocus);
    neuer.setFocusPolicy(Qt::StrongFocus);
    neuer.setFocus(Qt::OtherFocusReason);
    m_rolle->ensureWidgetVisible(&neuer);
}

bool Referenzblatt::eventFilter(QObject *watched, QEvent *event)
{
    const auto posten = std::ranges::find(m_posten, watched);
    if (posten == m_posten.end()) {
        return Einblickblatt::eventFilter(watched, event);
    }
    const int reihe = static_cast<int>(posten - m_posten.begin());
    if (event->type() == QEvent::FocusIn && reihe != m_reihe) {
        geheZu(reihe); // clicked
    } else if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        (*posten)->update();
    } else if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Up:
            geheZu(reihe - 1);
            return true;
        case Qt::Key_Down:
            geheZu(reihe + 1);
            return true;
        case Qt::Key_Home:
            geheZu(0);
            return true;
        case Qt::Key_End:
            geheZu(letzteReihe);
            return true;
        default:
            break;
        }
    }
    return Einblickblatt::eventFilter(watched, event);
}
