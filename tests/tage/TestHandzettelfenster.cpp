// The question how a record is printed for the client.

#include "Handzettelfenster.h"

#include "Probesprache.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Weg = Handzettelfenster::Weg;

class TestHandzettelfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whatIsClickedIsWanted();
    void itShowsWhatWasWantedBefore();
    void returnDoesWhatTheMenuSaid_data();
    void returnDoesWhatTheMenuSaid();
    void escapeWantsNothing();
    void aMissingLogoIsTold();
    void theNameOfTheDayIsNoShortcut();
    void noTwoEntriesShareALetter_data();
    void noTwoEntriesShareALetter();
    void theChoiceIsKept();
    void withoutAChoiceTheLanguageIsThatOfTheWindows();
    void whatTheSettingsDoNotHoldRightlyIsAsAtFirst();

private:
    void oeffne(const Handzettelfenster::Lage &lage);
    QAbstractButton *knopf(const QString &text) const;
    void klicke(const QString &text) const;

    std::unique_ptr<Probesprache> m_sprache;
    std::unique_ptr<Handzettelfenster> m_fenster;
    QList<std::pair<Handzettelwunsch, Weg>> m_gewuenscht;
};

void TestHandzettelfenster::init()
{
    m_sprache.reset();
    m_sprache = std::make_unique<Probesprache>(QLocale::German);
    m_gewuenscht.clear();
}

void TestHandzettelfenster::cleanup()
{
    m_fenster.reset();
}

void TestHandzettelfenster::oeffne(const Handzettelfenster::Lage &lage)
{
    m_fenster = std::make_unique<Handzettelfenster>(lage, nullptr);
    connect(
        m_fenster.get(), &Handzettelfenster::gewuenscht, this,
        [this](const Handzettelwunsch &wunsch, Weg weg) { m_gewuenscht.emplaceBack(wunsch, weg); });
    m_fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
}

QAbstractButton *TestHandzettelfenster::knopf(const QString &text) const
{
    for (auto *einer : m_fenster->findChildren<QAbstractButton *>()) {
        QString worte = einer->text();
        if (worte.remove(u'&').startsWith(text)) {
            return einer;
        }
    }
    return nullptr;
}

void TestHandzettelfenster::klicke(const QString &text) const
{
    QAbstractButton *einer = knopf(text);
    QVERIFY2(einer != nullptr, qPrintable(text));
    QTest::mouseClick(einer, Qt::LeftButton, {}, QPoint(8, einer->height() / 2));
}

void TestHandzettelfenster::whatIsClickedIsWanted()
{
    oeffne({.tag = 2, .tagesname = u"Mi 25.11."_s});
    klicke(u"Drucken"_s);
    QVERIFY(!m_fenster->isVisible());
    QCOMPARE(m_gewuenscht.size(), 1);
    QCOMPARE(m_gewuenscht[0], std::pair(Handzettelwunsch(), Weg::Drucken));
    oeffne({.tag = 2, .tagesname = u"Mi 25.11."_s});
    klicke(u"Nur der gezeigte: Mi 25.11."_s);
    klicke(u"English"_s);
    klicke(u"Mit Energie"_s);
    klicke(u"Große Schrift"_s);
    klicke(u"Als PDF"_s);
    QCOMPARE(m_gewuenscht.size(), 2);
    const Handzettelwunsch erwartet{2, true, true, Regelsprache::Englisch};
    QCOMPARE(m_gewuenscht[1], std::pair(erwartet, Weg::AlsPdf));
}

void TestHandzettelfenster::itShowsWhatWasWantedBefore()
{
    oeffne({.wunsch = {.zahlen = true, .sprache = Regelsprache::Englisch}});
    QVERIFY(knopf(u"Alle Tage"_s)->isChecked());
    QVERIFY(knopf(u"English"_s)->isChecked());
    QVERIFY(!knopf(u"Deutsch"_s)->isChecked());
    QVERIFY(knopf(u"Mit Energie"_s)->isChecked());
    QVERIFY(!knopf(u"Große Schrift"_s)->isChecked());
    klicke(u"Mit Energie"_s);
    klicke(u"Deutsch"_s);
    QCOMPARE(m_fenster->wunsch(), Handzettelwunsch());
    oeffne({.tag = 1, .wunsch = {.tag = 4, .gross = true}});
    // The day that was wanted then may be another one now.
    QCOMPARE(m_fenster->wunsch(), (Handzettelwunsch{.tag = 1, .gross = true}));
}

void TestHandzettelfenster::returnDoesWhatTheMenuSaid_data()
{
    QTest::addColumn<bool>("alsPdf");
    QTest::newRow("print") << false;
    QTest::newRow("as a PDF") << true;
}

void TestHandzettelfenster::returnDoesWhatTheMenuSaid()
{
    QFETCH(const bool, alsPdf);
    const Weg weg = alsPdf ? Weg::AlsPdf : Weg::Drucken;
    oeffne({.weg = weg});
    QTest::keyClick(m_fenster.get(), Qt::Key_Return);
    QCOMPARE(m_gewuenscht.size(), 1);
    QCOMPARE(m_gewuenscht[0].second, weg);
}

void TestHandzettelfenster::escapeWantsNothing()
{
    oeffne({});
    QTest::keyClick(m_fenster.get(), Qt::Key_Escape);
    QVERIFY(!m_fenster->isVisible());
    oeffne({});
    QTest::mouseClick(knopf(u"Cancel"_s) != nullptr ? knopf(u"Cancel"_s) : knopf(u"Abbrechen"_s),
                      Qt::LeftButton);
    QVERIFY(!m_fenster->isVisible());
    QVERIFY(m_gewuenscht.isEmpty());
}

void TestHandzettelfenster::aMissingLogoIsTold()
{
    oeffne({.logoFehlt = true});
    const auto *worte = m_fenster->findChild<QLabel *>(u"hinweis"_s);
    QVERIFY(worte != nullptr && worte->isVisible());
    QVERIFY(worte->text().startsWith(u"Das Logo ist nicht zu lesen"_s));
    oeffne({});
    QVERIFY(m_fenster->findChild<QLabel *>(u"hinweis"_s) == nullptr);
}

void TestHandzettelfenster::theNameOfTheDayIsNoShortcut()
{
    oeffne({.tagesname = u"A&B %1"_s});
    QVERIFY(knopf(u"Nur der gezeigte"_s)->text().endsWith(u"A&&B %1"_s));
}

void TestHandzettelfenster::noTwoEntriesShareALetter_data()
{
    QTest::addColumn<QLocale::Language>("sprache");
    QTest::newRow("German") << QLocale::German;
    QTest::newRow("English") << QLocale::English;
}

void TestHandzettelfenster::noTwoEntriesShareALetter()
{
    QFETCH(const QLocale::Language, sprache);
    m_sprache.reset();
    m_sprache = std::make_unique<Probesprache>(sprache);
    oeffne({.tagesname = u"Mi"_s});
    QSet<QString> tasten;
    for (const auto *einer : m_fenster->findChildren<QAbstractButton *>()) {
        const QString taste = QKeySequence::mnemonic(einer->text()).toString();
        QVERIFY2(taste.isEmpty() || !tasten.contains(taste), qPrintable(einer->text()));
        tasten << taste;
    }
    QVERIFY(tasten.size() >= 8);
}

void TestHandzettelfenster::theChoiceIsKept()
{
    const QTemporaryDir ordner;
    const QString datei = ordner.filePath(u"einstellungen.ini"_s);
    const Handzettelwunsch wunsch{3, true, true, Regelsprache::Englisch};
    {
        QSettings einstellungen(datei, QSettings::IniFormat);
        merkeHandzettelwunsch(einstellungen, wunsch);
    }
    QSettings einstellungen(datei, QSettings::IniFormat);
    Handzettelwunsch erwartet = wunsch;
    erwartet.tag.reset();
    QCOMPARE(gemerkterHandzettelwunsch(einstellungen), erwartet);
    merkeHandzettelwunsch(einstellungen, {});
    QCOMPARE(gemerkterHandzettelwunsch(einstellungen), Handzettelwunsch());
}

void TestHandzettelfenster::withoutAChoiceTheLanguageIsThatOfTheWindows()
{
    const QTemporaryDir ordner;
    QSettings einstellungen(ordner.filePath(u"einstellungen.ini"_s), QSettings::IniFormat);
    QCOMPARE(gemerkterHandzettelwunsch(einstellungen), Handzettelwunsch());
    m_sprache.reset();
    m_sprache = std::make_unique<Probesprache>(QLocale::English);
    QCOMPARE(gemerkterHandzettelwunsch(einstellungen),
             (Handzettelwunsch{.sprache = Regelsprache::Englisch}));
    merkeHandzettelwunsch(einstellungen, {}); // German was chosen at an English desk
    QCOMPARE(gemerkterHandzettelwunsch(einstellungen), Handzettelwunsch());
}

void TestHandzettelfenster::whatTheSettingsDoNotHoldRightlyIsAsAtFirst()
{
    const QTemporaryDir ordner;
    QSettings einstellungen(ordner.filePath(u"einstellungen.ini"_s), QSettings::IniFormat);
    einstellungen.setValue(u"Handzettel/Sprache"_s, u"fr"_s);
    einstellungen.setValue(u"Handzettel/Zahlen"_s, QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(gemerkterHandzettelwunsch(einstellungen), Handzettelwunsch());
}

QTEST_MAIN(TestHandzettelfenster)
#include "TestHandzettelfenster.moc"
