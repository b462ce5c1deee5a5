#include "Hinweisstreifen.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class TestHinweisstreifen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itIsHiddenWhileThereIsNothingToSay();
    void theNewestStandsAbove();
    void aNoticeTakesThePlaceOfTheOneBefore();
    void itKnowsWhatItHasToSay();
    void theSameWordsAgainLeaveTheRowAlone();
    void signsAreShownAsTheyAre();
    void aWordThatIsLongerThanALineIsBroken_data();
    void aWordThatIsLongerThanALineIsBroken();
    void theActionRunsOnceAndTheNoticeIsGone();
    void anActionMayShowTheNextNotice();
    void withoutAnActionThereIsNoButton();
    void closing_data();
    void closing();
    void anEscapeElsewhereClosesNothing();
    void onlyThreeStandThereAtOnce();
    void aNoticeGoesByItself();
    void aNoticeThatIsReadStays();
    void onlyAWarningCarriesTheWarningSign();

private:
    QStringList texte() const;
    template <typename Knopf>
    Knopf *knopf(const char *name, int stelle = 0) const
    {
        return sichtbare<Knopf>(name).value(stelle);
    }
    template <typename Feld>
    QList<Feld *> sichtbare(const char *name) const
    {
        QList<Feld *> felder = m_streifen->findChildren<Feld *>(QLatin1String(name));
        felder.removeIf([](const Feld *feld) { return !feld->isVisible(); });
        std::sort(felder.begin(), felder.end(), [this](const Feld *a, const Feld *b) {
            return a->mapTo(m_streifen, QPoint()).y() < b->mapTo(m_streifen, QPoint()).y();
        });
        return felder;
    }

    std::unique_ptr<QWidget> m_fenster;
    QLineEdit *m_feld = nullptr;
    Hinweisstreifen *m_streifen = nullptr;
};

void TestHinweisstreifen::init()
{
    m_fenster = std::make_unique<QWidget>();
    auto *anordnung = new QVBoxLayout(m_fenster.get());
    m_feld = new QLineEdit;
    m_streifen = new Hinweisstreifen;
    anordnung->addWidget(m_feld);
    anordnung->addStretch();
    anordnung->addWidget(m_streifen);
    m_fenster->resize(500, 300);
    m_fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
    m_feld->setFocus();
}

void TestHinweisstreifen::cleanup()
{
    m_fenster.reset();
}

QStringList TestHinweisstreifen::texte() const
{
    m_fenster->layout()->activate();
    m_streifen->layout()->activate();
    QStringList ergebnis;
    for (const QLabel *feld : sichtbare<QLabel>("hinweistext")) {
        ergebnis << feld->text();
    }
    return ergebnis;
}

void TestHinweisstreifen::itIsHiddenWhileThereIsNothingToSay()
{
    QVERIFY(m_streifen->isHidden());
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Es gibt etwas."_s});
    QVERIFY(m_streifen->isVisible());
    m_streifen->nimmZurueck(u"anderes"_s);
    QVERIFY(m_streifen->isVisible());
    m_streifen->nimmZurueck(u"a"_s);
    QVERIFY(m_streifen->isHidden());
}

void TestHinweisstreifen::theNewestStandsAbove()
{
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Erstes"_s});
    m_streifen->zeige({.kennung = u"b"_s, .text = u"Zweites"_s});
    QCOMPARE(texte(), (QStringList{u"Zweites"_s, u"Erstes"_s}));
}

void TestHinweisstreifen::aNoticeTakesThePlaceOfTheOneBefore()
{
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Erstes"_s});
    m_streifen->zeige({.kennung = u"b"_s, .text = u"Zweites"_s});
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Neues"_s});
    QCOMPARE(texte(), (QStringList{u"Neues"_s, u"Zweites"_s}));
}

/// One that waits for room counts too.
void TestHinweisstreifen::itKnowsWhatItHasToSay()
{
    const QStringList alle = {u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    for (const QString &eine : alle) {
        QVERIFY(!m_streifen->zeigt(eine));
        m_streifen->zeige({.kennung = eine, .text = u"Es gibt etwas."_s});
        QVERIFY(m_streifen->zeigt(eine));
    }
    QVERIFY(m_streifen->zeigt(u"a"_s)); // three stand in front of it
    m_streifen->nimmZurueck(u"a"_s);
    QVERIFY(!m_streifen->zeigt(u"a"_s));
    m_streifen->schliesse();
    QVERIFY(!m_streifen->zeigt(u"d"_s));
    QVERIFY(m_streifen->zeigt(u"b"_s));
}

void TestHinweisstreifen::theSameWordsAgainLeaveTheRowAlone()
{
    int erste = 0;
    int zweite = 0;
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Erstes"_s, .knopf = u"Mach"_s, .aktion = [&] {
                           ++erste;
                       }});
    auto *vorher = knopf<QPushButton>("hinweisknopf");
    vorher->setFocus();
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Erstes"_s, .knopf = u"Mach"_s, .aktion = [&] {
                           ++zweite;
                       }});
    QCOMPARE(knopf<QPushButton>("hinweisknopf"), vorher);
    QVERIFY(vorher->hasFocus());
    QTest::keyClick(vorher, Qt::Key_Space);
    QCOMPARE(erste, 0); // what is to be done may have changed all the same
    QCOMPARE(zweite, 1);
}

void TestHinweisstreifen::signsAreShownAsTheyAre()
{
    const QString text = u"„<b>Brot</b> & Butter“ ist gesichert."_s;
    m_streifen->zeige({.kennung = u"a"_s, .text = text});
    const QLabel *feld = sichtbare<QLabel>("hinweistext").value(0);
    QCOMPARE(feld->text(), text);
    QCOMPARE(feld->textFormat(), Qt::PlainText);
}

void TestHinweisstreifen::aWordThatIsLongerThanALineIsBroken_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("gezeigt");
    const QString dreissig(30, u'x');
    const QChar bruch(0x200B);
    QTest::newRow("30 letters stay whole") << dreissig << dreissig;
    QTest::newRow("after 30 letters") << dreissig + u"x"_s << dreissig + bruch + u"x"_s;
    QTest::newRow("twice") << dreissig + dreissig + u"x"_s
                           << dreissig + bruch + dreissig + bruch + u"x"_s;
    QTest::newRow("a blank begins anew") << dreissig + u" xx"_s << dreissig + u" xx"_s;
    QTest::newRow("a sign of two halves stays whole")
        << QString(29, u'x') + u"\U0001F34E"_s + u"x"_s
        << QString(29, u'x') + u"\U0001F34E"_s + bruch + u"x"_s;
}

void TestHinweisstreifen::aWordThatIsLongerThanALineIsBroken()
{
    QFETCH(QString, text);
    QFETCH(QString, gezeigt);
    m_streifen->zeige({.kennung = u"a"_s, .text = text});
    QCOMPARE(sichtbare<QLabel>("hinweistext").value(0)->text(), gezeigt);
    QCOMPARE(m_streifen->hinweise().constFirst().text, text);
}

void TestHinweisstreifen::theActionRunsOnceAndTheNoticeIsGone()
{
    int gelaufen = 0;
    bool schonWeg = false;
    QSignalSpy geschlossen(m_streifen, &Hinweisstreifen::geschlossen);
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Weg?"_s, .knopf = u"Zeigen"_s, .aktion = [&] {
                           ++gelaufen;
                           schonWeg = m_streifen->hinweise().isEmpty();
                       }});
    QTest::mouseClick(knopf<QPushButton>("hinweisknopf"), Qt::LeftButton);
    QCOMPARE(gelaufen, 1);
    QVERIFY(schonWeg);
    QVERIFY(m_streifen->isHidden());
    QCOMPARE(geschlossen.size(), 0);
}

void TestHinweisstreifen::anActionMayShowTheNextNotice()
{
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Erstes"_s, .knopf = u"Zeigen"_s, .aktion = [&] {
                           m_streifen->zeige({.kennung = u"a"_s, .text = u"Danach"_s});
                       }});
    QTest::mouseClick(knopf<QPushButton>("hinweisknopf"), Qt::LeftButton);
    QCOMPARE(texte(), QStringList{u"Danach"_s});
}

void TestHinweisstreifen::withoutAnActionThereIsNoButton()
{
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Nur gesagt"_s});
    QVERIFY(knopf<QPushButton>("hinweisknopf") == nullptr);
    QVERIFY(knopf<QToolButton>("hinweiskreuz") != nullptr);
}

void TestHinweisstreifen::closing_data()
{
    QTest::addColumn<QString>("wie");
    QTest::newRow("its cross") << u"kreuz"_s;
    QTest::newRow("Shift+Escape from the search box") << u"umschalt"_s;
    QTest::newRow("Escape in the strip") << u"escape"_s;
}

void TestHinweisstreifen::closing()
{
    QFETCH(QString, wie);
    QSignalSpy geschlossen(m_streifen, &Hinweisstreifen::geschlossen);
    m_streifen->zeige({.kennung = u"alt"_s, .text = u"Älteres"_s});
    m_streifen->zeige({.kennung = u"neu"_s, .text = u"Neueres"_s});
    QCOMPARE(texte().size(), 2);
    auto *kreuz = knopf<QToolButton>("hinweiskreuz");
    if (wie == u"kreuz"_s) {
        QTest::mouseClick(kreuz, Qt::LeftButton);
    } else if (wie == u"umschalt"_s) {
        QTest::keyClick(m_feld, Qt::Key_Escape, Qt::ShiftModifier);
    } else {
        kreuz->setFocus();
        QTest::keyClick(kreuz, Qt::Key_Escape);
    }
    QCOMPARE(texte(), QStringList{u"Älteres"_s});
    QCOMPARE(geschlossen.size(), 1);
    QCOMPARE(geschlossen.first().first().toString(), u"neu"_s);
}

void TestHinweisstreifen::anEscapeElsewhereClosesNothing()
{
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Bleibt"_s});
    QTest::keyClick(m_feld, Qt::Key_Escape);
    QCOMPARE(texte(), QStringList{u"Bleibt"_s});
}

void TestHinweisstreifen::onlyThreeStandThereAtOnce()
{
    for (int i = 1; i <= 5; ++i) {
        m_streifen->zeige({.kennung = QString::number(i), .text = u"Nummer %1"_s.arg(i)});
    }
    QCOMPARE(texte(), (QStringList{u"Nummer 5"_s, u"Nummer 4"_s, u"Nummer 3"_s}));
    m_streifen->nimmZurueck(u"4"_s);
    QCOMPARE(texte(), (QStringList{u"Nummer 5"_s, u"Nummer 3"_s, u"Nummer 2"_s}));
    m_streifen->nimmZurueck(u"1"_s); // it waited, and is settled before it was said
    m_streifen->nimmZurueck(u"5"_s);
    m_streifen->nimmZurueck(u"3"_s);
    QCOMPARE(texte(), QStringList{u"Nummer 2"_s});
}

void TestHinweisstreifen::aNoticeGoesByItself()
{
    m_streifen->zeige({.kennung = u"bleibt"_s, .text = u"Bleibt"_s});
    m_streifen->zeige({.kennung = u"geht"_s, .text = u"Geht"_s, .dauer = 1});
    QCOMPARE(m_streifen->hinweise().size(), 2);
    QTRY_COMPARE(texte(), QStringList{u"Bleibt"_s});
}

void TestHinweisstreifen::aNoticeThatIsReadStays()
{
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Geht"_s, .knopf = u"Zeigen"_s, .dauer = 50});
    auto *zeigen = knopf<QPushButton>("hinweisknopf");
    zeigen->setFocus();
    QVERIFY(zeigen->hasFocus());
    QTest::qWait(200); // far more than its time
    QCOMPARE(texte(), QStringList{u"Geht"_s});
}

void TestHinweisstreifen::onlyAWarningCarriesTheWarningSign()
{
    const auto zeichen = [this] {
        for (const QLabel *feld : m_streifen->findChildren<QLabel *>()) {
            if (feld->isVisible() && !feld->pixmap(Qt::ReturnByValue).isNull()) {
                return std::pair(feld->accessibleName(), feld->pixmap(Qt::ReturnByValue).toImage());
            }
        }
        return std::pair<QString, QImage>();
    };
    m_streifen->zeige({.kennung = u"a"_s, .text = u"Gesichert."_s});
    const auto hinweis = zeichen();
    QCOMPARE(hinweis.first, u"Hinweis"_s);
    m_streifen->nimmZurueck(u"a"_s);
    m_streifen->zeige({.kennung = u"b"_s, .text = u"Nicht gesichert!"_s, .warnung = true});
    const auto warnung = zeichen();
    QCOMPARE(warnung.first, u"Warnung"_s);
    QVERIFY(warnung.second != hinweis.second);
}

QTEST_MAIN(TestHinweisstreifen)
#include "TestHinweisstreifen.moc"
