// The part of the tour that looks into what a client wrote down: what a day should hold, where the
// iron comes from and what would bring more, how foods rank, and a meal that becomes a recipe.

#include "Rundgang.h"

#include "Beitragsblatt.h"
#include "Oberflaeche.h"
#include "Referenzblatt.h"
#include "Vorschlagsblatt.h"
#include "Zahlenblatt.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>

namespace {

constexpr int zeilenImBericht = 5;
constexpr QSize listengroesse(760, 640); // with room for the longest names

/// What is set side by side.
constexpr const char *verglichene[] = {"Haferflocken",
                                       "Linsen, ganz (z. B. Tellerlinsen), gekocht"};

QString zelle(const QModelIndex &stelle)
{
    const QString gelesen = stelle.data(Qt::AccessibleTextRole).toString();
    return gelesen.isEmpty() ? stelle.data().toString() : gelesen;
}

/// The first rows of a table in words.
QStringList ersteZeilen(const QTableView &tabelle)
{
    const QAbstractItemModel &modell = *tabelle.model();
    QStringList zeilen;
    for (int zeile = 0; zeile < qMin(modell.rowCount(), zeilenImBericht); ++zeile) {
        QStringList worte;
        for (int spalte = 0; spalte < modell.columnCount(); ++spalte) {
            worte << zelle(modell.index(zeile, spalte));
        }
        worte.removeAll(QString());
        worte.removeDuplicates(); // in some tables each cell tells all of its row
        zeilen << QStringLiteral("   ") + worte.join(QStringLiteral(", ")).simplified();
    }
    return zeilen;
}

/// Ticks the food of that name, if the table has it.
void hakeAn(QTableView &tabelle, const QString &name)
{
    QAbstractItemModel &modell = *tabelle.model();
    for (int zeile = 0; zeile < modell.rowCount(); ++zeile) {
        const QModelIndex stelle = modell.index(zeile, Rangmodell::Name);
        if (stelle.data().toString() == name) {
            modell.setData(stelle, Qt::Checked, Qt::CheckStateRole);
        }
    }
}

} // namespace

/// What the first day of the record means for the client at the desk.
void Rundgang::blickeHinein()
{
    Einblickanschluss &einblick = m_oberflaeche.einblick;
    einblick.oeffne(Gegenstand::Tag);
    Einblickfenster &fenster = einblick.fenster();
    auto &satz = *fenster.personenwahl->findChild<QComboBox *>(QStringLiteral("satz"));
    satz.setCurrentIndex(satz.count() - 1); // the values of Germany, Austria and Switzerland
    Q_EMIT satz.activated(satz.currentIndex());
    fenster.blaetter->setCurrentWidget(fenster.referenzblatt);
    haltBeimEinblick(fenster, QStringLiteral("insight"),
                     QStringLiteral("What the day should hold, by D-A-CH: %1")
                         .arg(fenster.referenzblatt->posten(Naehrwert::fe).worte().text()));
    fenster.beitragsblatt->waehle(Kenngroesse::fe);
    fenster.blaetter->setCurrentWidget(fenster.beitragsblatt);
    haltBeimEinblick(fenster, QStringLiteral("insight-contributions"),
                     QStringLiteral("Where the iron comes from:"));
    fenster.blaetter->setCurrentWidget(fenster.vorschlagsblatt);
    fenster.vorschlagsblatt->waehleZiel(Kenngroesse::fe);
    haltBeimEinblick(fenster, QStringLiteral("insight-suggestions"),
                     QStringLiteral("What would bring more:"));
    fenster.blaetter->setCurrentWidget(fenster.zahlenblatt);
    haltBeimEinblick(fenster, QStringLiteral("insight-figures"),
                     QStringLiteral("Further figures of the day:"));
    fenster.close();
    reihe();
    kocheAus();
}

/// Foods by the iron of a portion, and two of them side by side.
void Rundgang::reihe()
{
    Ranglistenfenster &liste = m_oberflaeche.einblick.rangliste();
    liste.resize(listengroesse);
    liste.findChild<QComboBox *>(QStringLiteral("rangbezug"))
        ->setCurrentIndex(static_cast<int>(Bezug::JePortion));
    liste.zeige(Kenngroesse::fe);
    auto &tabelle = *liste.findChild<QTableView *>(QStringLiteral("rangliste"));
    for (const char *name : verglichene) {
        hakeAn(tabelle, localizedString(QString::fromUtf8(name)));
    }
    haltBeimEinblick(liste, QStringLiteral("ranking"),
                     QStringLiteral("Foods by the iron of a portion:"));
    liste.findChild<QTabWidget *>(QStringLiteral("rangseiten"))->setCurrentIndex(1);
    haltBeimEinblick(liste, QStringLiteral("ranking-comparison"),
                     QStringLiteral("Foods side by side:"));
    liste.close();
}

/// The lunch of the record as a dish. It is looked at and not kept.
void Rundgang::kocheAus()
{
    Tagefenster &tage = m_oberflaeche.tage.fenster();
    tage.zeige();
    tage.ansicht->geheZu({Tagesmodell::Art::Mahlzeit, 2, 0}, Tagesmodell::Name);
    tage.findChild<QAction *>(QStringLiteral("aktionRezept"))->trigger();
    Rezeptfenster *rezept = m_oberflaeche.einblick.rezepte.offenes();
    rezept->findChild<QLineEdit *>(QStringLiteral("rezeptname"))
        ->setText(QStringLiteral("Nudelpfanne"));
    rezept->findChild<QLineEdit *>(QStringLiteral("fertiggewicht"))->setText(QStringLiteral("330"));
    rezept->findChild<QLineEdit *>(QStringLiteral("portionen"))->setText(QStringLiteral("1"));
    haltBeimEinblick(*rezept, QStringLiteral("recipe"),
                     QStringLiteral("A meal as the recipe of a dish:"));
    delete rezept;
    tage.close();
}

/// The words tell of the tables that are in front.
void Rundgang::haltBeimEinblick(QWidget &fenster, const QString &name, const QString &worte)
{
    QApplication::processEvents();
    ++m_halt;
    m_bericht << QStringLiteral("%1. %2").arg(m_halt).arg(worte);
    for (const QTableView *tabelle : fenster.findChildren<QTableView *>()) {
        if (tabelle->isVisible()) {
            m_bericht << ersteZeilen(*tabelle);
        }
    }
    m_bericht << neueMeldungen() << QString();
    bild(fenster, bildname(name));
}
