#include "Probefenster.h"

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

/// What a keyboard and the settings deliver to the calculator: numbers as people type them, and
/// numbers of earlier days that no slider could have set.
class TestRechnereingabe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void numbersAsPeopleTypeThem_data();
    void numbersAsPeopleTypeThem();
    void lookingAroundAltersNothing();
    void theKeysInTheFile();

private:
    void oeffne();
    void gehDurchAlleFelder() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
    AnthroController *r = nullptr;
};

void TestRechnereingabe::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(3));
}

void TestRechnereingabe::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestRechnereingabe::oeffne()
{
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    r = &m_fenster->rechner();
    m_fenster->controller().zeigeAnsicht(QStringLiteral("vier"));
    QCoreApplication::processEvents();
}

void TestRechnereingabe::numbersAsPeopleTypeThem_data()
{
    QTest::addColumn<QLocale>("sprache");
    QTest::addColumn<QString>("regler");
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<float>("erwartet");
    const std::pair<const char *, QLocale> sprachen[] = {
        {"German", QLocale(QLocale::German, QLocale::Germany)},
        {"English", QLocale(QLocale::English, QLocale::UnitedKingdom)},
    };
    for (const auto &[name, sprache] : sprachen) {
        const auto zeile = [name = name, sprache = sprache](const char *was, const char *regler,
                                                            const char *getippt, float erwartet) {
            QTest::addRow("%s, %s", name, was) << sprache << QString::fromLatin1(regler)
                                               << QString::fromLatin1(getippt) << erwartet;
        };
        zeile("a whole number", "gewichtn", "92", 92.0F);
        zeile("a comma", "gewichtn", "62,5", 62.5F);
        zeile("a point", "gewichtn", "62.5", 62.5F);
        zeile("between two steps", "gewichtn", "62,3", 62.3F);
        zeile("a comma behind one digit", "groessen", "1,85", 1.85F);
        zeile("a point behind one digit", "groessen", "1.85", 1.85F);
        zeile("a unit behind it", "gewichtn", "92 kg", 92.0F);
        zeile("letters are no number", "gewichtn", "abc", 80.0F);
        zeile("letters around digits", "gewichtn", "x92y", 92.0F);
        zeile("nothing", "gewichtn", "", 80.0F);
        zeile("a dash", "gewichtn", "-", 80.0F);
        zeile("too little", "gewichtn", "7", 80.0F);
        zeile("the smallest", "gewichtn", "30", 30.0F);
        zeile("the largest", "gewichtn", "250", 250.0F);
        zeile("years are whole", "alter", "42", 42.0F);
        zeile("hours with a point", "sportmenge", "1.9", 1.9F);
        zeile("hours with a comma", "sportmenge", "1,9", 1.9F);
        zeile("thousands of millilitres", "zieher", "1500", 1500.0F);
        zeile("a point before three digits", "zieher", "1.500", 2.0F);
        zeile("a comma before three digits", "zieher", "1,500", 2.0F);
        zeile("half a millilitre is rounded", "zieher", "330,5", 331.0F);
        zeile("less than that is dropped", "zieher", "330.4", 330.0F);
        zeile("a comma and nothing behind it", "zieher", "330,", 330.0F);
        zeile("a second comma is not taken", "zieher", "1,5,0", 2.0F);
        zeile("half a year is rounded", "alter", "11.5", 12.0F);
    }
}

void TestRechnereingabe::numbersAsPeopleTypeThem()
{
    QFETCH(QLocale, sprache);
    QFETCH(QString, regler);
    QFETCH(QString, getippt);
    QLocale::setDefault(sprache);
    m_heim->einstellungen().setValue(QStringLiteral("Gewicht"), 80);
    oeffne();
    auto *schieber = r->koerperseite->findChild<Schieber *>(regler);
    if (schieber == nullptr) {
        m_fenster->controller().zeigeAnsicht(QStringLiteral("fünf"));
        r->sport->setStringValue(QStringLiteral("Karate"));
        r->welchersport(*r->sport);
        schieber = r->lebensweiseseite->findChild<Schieber *>(regler);
    }
    QCoreApplication::processEvents();
    QLineEdit *zeile = schieber->eingabe()->findChild<QLineEdit *>();
    schieber->eingabe()->setFocus();
    schieber->eingabe()->selectAll();
    QTest::keyClick(zeile, Qt::Key_Delete);
    QTest::keyClicks(zeile, getippt);
    QTest::keyClick(zeile, Qt::Key_Return);
    QTEST(schieber->floatValue(), "erwartet");
}

/// Enters every field of both tabs with the Tab key, presses Return in it, and goes on.
void TestRechnereingabe::gehDurchAlleFelder() const
{
    for (const QString &ansicht : {QStringLiteral("vier"), QStringLiteral("fünf")}) {
        m_fenster->controller().zeigeAnsicht(ansicht);
        QCoreApplication::processEvents();
        int felder = 0;
        const QWidget *seite = m_fenster->controller().DatenAnsicht->currentWidget();
        for (QWidget *feld : seite->findChildren<QWidget *>()) {
            if (feld->isVisible() && feld->isEnabled() && feld->focusPolicy() != Qt::NoFocus) {
                feld->setFocus(Qt::TabFocusReason);
                if (!feld->inherits("QAbstractButton")) {
                    QTest::keyClick(feld, Qt::Key_Return);
                }
                QTest::keyClick(feld, Qt::Key_Tab);
                ++felder;
            }
        }
        QVERIFY(felder >= 4);
    }
}

void TestRechnereingabe::lookingAroundAltersNothing()
{
    const std::pair<QString, double> gemerkt[] = {
        {QStringLiteral("Gewicht"), 300.25}, {QStringLiteral("Groesse"), 0.567},
        {QStringLiteral("Huefte"), 250.0},   {QStringLiteral("Taille"), 12.34},
        {QStringLiteral("metrik"), 1.7},     {QStringLiteral("Gewichtredukt"), 1.2},
        {QStringLiteral("Sport"), 611.0},    {QStringLiteral("Sportm"), 99.5},
    };
    for (const auto &[schluessel, zahl] : gemerkt) {
        m_heim->einstellungen().setValue(schluessel, zahl);
    }
    oeffne();
    gehDurchAlleFelder();
    QCOMPARE(r->gewichtn->floatValue(), 300.25F);
    QCOMPARE(r->groesse->floatValue(), 0.567F);
    QCOMPARE(r->hueftumfang->floatValue(), 250.0F);
    QCOMPARE(r->taillenumfang->floatValue(), 12.34F);
    QCOMPARE(r->alteranzeige->intValue(), 25);
    m_fenster.reset();
    m_heim->einstellungen().sync();
    for (const auto &[schluessel, zahl] : gemerkt) {
        QCOMPARE(m_heim->aufDerPlatte(schluessel).toDouble(), zahl);
    }
}

/// Other programs look for these lines in the settings' file.
void TestRechnereingabe::theKeysInTheFile()
{
    oeffne();
    Probefenster::tippeMenge(*r->gewichtn, QStringLiteral("80,5"));
    Probefenster::tippeMenge(*r->groessen, QStringLiteral("1,85"));
    Probefenster::tippeMenge(*r->taillen, QStringLiteral("71"));
    Probefenster::tippeMenge(*r->hueftn, QStringLiteral("86"));
    QTest::keyClick(r->metrikeinaus, Qt::Key_Space);
    QTest::keyClick(r->gewichtredu, Qt::Key_Space);
    m_fenster->controller().zeigeAnsicht(QStringLiteral("fünf"));
    r->sport->setFocus();
    r->sport->lineEdit()->selectAll();
    QTest::keyClicks(r->sport, QStringLiteral("Radfahren"));
    QTest::keyClick(r->sport, Qt::Key_Return);
    Probefenster::tippeMenge(*r->sportmenge, QStringLiteral("1,9"));
    m_heim->einstellungen().sync();

    QFile datei(m_heim->einstellungsdatei());
    QVERIFY(datei.open(QIODevice::ReadOnly));
    const QList<QByteArray> zeilen = datei.readAll().split('\n');
    const qsizetype abschnitt = zeilen.indexOf("[General]");
    QVERIFY(abschnitt >= 0);
    for (const char *zeile : {"Gewicht=80.5", "Groesse=1.85", "Taille=71", "Huefte=86", "metrik=1",
                              "Gewichtredukt=1", "Sport=570", "Sportm=1.9"}) {
        QVERIFY2(zeilen.indexOf(zeile) > abschnitt, zeile);
    }
}

QTEST_MAIN(TestRechnereingabe)
#include "TestRechnereingabe.moc"
