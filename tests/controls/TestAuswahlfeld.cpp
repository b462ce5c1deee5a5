#include "Auswahlfeld.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

class TestAuswahlfeld : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itHoldsWhatItWasGiven();
    void settingRunsNoAction();
    void anEntryIsChosenByKey();
    void aTypedTextCountsWithReturn_data();
    void aTypedTextCountsWithReturn();
    void aTypedTextCountsWhenTheFieldIsLeft();
    void anEntryInOtherCaseIsTaken_data();
    void anEntryInOtherCaseIsTaken();
    void aTextIsReportedOnce();
    void entriesThatContainTheTextAreOffered();
    void anOfferIsPickedByKey();
    void anOfferIsPickedByMouse();
    void theSameEntryCanBePickedAgain();
    void anOfferThatIsNotPickedIsNotTaken();
    void anEmptiedFieldCounts();
    void anEmptyEntryIsListedInWords();
};

namespace {

/// A shown and focused chooser of drinks in which one can type.
class Getraenkefeld
{
public:
    Getraenkefeld() : gemeldet(&feld, &Auswahlfeld::betaetigt)
    {
        feld.setFreitext(true);
        feld.setAuswahl(QStringLiteral("|Apfelwein|Pils|Wodka|Wodka Lemon"));
        feld.setStringValue(QStringLiteral("Pils"));
        feld.show();
        feld.activateWindow();
        feld.setFocus();
        feld.lineEdit()->selectAll();
    }

    QStringList angebot() const
    {
        QStringList texte;
        const QAbstractItemView *liste = feld.completer()->popup();
        for (int zeile = 0; liste->isVisible() && zeile < liste->model()->rowCount(); ++zeile) {
            texte << liste->model()->index(zeile, 0).data().toString();
        }
        return texte;
    }

    Auswahlfeld feld;
    QSignalSpy gemeldet;
};

} // namespace

void TestAuswahlfeld::itHoldsWhatItWasGiven()
{
    Getraenkefeld probe;
    for (const QString &text :
         {QStringLiteral("Wodka"), QStringLiteral("wodka"), QStringLiteral("Met"), QString()}) {
        probe.feld.setStringValue(text);
        QCOMPARE(probe.feld.stringValue(), text);
        QCOMPARE(probe.feld.currentText(), text);
    }
}

void TestAuswahlfeld::settingRunsNoAction()
{
    Getraenkefeld probe;
    probe.feld.setStringValue(QStringLiteral("Wodka"));
    probe.feld.clearFocus();
    QCOMPARE(probe.gemeldet.count(), 0);
}

void TestAuswahlfeld::anEntryIsChosenByKey()
{
    Getraenkefeld probe;
    QTest::keyClick(&probe.feld, Qt::Key_Down);
    QCOMPARE(probe.feld.stringValue(), QStringLiteral("Wodka"));
    QCOMPARE(probe.gemeldet.count(), 1);
}

void TestAuswahlfeld::aTypedTextCountsWithReturn_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("an entry") << QStringLiteral("Wodka");
    QTest::newRow("the beginning of an entry stays as typed") << QStringLiteral("Wod");
    QTest::newRow("no entry") << QStringLiteral("cider");
    QTest::newRow("the entry that stood there") << QStringLiteral("Pils");
}

void TestAuswahlfeld::aTypedTextCountsWithReturn()
{
    QFETCH(QString, text);
    Getraenkefeld probe;
    QTest::keyClicks(&probe.feld, text);
    QTest::keyClick(&probe.feld, Qt::Key_Return);
    QCOMPARE(probe.feld.stringValue(), text);
    QCOMPARE(probe.feld.currentText(), text);
    QCOMPARE(probe.gemeldet.count(), 1);
}

void TestAuswahlfeld::aTypedTextCountsWhenTheFieldIsLeft()
{
    Getraenkefeld probe;
    QVERIFY(QTest::qWaitForWindowActive(&probe.feld));
    QTest::keyClicks(&probe.feld, QStringLiteral("cider"));
    QCOMPARE(probe.gemeldet.count(), 0);
    probe.feld.clearFocus();
    QCOMPARE(probe.feld.stringValue(), QStringLiteral("cider"));
    QCOMPARE(probe.gemeldet.count(), 1);
}

void TestAuswahlfeld::anEntryInOtherCaseIsTaken_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QString>("name");
    QTest::newRow("small letters") << QStringLiteral("wodka") << QStringLiteral("Wodka");
    QTest::newRow("capitals") << QStringLiteral("WODKA LEMON") << QStringLiteral("Wodka Lemon");
    QTest::newRow("the entry that stood there") << QStringLiteral("pils") << QStringLiteral("Pils");
    QTest::newRow("a name that is not listed")
        << QStringLiteral("CIDER") << QStringLiteral("cider");
    QTest::newRow("the listed one before the other")
        << QStringLiteral("APFELWEIN") << QStringLiteral("Apfelwein");
    QTest::newRow("the other as it is spelled")
        << QStringLiteral("apfelwein") << QStringLiteral("apfelwein");
    QTest::newRow("no name") << QStringLiteral("wod") << QStringLiteral("wod");
}

void TestAuswahlfeld::anEntryInOtherCaseIsTaken()
{
    QFETCH(QString, getippt);
    QFETCH(QString, name);
    for (const bool verlassen : {false, true}) {
        Getraenkefeld probe;
        probe.feld.setWeitereNamen({QStringLiteral("cider"), QStringLiteral("apfelwein")});
        QVERIFY(QTest::qWaitForWindowActive(&probe.feld));
        QTest::keyClicks(&probe.feld, getippt);
        QCOMPARE(probe.feld.stringValue(), getippt); // not while it is being typed
        if (verlassen) {
            probe.feld.completer()->popup()->hide(); // a click beside it closes it
            probe.feld.clearFocus();
        } else {
            QTest::keyClick(&probe.feld, Qt::Key_Return);
        }
        QCOMPARE(probe.feld.stringValue(), name);
        QCOMPARE(probe.feld.currentText(), name);
        QCOMPARE(probe.gemeldet.count(), 1);
    }
}

void TestAuswahlfeld::aTextIsReportedOnce()
{
    Getraenkefeld probe;
    QVERIFY(QTest::qWaitForWindowActive(&probe.feld));
    QTest::keyClicks(&probe.feld, QStringLiteral("Wodka"));
    QTest::keyClick(&probe.feld, Qt::Key_Return);
    QTest::keyClick(&probe.feld, Qt::Key_Return);
    probe.feld.clearFocus();
    QCOMPARE(probe.gemeldet.count(), 1);
}

void TestAuswahlfeld::entriesThatContainTheTextAreOffered()
{
    Getraenkefeld probe;
    QTest::keyClicks(&probe.feld, QStringLiteral("wo"));
    const QStringList beide = {QStringLiteral("Wodka"), QStringLiteral("Wodka Lemon")};
    QCOMPARE(probe.angebot(), beide);
    QTest::keyClick(&probe.feld, Qt::Key_Backspace);
    const QStringList mitW = {QStringLiteral("Apfelwein"), QStringLiteral("Wodka"),
                              QStringLiteral("Wodka Lemon")};
    QCOMPARE(probe.angebot(), mitW);
    QTest::keyClicks(&probe.feld, QStringLiteral("x"));
    QCOMPARE(probe.angebot(), QStringList());
}

void TestAuswahlfeld::anOfferIsPickedByKey()
{
    Getraenkefeld probe;
    QTest::keyClicks(&probe.feld, QStringLiteral("lem"));
    QTest::keyClick(probe.feld.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(probe.feld.completer()->popup(), Qt::Key_Return);
    QCOMPARE(probe.feld.stringValue(), QStringLiteral("Wodka Lemon"));
    QCOMPARE(probe.feld.currentText(), QStringLiteral("Wodka Lemon"));
    QCOMPARE(probe.gemeldet.count(), 1);
}

void TestAuswahlfeld::anOfferIsPickedByMouse()
{
    Getraenkefeld probe;
    QTest::keyClicks(&probe.feld, QStringLiteral("wo"));
    QAbstractItemView *liste = probe.feld.completer()->popup();
    const QPoint ort = liste->visualRect(liste->model()->index(1, 0)).center();
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ort);
    QCOMPARE(probe.feld.stringValue(), QStringLiteral("Wodka Lemon"));
    QCOMPARE(probe.gemeldet.count(), 1);
    QVERIFY(!liste->isVisible());
}

void TestAuswahlfeld::theSameEntryCanBePickedAgain()
{
    Getraenkefeld probe;
    QTest::keyClicks(&probe.feld, QStringLiteral("il"));
    QTest::keyClick(probe.feld.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(probe.feld.completer()->popup(), Qt::Key_Return);
    QCOMPARE(probe.feld.stringValue(), QStringLiteral("Pils"));
    QCOMPARE(probe.gemeldet.count(), 1);
}

void TestAuswahlfeld::anOfferThatIsNotPickedIsNotTaken()
{
    Getraenkefeld probe;
    QTest::keyClicks(&probe.feld, QStringLiteral("wodka l"));
    QTest::keyClick(probe.feld.completer()->popup(), Qt::Key_Return);
    QCOMPARE(probe.feld.stringValue(), QStringLiteral("wodka l"));
    QCOMPARE(probe.gemeldet.count(), 1);
}

void TestAuswahlfeld::anEmptiedFieldCounts()
{
    Getraenkefeld probe;
    QTest::keyClick(&probe.feld, Qt::Key_Delete);
    QTest::keyClick(&probe.feld, Qt::Key_Return);
    QCOMPARE(probe.feld.stringValue(), QString());
    QVERIFY(!probe.gemeldet.isEmpty());
}

void TestAuswahlfeld::anEmptyEntryIsListedInWords()
{
    Getraenkefeld getraenk;
    Auswahlfeld &feld = getraenk.feld;
    const auto ersteZeile = [&feld] {
        feld.showPopup();
        feld.view()->setCurrentIndex(feld.model()->index(2, 0));
        const QModelIndex leer = feld.model()->index(0, 0);
        QImage bild = feld.view()->viewport()->grab(feld.view()->visualRect(leer)).toImage();
        feld.hidePopup();
        return bild;
    };
    const QImage ohneWorte = ersteZeile();
    feld.lineEdit()->setPlaceholderText(QStringLiteral("kein Getränk"));
    QVERIFY(ersteZeile() != ohneWorte);
    QCOMPARE(feld.itemText(0), QString()); // what it stands for stays empty
}

QTEST_MAIN(TestAuswahlfeld)
#include "TestAuswahlfeld.moc"
