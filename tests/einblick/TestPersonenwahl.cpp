// By what a day is measured, and for whom: answered with clicks and keys.

#include "Personenwahl.h"
#include "Referenzprobe.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Referenzperson)

class TestPersonenwahl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theGeneralNeedsAreTheDefault();
    void oneLineSaysWhatHolds();
    void aClickOpensAndFoldsTheFields();
    void aSetIsChosenWithTheKeys();
    void whatIsSetFromOutsideIsNotReported();
    void everyFieldIsTaken();
    void whatCannotBeIsSaidAndNotTaken_data();
    void whatCannotBeIsSaidAndNotTaken();
    void limitsAreTaken_data();
    void limitsAreTaken();
    void anEmptyFieldIsUnknown();
    void onlyWhatMattersIsAsked_data();
    void onlyWhatMattersIsAsked();
    void aManIsNeverPregnant();
    void theMonthOfLactationStaysExactWhileItsGroupDoes();
    void anotherActivityIsListedToo();
    void theOwnEnergyHoldsOnlyForTheClientAsIs();
    void theClientsDataComeBack();
    void anotherClientTakesWhatWasTypedAway();
    void theWordsFollowTheLanguage();
    void itFitsANarrowWindow();
    void fieldsThatAreNotAskedTakeNoRoom();

private:
    QComboBox &wahl(const char *name) const
    {
        return *m_wahl->findChild<QComboBox *>(QLatin1String(name));
    }
    QLineEdit &feld(const char *name) const
    {
        return *m_wahl->findChild<QLineEdit *>(QLatin1String(name));
    }
    QLabel &wort(const char *name) const
    {
        return *m_wahl->findChild<QLabel *>(QLatin1String(name));
    }
    QToolButton &knopf(const char *name) const
    {
        return *m_wahl->findChild<QToolButton *>(QLatin1String(name));
    }
    void oeffne() const { QTest::mouseClick(&knopf("oeffner"), Qt::LeftButton); }
    void waehle(const char *name, int stelle) const;
    void tippe(const char *name, const QString &text) const;
    QString kurz() const { return wort("kurz").text(); }

    std::unique_ptr<Personenwahl> m_wahl;
};

void TestPersonenwahl::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_wahl = std::make_unique<Personenwahl>();
    m_wahl->resize(420, 400);
    m_wahl->show();
    QVERIFY(QTest::qWaitForWindowActive(m_wahl.get()));
}

/// With the keyboard: from the first entry down to this one.
void TestPersonenwahl::waehle(const char *name, int stelle) const
{
    QComboBox &eine = wahl(name);
    eine.setFocus();
    QTest::keyClick(&eine, Qt::Key_Home);
    for (int i = 0; i < stelle; ++i) {
        QTest::keyClick(&eine, Qt::Key_Down);
    }
}

void TestPersonenwahl::tippe(const char *name, const QString &text) const
{
    QLineEdit &eines = feld(name);
    eines.setFocus();
    eines.selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(&eines, Qt::Key_Delete);
    }
    QTest::keyClicks(&eines, text);
    QTest::keyClick(&eines, Qt::Key_Return);
}

void TestPersonenwahl::theGeneralNeedsAreTheDefault()
{
    QVERIFY(!m_wahl->satz());
    QCOMPARE(m_wahl->person(), Referenzperson());
    QCOMPARE(kurz(), u"Allgemeiner Tagesbedarf"_s);
    oeffne();
    QVERIFY(wahl("satz").isVisible());
    for (const char *name : {"geschlecht", "zustand", "trimester", "pal", "menopause"}) {
        QVERIFY(!wahl(name).isVisible());
    }
    QVERIFY(!feld("alter").isVisible());
}

void TestPersonenwahl::oneLineSaysWhatHolds()
{
    m_wahl->setSatz(Referenzsatz::Dach);
    m_wahl->setPerson(Referenzprobe::schwangere());
    QCOMPARE(kurz(), u"D-A-CH · Frau, 28 Jahre, schwanger (2. Trimester), PAL 1,6, 64 kg"_s);
    m_wahl->setSatz({});
    QCOMPARE(kurz(), u"Allgemeiner Tagesbedarf"_s);
}

void TestPersonenwahl::aClickOpensAndFoldsTheFields()
{
    const auto *formular = m_wahl->findChild<QWidget *>(u"formular"_s);
    QVERIFY(!formular->isVisible());
    QCOMPARE(knopf("oeffner").text(), u"Ändern"_s);
    oeffne();
    QVERIFY(formular->isVisible());
    QCOMPARE(knopf("oeffner").text(), u"Einklappen"_s);
    knopf("oeffner").setFocus();
    QTest::keyClick(&knopf("oeffner"), Qt::Key_Space);
    QVERIFY(!formular->isVisible());
}

void TestPersonenwahl::aSetIsChosenWithTheKeys()
{
    oeffne();
    const QSignalSpy spion(m_wahl.get(), &Personenwahl::geaendert);
    wahl("satz").setFocus();
    QTest::keyClick(&wahl("satz"), Qt::Key_Down);
    QCOMPARE(spion.count(), 1);
    QCOMPARE(m_wahl->satz(), std::optional(Referenzsatz::Efsa));
    QVERIFY(feld("alter").isVisible());
    QTest::keyClick(&wahl("satz"), Qt::Key_Down);
    QCOMPARE(m_wahl->satz(), std::optional(Referenzsatz::Dach));
    QTest::keyClick(&wahl("satz"), Qt::Key_Home);
    QVERIFY(!m_wahl->satz());
    QVERIFY(!feld("alter").isVisible());
    QCOMPARE(spion.count(), 3);
}

void TestPersonenwahl::whatIsSetFromOutsideIsNotReported()
{
    const QSignalSpy spion(m_wahl.get(), &Personenwahl::geaendert);
    m_wahl->setSatz(Referenzsatz::Efsa);
    m_wahl->setPerson(Referenzprobe::mann());
    QCOMPARE(spion.count(), 0);
    QCOMPARE(m_wahl->person(), Referenzprobe::mann());
    QCOMPARE(feld("alter").text(), u"67"_s);
    QCOMPARE(feld("gewicht").text(), u"95"_s);
    QCOMPARE(wahl("geschlecht").currentText(), u"Mann"_s);
    QCOMPARE(wahl("pal").currentText(), u"1,4 – sitzend"_s);
}

void TestPersonenwahl::everyFieldIsTaken()
{
    m_wahl->setSatz(Referenzsatz::Dach);
    oeffne();
    const QSignalSpy spion(m_wahl.get(), &Personenwahl::geaendert);
    waehle("geschlecht", 1);
    QCOMPARE(m_wahl->person().geschlecht, std::optional(Referenzgeschlecht::Frau));
    tippe("alter", u"28"_s);
    QCOMPARE(m_wahl->person().alter, std::optional(28));
    waehle("zustand", 1);
    QCOMPARE(m_wahl->person().zustand, Referenzzustand::Schwanger);
    waehle("trimester", 2);
    QCOMPARE(m_wahl->person().trimester, std::optional(2));
    waehle("pal", 2);
    QCOMPARE(m_wahl->person().pal, std::optional(1.6));
    tippe("gewicht", u"64,5"_s);
    QCOMPARE(m_wahl->person().gewicht, std::optional(64.5));
    QVERIFY(spion.count() >= 6);
    QCOMPARE(kurz(), u"D-A-CH · Frau, 28 Jahre, schwanger (2. Trimester), PAL 1,6, 64,5 kg"_s);
    waehle("zustand", 2);
    QVERIFY(!m_wahl->person().trimester);
    waehle("stillmonat", 2);
    QCOMPARE(m_wahl->person().stillmonat, std::optional(7));
    waehle("stillmonat", 1);
    QCOMPARE(m_wahl->person().stillmonat, std::optional(1));
    waehle("zustand", 0);
    QVERIFY(!m_wahl->person().stillmonat);
    waehle("menopause", 2);
    QCOMPARE(m_wahl->person().nachMenopause, std::optional(true));
    waehle("menopause", 1);
    QCOMPARE(m_wahl->person().nachMenopause, std::optional(false));
    waehle("menopause", 0);
    QVERIFY(!m_wahl->person().nachMenopause);
    waehle("geschlecht", 0);
    QVERIFY(!m_wahl->person().geschlecht);
    waehle("pal", 0);
    QVERIFY(!m_wahl->person().pal);
}

void TestPersonenwahl::whatCannotBeIsSaidAndNotTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("einwand");
    const QString alter = u"⚠ Das Alter ist eine ganze Zahl von 0 bis 120."_s;
    const QString gewicht = u"⚠ Das Gewicht liegt über 0 und bis 500 kg, etwa 64,5."_s;
    QTest::newRow("too old") << u"alter"_s << u"121"_s << alter;
    QTest::newRow("before the birth") << u"alter"_s << u"-1"_s << alter;
    QTest::newRow("half a year") << u"alter"_s << u"1,5"_s << alter;
    QTest::newRow("a word") << u"alter"_s << u"alt"_s << alter;
    QTest::newRow("weightless") << u"gewicht"_s << u"0"_s << gewicht;
    QTest::newRow("below nothing") << u"gewicht"_s << u"-5"_s << gewicht;
    QTest::newRow("too heavy") << u"gewicht"_s << u"500,1"_s << gewicht;
    QTest::newRow("no number") << u"gewicht"_s << u"64 kg"_s << gewicht;
    QTest::newRow("two commas") << u"gewicht"_s << u"6,4,5"_s << gewicht;
}

void TestPersonenwahl::whatCannotBeIsSaidAndNotTaken()
{
    QFETCH(const QString, name);
    QFETCH(const QString, text);
    QFETCH(const QString, einwand);
    m_wahl->setSatz(Referenzsatz::Efsa);
    m_wahl->setPerson(Referenzprobe::mann());
    oeffne();
    QVERIFY(!wort("einwand").isVisible());
    const QByteArray feldname = name.toLatin1();
    tippe(feldname.constData(), text);
    QCOMPARE(m_wahl->person(), Referenzprobe::mann());
    QVERIFY(wort("einwand").isVisible());
    QCOMPARE(wort("einwand").text(), einwand + u"\nBis dahin gilt, was oben steht."_s);
    QCOMPARE(feld(feldname.constData()).accessibleDescription(), wort("einwand").text());
    QCOMPARE(feld(feldname.constData()).text(), text); // it can be put right
    tippe(feldname.constData(), u"40"_s);
    QVERIFY(!wort("einwand").isVisible());
    QVERIFY(m_wahl->person() != Referenzprobe::mann());
}

void TestPersonenwahl::limitsAreTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("wert");
    QTest::newRow("an infant") << u"alter"_s << u"0"_s << 0.0;
    QTest::newRow("the oldest") << u"alter"_s << u"120"_s << 120.0;
    QTest::newRow("light") << u"gewicht"_s << u"0,1"_s << 0.1;
    QTest::newRow("with a point") << u"gewicht"_s << u"64.25"_s << 64.25;
    QTest::newRow("heavy") << u"gewicht"_s << u"500"_s << 500.0;
}

void TestPersonenwahl::limitsAreTaken()
{
    QFETCH(const QString, name);
    QFETCH(const QString, text);
    QFETCH(const double, wert);
    m_wahl->setSatz(Referenzsatz::Efsa);
    m_wahl->setPerson(Referenzprobe::mann());
    oeffne();
    tippe(name.toLatin1().constData(), text);
    QVERIFY(!wort("einwand").isVisible());
    QCOMPARE(name == u"alter" ? m_wahl->person().alter.value_or(-1)
                              : m_wahl->person().gewicht.value_or(-1),
             wert);
}

void TestPersonenwahl::anEmptyFieldIsUnknown()
{
    m_wahl->setSatz(Referenzsatz::Efsa);
    m_wahl->setPerson(Referenzprobe::mann());
    oeffne();
    tippe("alter", {});
    QVERIFY(!m_wahl->person().alter);
    tippe("gewicht", {});
    QVERIFY(!m_wahl->person().gewicht);
    QCOMPARE(kurz(), u"EFSA · Mann, Alter unbekannt, PAL 1,4, Gewicht unbekannt"_s);
}

void TestPersonenwahl::onlyWhatMattersIsAsked_data()
{
    QTest::addColumn<Referenzsatz>("satz");
    QTest::addColumn<Referenzperson>("person");
    QTest::addColumn<QStringList>("gefragt");
    const auto frau = [](std::optional<int> alter, Referenzzustand zustand) {
        return Referenzperson{
            .geschlecht = Referenzgeschlecht::Frau, .alter = alter, .zustand = zustand};
    };
    const auto keiner = Referenzzustand::Keiner;
    const QStringList nurZustand = {u"zustand"_s};
    const QStringList auchMenopause = {u"zustand"_s, u"menopause"_s};
    const auto e = Referenzsatz::Efsa;
    const auto d = Referenzsatz::Dach;
    QTest::newRow("a man") << e << Referenzprobe::mann() << QStringList();
    QTest::newRow("sex unknown") << e << Referenzperson{.alter = 40} << nurZustand;
    QTest::newRow("age unknown") << e << frau({}, keiner) << nurZustand;
    QTest::newRow("EFSA, 17") << e << frau(17, keiner) << nurZustand;
    QTest::newRow("EFSA, 18") << e << frau(18, keiner) << auchMenopause;
    QTest::newRow("EFSA, 90") << e << frau(90, keiner) << auchMenopause;
    QTest::newRow("DACH, 18") << d << frau(18, keiner) << nurZustand;
    QTest::newRow("DACH, 19") << d << frau(19, keiner) << auchMenopause;
    QTest::newRow("DACH, 64") << d << frau(64, keiner) << auchMenopause;
    QTest::newRow("DACH, 65") << d << frau(65, keiner) << nurZustand;
    QTest::newRow("pregnant") << e << frau(28, Referenzzustand::Schwanger)
                              << QStringList{u"zustand"_s, u"trimester"_s};
    QTest::newRow("lactating") << e << frau(28, Referenzzustand::Stillend)
                               << QStringList{u"zustand"_s, u"stillmonat"_s};
}

void TestPersonenwahl::onlyWhatMattersIsAsked()
{
    QFETCH(const Referenzsatz, satz);
    QFETCH(const Referenzperson, person);
    QFETCH(const QStringList, gefragt);
    m_wahl->setSatz(satz);
    m_wahl->setPerson(person);
    oeffne();
    QStringList sichtbare;
    for (const char *name : {"zustand", "trimester", "stillmonat", "menopause"}) {
        if (wahl(name).isVisible()) {
            sichtbare << QLatin1String(name);
        }
    }
    QCOMPARE(sichtbare, gefragt);
}

void TestPersonenwahl::aManIsNeverPregnant()
{
    m_wahl->setSatz(Referenzsatz::Dach);
    Referenzperson person = Referenzprobe::schwangere();
    m_wahl->setPerson(person);
    oeffne();
    waehle("geschlecht", 2);
    QCOMPARE(m_wahl->person().zustand, Referenzzustand::Keiner);
    QVERIFY(!m_wahl->person().trimester);
    QCOMPARE(kurz(), u"D-A-CH · Mann, 28 Jahre, PAL 1,6, 64 kg"_s);
}

void TestPersonenwahl::theMonthOfLactationStaysExactWhileItsGroupDoes()
{
    m_wahl->setSatz(Referenzsatz::Efsa);
    Referenzperson person = {.geschlecht = Referenzgeschlecht::Frau,
                             .alter = 30,
                             .zustand = Referenzzustand::Stillend,
                             .stillmonat = 3};
    m_wahl->setPerson(person);
    oeffne();
    QCOMPARE(wahl("stillmonat").currentIndex(), 1);
    tippe("alter", u"31"_s);
    QCOMPARE(m_wahl->person().stillmonat, std::optional(3));
    waehle("stillmonat", 2);
    QCOMPARE(m_wahl->person().stillmonat, std::optional(7));
}

void TestPersonenwahl::anotherActivityIsListedToo()
{
    m_wahl->setSatz(Referenzsatz::Efsa);
    QCOMPARE(wahl("pal").count(), 5);
    Referenzperson person = Referenzprobe::mann();
    person.pal = 1.75;
    m_wahl->setPerson(person);
    QCOMPARE(wahl("pal").count(), 6);
    QCOMPARE(wahl("pal").currentText(), u"1,75"_s);
    oeffne();
    tippe("alter", u"66"_s);
    QCOMPARE(m_wahl->person().pal, std::optional(1.75));
}

void TestPersonenwahl::theOwnEnergyHoldsOnlyForTheClientAsIs()
{
    m_wahl->setSatz(Referenzsatz::Efsa);
    Referenzperson person = Referenzprobe::mann();
    person.energiebedarf = 1900;
    m_wahl->setPerson(person);
    QCOMPARE(m_wahl->person().energiebedarf, std::optional(1900.0));
    oeffne();
    waehle("satz", 2); // the set says nothing about the person
    QCOMPARE(m_wahl->person().energiebedarf, std::optional(1900.0));
    tippe("gewicht", u"80"_s);
    QVERIFY(!m_wahl->person().energiebedarf);
    tippe("gewicht", u"95"_s);
    QCOMPARE(m_wahl->person().energiebedarf, std::optional(1900.0));
}

void TestPersonenwahl::theClientsDataComeBack()
{
    m_wahl->setSatz(Referenzsatz::Efsa);
    m_wahl->setPerson(Referenzprobe::mann());
    oeffne();
    QVERIFY(!knopf("zurueck").isVisible());
    tippe("alter", u"40"_s);
    waehle("geschlecht", 1);
    QVERIFY(knopf("zurueck").isVisible());
    const QSignalSpy spion(m_wahl.get(), &Personenwahl::geaendert);
    QTest::mouseClick(&knopf("zurueck"), Qt::LeftButton);
    QCOMPARE(spion.count(), 1);
    QCOMPARE(m_wahl->person(), Referenzprobe::mann());
    QCOMPARE(feld("alter").text(), u"67"_s);
    QVERIFY(!knopf("zurueck").isVisible());
}

void TestPersonenwahl::anotherClientTakesWhatWasTypedAway()
{
    m_wahl->setSatz(Referenzsatz::Efsa);
    m_wahl->setPerson(Referenzprobe::mann());
    oeffne();
    tippe("alter", u"200"_s);
    QVERIFY(wort("einwand").isVisible());
    m_wahl->setPerson(Referenzprobe::schwangere());
    QCOMPARE(feld("alter").text(), u"28"_s);
    QVERIFY(!wort("einwand").isVisible());
    QCOMPARE(m_wahl->person(), Referenzprobe::schwangere());
}

void TestPersonenwahl::theWordsFollowTheLanguage()
{
    m_wahl->setSatz(Referenzsatz::Dach);
    m_wahl->setPerson(Referenzprobe::schwangere());
    Referenzprobe::Woerterbuch woerter;
    QCoreApplication::installTranslator(&woerter);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    m_wahl->folgeSprache();
    QVERIFY(kurz().startsWith(u"D-A-CH · Woman, "));
    QVERIFY(kurz().contains(u"PAL 1.6"));
    QCOMPARE(wahl("satz").itemText(0), u"General daily needs"_s);
    QCOMPARE(m_wahl->satz(), std::optional(Referenzsatz::Dach));
    QCOMPARE(m_wahl->person(), Referenzprobe::schwangere());
    QCOMPARE(wahl("geschlecht").currentText(), u"Woman"_s);
    QCOMPARE(wahl("trimester").currentIndex(), 2);
    QCoreApplication::removeTranslator(&woerter);
}

void TestPersonenwahl::itFitsANarrowWindow()
{
    m_wahl->setSatz(Referenzsatz::Efsa);
    m_wahl->setPerson({.geschlecht = Referenzgeschlecht::Frau, .alter = 40});
    oeffne();
    QVERIFY(m_wahl->minimumSizeHint().width() <= 400);
    for (const char *name : {"satz", "geschlecht", "zustand", "pal", "menopause"}) {
        QVERIFY(wahl(name).isVisible());
        QVERIFY(wahl(name).geometry().right() < 420);
    }
}

void TestPersonenwahl::fieldsThatAreNotAskedTakeNoRoom()
{
    oeffne();
    const QWidget &sichtbares = *m_wahl->findChild<QWidget *>(u"formular"_s)->parentWidget();
    QTRY_COMPARE(sichtbares.height(), wahl("satz").height());
    waehle("satz", 1);
    QTRY_VERIFY(sichtbares.height() > wahl("pal").geometry().bottom());
    waehle("satz", 0);
    QTRY_COMPARE(sichtbares.height(), wahl("satz").height());
}

QTEST_MAIN(TestPersonenwahl)
#include "TestPersonenwahl.moc"
