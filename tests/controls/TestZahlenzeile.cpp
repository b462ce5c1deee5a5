#include "Schieber.h"
#include "Textfeld.h"

#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLocale>
#include <QStyleHints>
#include <QTest>
#include <QVBoxLayout>

/// Every field for numbers at the mouse and the Tab key.
class TestZahlenzeile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fenster.reset(); }
    void aClickTakesTheWholeNumber_data() { alleFelder(); }
    void aClickTakesTheWholeNumber();
    void aSecondClickSetsTheCursor_data() { alleFelder(); }
    void aSecondClickSetsTheCursor();
    void aDoubleClickTakesTheWholeNumber_data() { alleFelder(); }
    void aDoubleClickTakesTheWholeNumber();
    void aHandThatShakesTakesTheWholeNumber_data() { alleFelder(); }
    void aHandThatShakesTakesTheWholeNumber();
    void theMouseSelectsAPartOnceTheCursorIsSet();
    void theTabKeyTakesTheWholeNumber_data() { alleFelder(); }
    void theTabKeyTakesTheWholeNumber();
    void afterReturnTheNextDigitsAreAnotherNumber_data();
    void afterReturnTheNextDigitsAreAnotherNumber();
    void aFieldForOtherTextsSetsTheCursorAtOnce();
    void everyFieldForNumbersSaysHowTheyAreTyped();

private:
    static void alleFelder();
    QLineEdit *zeile(const QString &feld) const;
    void betrete(const QString &feld, Qt::FocusReason grund) const;
    static QPoint ortVor(const QLineEdit &zeile, int stelle);

    std::unique_ptr<QWidget> m_fenster;
    QLineEdit *m_andere = nullptr;
    Textfeld *m_gezeigt = nullptr;
    Textfeld *m_getippt = nullptr;
    Textfeld *m_name = nullptr;
    Schieber *m_schieber = nullptr;
};

void TestZahlenzeile::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_fenster = std::make_unique<QWidget>();
    auto *anordnung = new QVBoxLayout(m_fenster.get());
    m_andere = new QLineEdit;
    m_gezeigt = new Textfeld;
    m_getippt = new Textfeld;
    m_name = new Textfeld;
    m_schieber = new Schieber;
    for (QWidget *feld :
         std::initializer_list<QWidget *>{m_andere, m_gezeigt, m_getippt, m_name, m_schieber}) {
        anordnung->addWidget(feld);
    }
    m_gezeigt->setEditable(true);
    m_gezeigt->setDecimals(1);
    m_gezeigt->setUnit(QStringLiteral("g"));
    m_gezeigt->setDoubleValue(8.2);
    m_getippt->setEditable(true);
    m_getippt->setNurZahlen(true);
    m_getippt->setStringValue(QStringLiteral("8,2"));
    m_name->setEditable(true);
    m_name->setStringValue(QStringLiteral("8,2"));
    m_schieber->setDecimals(1);
    m_schieber->setUnit(QStringLiteral("kg"));
    m_schieber->setMaximumValue(250);
    m_schieber->setDoubleValue(8.2);
    m_fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
    m_andere->setFocus();
    QCoreApplication::processEvents();
}

void TestZahlenzeile::alleFelder()
{
    QTest::addColumn<QString>("feld");
    QTest::newRow("a value with its unit") << QStringLiteral("gezeigt");
    QTest::newRow("a number as it was typed") << QStringLiteral("getippt");
    QTest::newRow("the number beside a slider") << QStringLiteral("schieber");
}

QLineEdit *TestZahlenzeile::zeile(const QString &feld) const
{
    if (feld == QStringLiteral("schieber")) {
        return m_schieber->eingabe()->findChild<QLineEdit *>();
    }
    return feld == QStringLiteral("gezeigt") ? m_gezeigt : m_getippt;
}

void TestZahlenzeile::betrete(const QString &feld, Qt::FocusReason grund) const
{
    QLineEdit *ziel = zeile(feld);
    (ziel->focusProxy() != nullptr ? ziel->focusProxy() : ziel)->setFocus(grund);
}

/// Where a click sets the cursor before this character.
QPoint TestZahlenzeile::ortVor(const QLineEdit &zeile, int stelle)
{
    for (int x = 0; x < zeile.width(); ++x) {
        const QPoint ort(x, zeile.height() / 2);
        if (const_cast<QLineEdit &>(zeile).cursorPositionAt(ort) == stelle) {
            return ort;
        }
    }
    return {};
}

void TestZahlenzeile::aClickTakesTheWholeNumber()
{
    QFETCH(QString, feld);
    QLineEdit *ziel = zeile(feld);
    QTest::mouseClick(ziel, Qt::LeftButton, {}, ortVor(*ziel, 2));
    QCOMPARE(ziel->selectedText(), QStringLiteral("8,2"));
    QTest::keyClicks(ziel, QStringLiteral("94"));
    QVERIFY2(ziel->text().startsWith(QStringLiteral("94")) && !ziel->text().contains(u'8') &&
                 !ziel->text().contains(u'2'),
             qPrintable(ziel->text()));
}

void TestZahlenzeile::aSecondClickSetsTheCursor()
{
    QFETCH(QString, feld);
    QLineEdit *ziel = zeile(feld);
    QTest::mouseClick(ziel, Qt::LeftButton, {}, ortVor(*ziel, 2));
    QTest::mouseClick(ziel, Qt::LeftButton, {}, ortVor(*ziel, 1));
    QVERIFY(!ziel->hasSelectedText());
    QTest::keyClicks(ziel, QStringLiteral("0"));
    QVERIFY2(ziel->text().startsWith(QStringLiteral("80,2")), qPrintable(ziel->text()));
}

void TestZahlenzeile::aDoubleClickTakesTheWholeNumber()
{
    QFETCH(QString, feld);
    QLineEdit *ziel = zeile(feld);
    QTest::mouseClick(ziel, Qt::LeftButton, {}, ortVor(*ziel, 1));
    QTest::mouseClick(ziel, Qt::LeftButton, {}, ortVor(*ziel, 1));
    QTest::mouseDClick(ziel, Qt::LeftButton, {}, ortVor(*ziel, 1));
    QCOMPARE(ziel->selectedText(), QStringLiteral("8,2"));
    QTest::keyClicks(ziel, QStringLiteral("9"));
    QVERIFY2(ziel->text().startsWith(u'9') && !ziel->text().contains(u'2'),
             qPrintable(ziel->text()));
}

void TestZahlenzeile::aHandThatShakesTakesTheWholeNumber()
{
    QFETCH(QString, feld);
    QLineEdit *ziel = zeile(feld);
    QTest::mousePress(ziel, Qt::LeftButton, {}, ortVor(*ziel, 1));
    QTest::mouseMove(ziel, ortVor(*ziel, 2));
    QTest::mouseRelease(ziel, Qt::LeftButton, {}, ortVor(*ziel, 2));
    QCOMPARE(ziel->selectedText(), QStringLiteral("8,2"));
}

void TestZahlenzeile::theMouseSelectsAPartOnceTheCursorIsSet()
{
    QTest::mouseClick(m_gezeigt, Qt::LeftButton, {}, ortVor(*m_gezeigt, 1));
    QTest::mousePress(m_gezeigt, Qt::LeftButton, {}, ortVor(*m_gezeigt, 0));
    QTest::mouseMove(m_gezeigt, ortVor(*m_gezeigt, 1));
    QTest::mouseRelease(m_gezeigt, Qt::LeftButton, {}, ortVor(*m_gezeigt, 1));
    QCOMPARE(m_gezeigt->selectedText(), QStringLiteral("8"));
}

void TestZahlenzeile::theTabKeyTakesTheWholeNumber()
{
    QFETCH(QString, feld);
    betrete(feld, Qt::TabFocusReason);
    QCOMPARE(zeile(feld)->selectedText(), QStringLiteral("8,2"));
    QTest::keyClicks(zeile(feld), QStringLiteral("5"));
    QVERIFY2(zeile(feld)->text().startsWith(u'5') && !zeile(feld)->text().contains(u'2'),
             qPrintable(zeile(feld)->text()));
}

void TestZahlenzeile::afterReturnTheNextDigitsAreAnotherNumber_data()
{
    QTest::addColumn<QString>("feld");
    QTest::newRow("a value with its unit") << QStringLiteral("gezeigt");
    QTest::newRow("the number beside a slider") << QStringLiteral("schieber");
}

void TestZahlenzeile::afterReturnTheNextDigitsAreAnotherNumber()
{
    QFETCH(QString, feld);
    QLineEdit *ziel = zeile(feld);
    QTest::mouseClick(ziel, Qt::LeftButton, {}, ortVor(*ziel, 2));
    QTest::keyClicks(ziel, QStringLiteral("30"));
    QTest::keyClick(ziel, Qt::Key_Return);
    QTRY_COMPARE(ziel->selectedText(), QStringLiteral("30,0"));
    QTest::keyClicks(ziel, QStringLiteral("5"));
    QTest::keyClick(ziel, Qt::Key_Return);
    QCOMPARE(feld == QStringLiteral("schieber") ? m_schieber->doubleValue()
                                                : m_gezeigt->doubleValue(),
             5.0);
}

void TestZahlenzeile::aFieldForOtherTextsSetsTheCursorAtOnce()
{
    QTest::mouseClick(m_name, Qt::LeftButton, {}, ortVor(*m_name, 1));
    QVERIFY(!m_name->hasSelectedText());
    QCOMPARE(m_name->cursorPosition(), 1);
    m_gezeigt->setEditable(false);
    QTest::mouseClick(m_gezeigt, Qt::LeftButton, {}, ortVor(*m_gezeigt, 1));
    QVERIFY(!m_gezeigt->hasSelectedText());
}

void TestZahlenzeile::everyFieldForNumbersSaysHowTheyAreTyped()
{
    const QString hinweis = QStringLiteral("Komma und Punkt trennen beide die Nachkommastellen");
    QVERIFY(m_gezeigt->toolTip().startsWith(hinweis));
    QVERIFY(m_getippt->toolTip().startsWith(hinweis));
    QVERIFY(m_schieber->eingabe()->toolTip().startsWith(hinweis));
    QCOMPARE(m_name->toolTip(), QString());
    m_gezeigt->setEditable(false); // nothing can be typed any more
    QCOMPARE(m_gezeigt->toolTip(), QString());
    m_gezeigt->setToolTip(QStringLiteral("Eiweiß"));
    m_gezeigt->setEditable(true);
    QCOMPARE(m_gezeigt->toolTip(), QStringLiteral("Eiweiß"));
}

QTEST_MAIN(TestZahlenzeile)
#include "TestZahlenzeile.moc"
