#include "Fensterrunde.h"

#include "Vorschlagsblatt.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

/// The letters that are pressed together with Alt: each means one thing in a window.
class TestKuerzel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noLetterStandsTwiceInAWindow_data();
    void noLetterStandsTwiceInAWindow();
    void noLetterStandsTwiceBesideThePersonsFields_data();
    void noLetterStandsTwiceBesideThePersonsFields();
    void noLetterStandsTwiceInAMenu_data();
    void noLetterStandsTwiceInAMenu();
};

namespace {

/// Captions by the letter that they are called with.
using Buchstaben = QMultiMap<QString, QString>;

void merke(Buchstaben &buchstaben, const QString &text)
{
    const QKeySequence tasten = QKeySequence::mnemonic(text);
    if (!tasten.isEmpty()) {
        buchstaben.insert(tasten.toString(), text);
    }
}

QString doppelte(const Buchstaben &buchstaben)
{
    QStringList ergebnis;
    for (const QString &taste : buchstaben.uniqueKeys()) {
        if (buchstaben.count(taste) > 1) {
            ergebnis << taste + QLatin1String(": ") +
                            buchstaben.values(taste).join(QLatin1String(" / "));
        }
    }
    return ergebnis.join(u'\n');
}

void merkeReiter(Buchstaben &buchstaben, const QTabBar &reiter)
{
    for (int i = 0; i < reiter.count(); ++i) {
        merke(buchstaben, reiter.tabText(i));
    }
}

void merkeMenues(Buchstaben &buchstaben, const QMenuBar &leiste)
{
    for (const QAction *aktion : leiste.actions()) {
        merke(buchstaben, aktion->text());
    }
}

Buchstaben buchstabenIn(const QWidget &fenster)
{
    Buchstaben alle;
    for (const QWidget *widget : fenster.findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != &fenster) {
            continue;
        }
        if (const auto *wort = qobject_cast<const QLabel *>(widget)) {
            merke(alle, wort->buddy() != nullptr ? wort->text() : QString());
        } else if (const auto *knopf = qobject_cast<const QAbstractButton *>(widget)) {
            merke(alle, knopf->text());
        } else if (const auto *gruppe = qobject_cast<const QGroupBox *>(widget)) {
            merke(alle, gruppe->title());
        } else if (const auto *reiter = qobject_cast<const QTabBar *>(widget)) {
            merkeReiter(alle, *reiter);
        } else if (const auto *leiste = qobject_cast<const QMenuBar *>(widget)) {
            merkeMenues(alle, *leiste);
        }
    }
    return alle;
}

void beideSprachen()
{
    QTest::addColumn<QString>("sprache");
    QTest::newRow("German") << QStringLiteral("de");
    QTest::newRow("English") << QStringLiteral("en");
}

} // namespace

void TestKuerzel::noLetterStandsTwiceInAWindow_data()
{
    beideSprachen();
}

void TestKuerzel::noLetterStandsTwiceInAWindow()
{
    QFETCH(QString, sprache);
    Fensterrunde runde(sprache);
    int besucht = 0;
    QStringList gefunden;
    runde.gehe([&](const QString &name, const QWidget &fenster) {
        ++besucht;
        const QString doppelt = doppelte(buchstabenIn(fenster));
        if (!doppelt.isEmpty()) {
            gefunden << name + QLatin1String(":\n") + doppelt;
        }
    });
    QCOMPARE(besucht, 37);
    QVERIFY2(gefunden.isEmpty(), qPrintable(gefunden.join(u'\n')));
}

void TestKuerzel::noLetterStandsTwiceBesideThePersonsFields_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QString>("feld");
    QTest::addColumn<int>("stelle");
    for (const char *sprache : {"de", "en"}) {
        const auto zeile = [sprache](const char *was, const char *feld, int stelle) {
            QTest::addRow("%s, %s", was, sprache)
                << QString::fromLatin1(sprache) << QString::fromLatin1(feld) << stelle;
        };
        zeile("before menopause", "menopause", 1);
        zeile("pregnant", "zustand", 1);
        zeile("nursing", "zustand", 2);
    }
}

/// Something about the client is answered in another way, and one food is crossed out: all that
/// can be asked and taken back is there, on each sheet.
void TestKuerzel::noLetterStandsTwiceBesideThePersonsFields()
{
    QFETCH(QString, sprache);
    QFETCH(QString, feld);
    QFETCH(int, stelle);
    Fensterrunde runde(sprache);
    Einblickanschluss &anschluss = runde.fenster().oberflaeche().einblick;
    anschluss.oeffne(Gegenstand::Plan);
    Einblickfenster &fenster = anschluss.fenster();
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
    fenster.personenwahl->setSatz(Referenzsatz::Dach);
    fenster.setzeKlient({.geschlecht = Referenzgeschlecht::Frau, .alter = 40, .pal = 1.6}, {});
    fenster.vorschlagsblatt->setzeGestrichene({zaehlname(3)});
    fenster.findChild<QToolButton *>(QStringLiteral("oeffner"))->click();
    auto &wahl = *fenster.findChild<QComboBox *>(feld);
    wahl.setCurrentIndex(stelle);
    Q_EMIT wahl.activated(stelle);
    QVERIFY(fenster.findChild<QToolButton *>(QStringLiteral("zurueck"))->isVisible());
    for (int i = 0; i < fenster.blaetter->count(); ++i) {
        fenster.blaetter->setCurrentIndex(i);
        QCOMPARE(doppelte(buchstabenIn(fenster)), QString());
    }
    fenster.blaetter->setCurrentWidget(fenster.vorschlagsblatt);
    fenster.findChild<QToolButton *>(QStringLiteral("klappe"))->click();
    for (const char *knopf : {"nehmen", "streichen"}) { // as they are beside a suggestion
        fenster.findChild<QAbstractButton *>(QLatin1String(knopf))->show();
    }
    QVERIFY(fenster.findChild<QAbstractButton *>(QStringLiteral("aufnehmen"))->isVisible());
    QCOMPARE(doppelte(buchstabenIn(fenster)), QString());
}

void TestKuerzel::noLetterStandsTwiceInAMenu_data()
{
    beideSprachen();
}

void TestKuerzel::noLetterStandsTwiceInAMenu()
{
    QFETCH(QString, sprache);
    Fensterrunde runde(sprache);
    QStringList gefunden;
    const AppController &controller = runde.fenster().controller();
    for (const QMainWindow *fenster : std::initializer_list<const QMainWindow *>{
             controller.Hauptfenster, controller.planmodul->window(),
             &runde.fenster().oberflaeche().tage.fenster()}) {
        for (const QMenu *menue : fenster->findChildren<QMenu *>()) {
            Buchstaben buchstaben;
            for (const QAction *aktion : menue->actions()) {
                merke(buchstaben, aktion->text());
            }
            const QString doppelt = doppelte(buchstaben);
            if (!doppelt.isEmpty()) {
                gefunden << menue->title() + QLatin1String(":\n") + doppelt;
            }
        }
    }
    QVERIFY2(gefunden.isEmpty(), qPrintable(gefunden.join(u'\n')));
}

QTEST_MAIN(TestKuerzel)
#include "TestKuerzel.moc"
