#include "Fensterrunde.h"

#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>

/// The letters that are pressed together with Alt: each means one thing in a window.
class TestKuerzel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noLetterStandsTwiceInAWindow_data();
    void noLetterStandsTwiceInAWindow();
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
    QCOMPARE(besucht, 24);
    QVERIFY2(gefunden.isEmpty(), qPrintable(gefunden.join(u'\n')));
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
