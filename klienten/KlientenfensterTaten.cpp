// What the menu of the clients' window does.

#include "Klientenfenster.h"

#include "Klientenblatt.h"
#include "Klientenmappe.h"
#include "Klientenuebergabe.h"
#include "Loeschfrage.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMenuBar>
#include <QUrl>

#include <array>

namespace {

constexpr int lesezeit = 8000; // milliseconds

const QString hinweisUebergabe = QStringLiteral("uebergabe");

/// A file of one client is small; what is larger is none.
constexpr qint64 groessteDatei = 64LL * 1024 * 1024;

/// Where a deleted client can still be found for some time.
QString kopienworte(const QString &datei)
{
    return datei.isNull()
               ? localizedString(QStringLiteral(
                     "Was an Kopien des Servers aufgehoben wird, weiß, wer ihn betreut."))
               : localizedString(QStringLiteral(
                     "In den täglichen Kopien bleibt es, bis zehn jüngere da sind."));
}

} // namespace

void Klientenfenster::baueMenue()
{
    const struct
    {
        const char *text;
        QKeySequence tasten;
        void (Klientenfenster::*tat)();
        bool zuKlient;
        bool trennung;
    } zeilen[] = {
        {QT_TRANSLATE_NOOP("Mahlberg", "&Neuer Klient …"), QKeySequence::New,
         &Klientenfenster::neuerKlient, false, false},
        {QT_TRANSLATE_NOOP("Mahlberg", "An den Schreib&tisch"),
         QKeySequence(QStringLiteral("Ctrl+Return")), &Klientenfenster::anDenTisch, true, false},
        {QT_TRANSLATE_NOOP("Mahlberg", "&Archivieren"),
         {},
         &Klientenfenster::archiviere,
         true,
         false},
        {QT_TRANSLATE_NOOP("Mahlberg", "Klient &löschen …"),
         {},
         &Klientenfenster::loesche,
         true,
         true},
        {QT_TRANSLATE_NOOP("Mahlberg", "&Drucken …"), QKeySequence::Print, &Klientenfenster::drucke,
         true, false},
        {QT_TRANSLATE_NOOP("Mahlberg", "Als &PDF sichern …"),
         QKeySequence(QStringLiteral("Ctrl+Shift+P")), &Klientenfenster::alsPdfSichern, true, true},
        {QT_TRANSLATE_NOOP("Mahlberg", "Akte über&geben …"),
         {},
         &Klientenfenster::uebergib,
         true,
         false},
        {QT_TRANSLATE_NOOP("Mahlberg", "Akte auf&nehmen …"),
         {},
         &Klientenfenster::nimmAuf,
         false,
         false},
        {QT_TRANSLATE_NOOP("Mahlberg", "Klienten dieses Plat&zes auf den Server …"),
         {},
         &Klientenfenster::umzugGewuenscht,
         false,
         true},
        {QT_TRANSLATE_NOOP("Mahlberg", "Frühere Stän&de …"),
         {},
         &Klientenfenster::fruehereStaendeGewuenscht,
         false,
         false},
        {QT_TRANSLATE_NOOP("Mahlberg", "Neu &lesen"), QKeySequence(Qt::Key_F5),
         &Klientenfenster::frischeAuf, false, true},
    };
    QMenu &menue = *menuBar()->addMenu(localizedString(QStringLiteral("&Klient")));
    for (const auto &zeile : zeilen) {
        QAction *aktion = menue.addAction(localizedString(QString::fromUtf8(zeile.text)));
        aktion->setShortcut(zeile.tasten);
        connect(aktion, &QAction::triggered, this, zeile.tat);
        if (zeile.zuKlient) {
            m_zuKlient << aktion;
        }
        if (zeile.trennung) {
            menue.addSeparator();
        }
    }
    QAction *schliessen = menue.addAction(localizedString(QStringLiteral("S&chließen")));
    schliessen->setShortcut(QKeySequence::Close);
    connect(schliessen, &QAction::triggered, this, &QWidget::close);
    QMenu &bearbeiten = *menuBar()->addMenu(localizedString(QStringLiteral("&Bearbeiten")));
    QAction *zurueck =
        bearbeiten.addAction(localizedString(QStringLiteral("&Löschen zurücknehmen")));
    zurueck->setShortcut(QKeySequence::Undo);
    connect(zurueck, &QAction::triggered, this, &Klientenfenster::nimmZurueck);
    QMenu &hilfe = *menuBar()->addMenu(localizedString(QStringLiteral("&Hilfe")));
    QAction *handbuch = hilfe.addAction(localizedString(QStringLiteral("&Handbuch")));
    handbuch->setShortcut(QKeySequence(QStringLiteral("F1")));
    connect(handbuch, &QAction::triggered, this, &Klientenfenster::hilfeGewuenscht);
}

/// What can't be kept holds the user where it stands, with a word.
bool Klientenfenster::darfFort()
{
    const bool gesichert = sichere();
    if (!gesichert) {
        sageFestgehalten();
    }
    return gesichert;
}

void Klientenfenster::neuerKlient()
{
    if (!m_kartei.beschreibbar() || !darfFort()) {
        return;
    }
    m_gewaehlt = QString();
    m_akte.reset();
    m_neuer = true;
    liste->clearSelection();
    seiten->setCurrentIndex(0);
    personenblatt->zeige(Person());
    zeigeKopf();
    personenblatt->name->setFocus();
}

void Klientenfenster::anDenTisch()
{
    if (!m_akte || !darfFort()) {
        return;
    }
    if (m_tisch.ist(m_gewaehlt)) {
        m_tisch.verlasse();
    } else {
        m_tisch.nimm(m_gewaehlt);
    }
}

void Klientenfenster::archiviere()
{
    if (m_akte && darfFort()) {
        Person neu = m_akte->person;
        neu.archiviert = !neu.archiviert;
        m_kartei.sichere({m_gewaehlt, neu, Satz(m_akte->person)});
    }
}

void Klientenfenster::loesche()
{
    if (!m_akte || !m_kartei.beschreibbar()) {
        return;
    }
    auto *frage = new Loeschfrage(m_akte->person.name, kopienworte(m_tueren.datei), this);
    frage->setAttribute(Qt::WA_DeleteOnClose);
    connect(frage, &QDialog::accepted, this, [this, kennung = m_gewaehlt] {
        const std::optional<Klientenakte> akte = m_kartei.akte(kennung);
        if (akte && m_kartei.loesche(*akte)) {
            sageGeloescht(localizedString(QStringLiteral("%1 ist gelöscht."))
                              .arg(kurzerName(akte->person.name)));
        }
    });
    frage->open();
}

void Klientenfenster::sageGeloescht(const QString &was)
{
    hinweise->zeige({.kennung = hinweisGeloescht,
                     .text = was,
                     .knopf = localizedString(QStringLiteral("Zurücknehmen")),
                     .aktion = [this] {
                         nimmZurueck();
                     }});
}

void Klientenfenster::nimmZurueck()
{
    hinweise->nimmZurueck(hinweisGeloescht);
    const bool etwas = m_kartei.kannZurueckholen();
    const bool gelungen = m_kartei.holeZurueck();
    hinweise->zeige(
        {.kennung = hinweisGeloescht,
         .text = gelungen ? localizedString(QStringLiteral("Das Gelöschte ist wieder da."))
                 : etwas  ? localizedString(
                                QStringLiteral("Das Gelöschte ließ sich noch nicht zurückholen."))
                         : localizedString(QStringLiteral("Es gibt nichts zurückzunehmen.")),
         .warnung = etwas && !gelungen,
         .dauer = lesezeit});
}

void Klientenfenster::drucke()
{
    if (m_akte && darfFort() && m_tueren.drucke) {
        m_tueren.drucke(this, klientenblatt(*m_akte, QDate::currentDate()));
    }
}

void Klientenfenster::alsPdfSichern()
{
    if (m_akte && darfFort() && m_tueren.alsPdf) {
        m_tueren.alsPdf(this, klientenblatt(*m_akte, QDate::currentDate()), [] {});
    }
}

void Klientenfenster::uebergib()
{
    if (!m_akte || !darfFort() || !m_tueren.waehleDatei) {
        return;
    }
    m_tueren.waehleDatei(this,
                         {.titel = localizedString(QStringLiteral("Ordner, in den die Akte kommt")),
                          .zweck = Dateifrage::Zweck::Ordner},
                         [this](const QString &ordner) { sageUebergabe(ordner); });
}

void Klientenfenster::sageUebergabe(const QString &ordner)
{
    if (!m_akte) {
        return;
    }
    const Mappenausgang ausgang = schreibeMappe(ordner, *m_akte, QDate::currentDate());
    if (!ausgang.gelungen) {
        hinweise->zeige(
            {.kennung = hinweisUebergabe,
             .text = localizedString(QStringLiteral("Die Akte ließ sich nicht schreiben: %1"))
                         .arg(ausgang.grund),
             .warnung = true});
        return;
    }
    hinweise->zeige({.kennung = hinweisUebergabe,
                     .text = localizedString(QStringLiteral("Die Akte liegt in „%1“."))
                                 .arg(QDir::toNativeSeparators(ausgang.ordner)),
                     .knopf = localizedString(QStringLiteral("Ordner zeigen")),
                     .aktion = [ordner = ausgang.ordner] {
                         QDesktopServices::openUrl(QUrl::fromLocalFile(ordner));
                     }});
}

void Klientenfenster::nimmAuf()
{
    if (!m_kartei.beschreibbar() || !m_tueren.waehleDatei) {
        return;
    }
    m_tueren.waehleDatei(
        this,
        {.titel = localizedString(QStringLiteral("Akte aufnehmen")),
         .arten = localizedString(QStringLiteral("Akten von Mahlberg (*.json);;Alle Dateien (*)"))},
        [this](const QString &datei) { nimmDateiAuf(datei); });
}

void Klientenfenster::nimmDateiAuf(const QString &path)
{
    static constexpr std::array<const char *, 4> worte = {
        "",
        QT_TRANSLATE_NOOP("Mahlberg", "In dieser Datei steht keine Akte von Mahlberg."),
        QT_TRANSLATE_NOOP("Mahlberg", "Die Akte stammt von einer neueren Version von Mahlberg, mit "
                                      "Angaben, die diese nicht kennt."),
        QT_TRANSLATE_NOOP("Mahlberg", "Die Akte ist beschädigt."),
    };
    QFile datei(path);
    const bool lesbar = datei.open(QIODevice::ReadOnly) && datei.size() <= groessteDatei;
    const Uebergabe uebergabe = leseAkte(lesbar ? datei.readAll() : QByteArray());
    QString satz =
        localizedString(QString::fromUtf8(worte.at(static_cast<std::size_t>(uebergabe.zustand))));
    if (!lesbar) {
        satz = localizedString(QStringLiteral("Die Datei lässt sich nicht lesen."));
    } else if (uebergabe.zustand == Uebergabe::Zustand::Gelesen) {
        const Schreibausgang ausgang = m_kartei.nimmAuf(uebergabe.akte);
        const QString name = kurzerName(uebergabe.akte.person.name);
        satz = ausgang ? localizedString(QStringLiteral("%1 ist aufgenommen.")).arg(name)
               : ausgang.art == Schreibausgang::Art::Ueberholt
                   ? localizedString(QStringLiteral("%1 ist hier schon; es wurde nichts geändert."))
                         .arg(name)
                   : localizedString(QStringLiteral("%1 ließ sich nicht aufnehmen.")).arg(name);
        if (ausgang) {
            waehle(uebergabe.akte.person.kennung);
            fuelleListe();
        }
    }
    hinweise->zeige({.kennung = hinweisUebergabe, .text = satz});
}
