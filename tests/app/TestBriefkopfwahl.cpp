// The letterhead in the window of the settings.

#include "Briefkopfwahl.h"

#include "Einstellungsfenster.h"
#include "Probefenster.h"
#include "Sprache.h"

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

class TestBriefkopfwahl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whatIsTypedHoldsAtOnce();
    void itShowsWhatIsKept();
    void aLogoIsChosenShownAndTakenAway();
    void whatIsNoPictureIsToldAndChangesNothing();
    void aLogoThatIsGoneIsTold();
    void withoutADoorNothingIsChosen();
    void theTabKeyLeavesTheAddress();
    void everyPartHasAName();

private:
    void oeffne();
    template <typename Teil>
    Teil *teil(const char *name) const
    {
        return m_fenster->controller().Hauptfenster->findChild<Teil *>(QLatin1String(name));
    }
    Briefkopfablage ablage() const
    {
        return {m_heim->einstellungen(), m_heim->tueren().datenordner};
    }
    QString bild() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Sprache> m_sprache;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestBriefkopfwahl::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle({});
    m_sprache = std::make_unique<Sprache>(u"de"_s);
}

void TestBriefkopfwahl::cleanup()
{
    m_fenster.reset();
    m_sprache.reset();
    m_heim.reset();
}

void TestBriefkopfwahl::oeffne()
{
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    Q_EMIT m_fenster->controller().einstellungenGewuenscht();
    QVERIFY(QTest::qWaitForWindowActive(
        m_fenster->controller().Hauptfenster->findChild<Einstellungsfenster *>()));
}

QString TestBriefkopfwahl::bild() const
{
    QImage rot(600, 200, QImage::Format_RGB32);
    rot.fill(Qt::red);
    rot.save(m_heim->pfad(u"logo.png"_s));
    return m_heim->pfad(u"logo.png"_s);
}

void TestBriefkopfwahl::whatIsTypedHoldsAtOnce()
{
    oeffne();
    QTest::keyClicks(teil<QLineEdit>("praxisname"), u"Praxis Muster"_s);
    QTest::keyClicks(teil<QPlainTextEdit>("praxisanschrift"), u"Weg 1"_s);
    QTest::keyClick(teil<QPlainTextEdit>("praxisanschrift"), Qt::Key_Return);
    QTest::keyClicks(teil<QPlainTextEdit>("praxisanschrift"), u"Ort"_s);
    QCOMPARE(ablage().lies().name, u"Praxis Muster"_s);
    QCOMPARE(ablage().lies().anschrift, QStringList({u"Weg 1"_s, u"Ort"_s}));
}

void TestBriefkopfwahl::itShowsWhatIsKept()
{
    ablage().setzeName(u"Praxis"_s);
    ablage().setzeAnschrift(u"Weg 1\nOrt"_s);
    QCOMPARE(ablage().uebernimmLogo(bild()), std::optional<Briefkopfablage::Hindernis>());
    oeffne();
    QCOMPARE(teil<QLineEdit>("praxisname")->text(), u"Praxis"_s);
    QCOMPARE(teil<QPlainTextEdit>("praxisanschrift")->toPlainText(), u"Weg 1\nOrt"_s);
    // 600 x 200 in 170 x 56 is 168 x 56.
    QCOMPARE(teil<QLabel>("logobild")->pixmap(Qt::ReturnByValue).deviceIndependentSize(),
             QSizeF(168, 56));
    QVERIFY(!teil<QLabel>("logoworte")->isVisible());
}

void TestBriefkopfwahl::aLogoIsChosenShownAndTakenAway()
{
    Dateifrage gefragt;
    m_heim->waehleDatei = [&](QWidget *, const Dateifrage &frage, const auto &antwort) {
        gefragt = frage;
        antwort(bild());
    };
    oeffne();
    QVERIFY(!teil<QPushButton>("logoentfernen")->isEnabled());
    QVERIFY(teil<QLabel>("logobild")->pixmap(Qt::ReturnByValue).isNull());
    QTest::mouseClick(teil<QPushButton>("logowaehlen"), Qt::LeftButton);
    QCOMPARE(gefragt.zweck, Dateifrage::Zweck::Lesen);
    QVERIFY(gefragt.arten.contains(u"*.svg"_s));
    QCOMPARE(ablage().lies().logo.size(), QSize(600, 200));
    QVERIFY(!teil<QLabel>("logobild")->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(teil<QLabel>("logobild")->accessibleName(), u"Das Logo, wie es gedruckt wird"_s);
    QTest::mouseClick(teil<QPushButton>("logoentfernen"), Qt::LeftButton);
    QVERIFY(!ablage().hatLogo());
    QVERIFY(teil<QLabel>("logobild")->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(teil<QLabel>("logobild")->accessibleName(), u"Kein Logo"_s);
    QVERIFY(!teil<QPushButton>("logoentfernen")->isEnabled());
}

void TestBriefkopfwahl::whatIsNoPictureIsToldAndChangesNothing()
{
    QCOMPARE(ablage().uebernimmLogo(bild()), std::optional<Briefkopfablage::Hindernis>());
    QString path = m_heim->tabelle(); // a file, but no picture
    m_heim->waehleDatei = [&](QWidget *, const Dateifrage &, const auto &antwort) {
        antwort(path);
    };
    oeffne();
    QTest::mouseClick(teil<QPushButton>("logowaehlen"), Qt::LeftButton);
    QVERIFY(teil<QLabel>("logoworte")->isVisible());
    QCOMPARE(teil<QLabel>("logoworte")->text(), u"Das ist kein Bild in PNG, JPEG oder SVG."_s);
    QVERIFY(!teil<QLabel>("logobild")->pixmap(Qt::ReturnByValue).isNull());
    path = bild();
    QTest::mouseClick(teil<QPushButton>("logowaehlen"), Qt::LeftButton);
    QVERIFY(!teil<QLabel>("logoworte")->isVisible());
}

void TestBriefkopfwahl::aLogoThatIsGoneIsTold()
{
    QCOMPARE(ablage().uebernimmLogo(bild()), std::optional<Briefkopfablage::Hindernis>());
    QVERIFY(QFile::remove(ablage().logodatei()));
    oeffne();
    QVERIFY(teil<QLabel>("logoworte")->text().startsWith(u"Das gesicherte Logo ist nicht mehr"_s));
    QTest::mouseClick(teil<QPushButton>("logoentfernen"), Qt::LeftButton);
    QVERIFY(!teil<QLabel>("logoworte")->isVisible());
}

void TestBriefkopfwahl::withoutADoorNothingIsChosen()
{
    oeffne();
    QTest::mouseClick(teil<QPushButton>("logowaehlen"), Qt::LeftButton);
    QVERIFY(!ablage().hatLogo());
}

void TestBriefkopfwahl::theTabKeyLeavesTheAddress()
{
    oeffne();
    teil<QPlainTextEdit>("praxisanschrift")->setFocus();
    m_fenster->controller().Hauptfenster->findChild<Einstellungsfenster *>()->activateWindow();
    QTRY_VERIFY(teil<QPlainTextEdit>("praxisanschrift")->hasFocus());
    QTest::keyClick(teil<QPlainTextEdit>("praxisanschrift"), Qt::Key_Tab);
    QVERIFY2(teil<QPushButton>("logowaehlen")->hasFocus(),
             qPrintable(QApplication::focusWidget()->objectName()));
    QVERIFY(teil<QPlainTextEdit>("praxisanschrift")->toPlainText().isEmpty());
}

/// Those who can't see the labels hear what each field is.
void TestBriefkopfwahl::everyPartHasAName()
{
    oeffne();
    for (const char *name : {"praxisname", "praxisanschrift"}) {
        bool beschriftet = false;
        for (const auto *label : m_fenster->controller().Hauptfenster->findChildren<QLabel *>()) {
            beschriftet |= label->buddy() == teil<QWidget>(name);
        }
        QVERIFY2(beschriftet, name);
    }
}

QTEST_MAIN(TestBriefkopfwahl)
#include "TestBriefkopfwahl.moc"
