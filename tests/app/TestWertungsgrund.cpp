#include "Auskunftsprobe.h"
#include "Probefenster.h"

#include "Lebensmittelbestand.h"
#include "Wertungsauskunft.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

using namespace Qt::StringLiterals;
using enum Naehrwert;

/// Why a food is rated as it is: what the mouse, the keyboard and a screen reader get to know.
class TestWertungsgrund : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theMouseThatRestsSeesTheReason();
    void aReasonIsInTheLanguageOfTheWindows_data();
    void aReasonIsInTheLanguageOfTheWindows();
    void theWayToTheFoodDecidesWhoseRatingItIs_data();
    void theWayToTheFoodDecidesWhoseRatingItIs();
    void anAmountShowsTheFoodOfTheRow();
    void whatWasSavedIsTheUsersOwn_data();
    void whatWasSavedIsTheUsersOwn();
    void withoutAReasonThereIsNoToolTip_data();
    void withoutAReasonThereIsNoToolTip();
    void whileAFoodIsTypedInNothingIsExplained();
    void anEmptyTableExplainsNothing();
    void theTabKeyGoesFromRatingToRating();
    void theKeyboardThatRestsSeesTheReason();
    void theFieldWithTheFocusIsFramed_data();
    void theFieldWithTheFocusIsFramed();
    void theTextGoes_data();
    void theTextGoes();
    void escapeIsLeftToOthersWhereThereIsNoText();
    void theMousesTextGoesWithItsFood();
    void aLongTextIsWrapped();
    void whatTheUserWroteIsShownAsWritten();
    void aScreenReaderHearsTheReason();
    void aSearchAsksForNoReason();
    void everyShippedRatingHasItsReason();

private:
    void oeffne();
    void schreibeErklaerungen();
    void suche(const QString &text) const;
    void waehleTreffer(const QString &name) const;
    AppController &controller() const { return m_fenster->controller(); }
    Textfeld *feld(Wertung wertung = Wertung::uebergewicht) const
    {
        return controller().wertungsfelder()[stelle(wertung)];
    }
    QLabel *fahne() const { return feld()->findChild<QLabel *>(u"fahne"_s); }
    QString anMaus(Wertung wertung = Wertung::uebergewicht) const;
    QString anTaste(Wertung wertung = Wertung::uebergewicht) const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
    Lebensmittelverzeichnis m_eingebaut;
    Lebensmittelverzeichnis m_eigene;
};

namespace {

const QString vonIhnen = u"Diese Wertung haben Sie selbst vergeben."_s;
const QString eigenes = u"Übergewicht: „0“\n"_s + vonIhnen;

const QStringList eigeneUrteile = {u"0"_s, u"0"_s, u"0"_s, u"0"_s};
/// What 250 mg of cholesterol and more than 275 kcal without fibre get.
const QStringList urteile = {u"-"_s, u"+"_s, u"+"_s, u"-"_s};

QString lesbar(const QString &html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText().trimmed();
}

void ruheAn(const QWidget &feld)
{
    QHelpEvent ruhe(QEvent::ToolTip, feld.rect().center(), feld.mapToGlobal(feld.rect().center()));
    QApplication::sendEvent(const_cast<QWidget *>(&feld), &ruhe);
}

void keinText()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

} // namespace

/// Row 0 stands in no table that explains, row 3 stands there with other figures.
void TestWertungsgrund::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_eingebaut.clear();
    for (int zeile = 0; zeile < 6; ++zeile) {
        const QString name = zaehlname(zeile);
        m_eingebaut.insert(
            name, lebensmittel(name, {{kal, 300.5F + static_cast<float>(zeile)}}, urteile));
    }
    m_eigene = verzeichnis({lebensmittel(u"Eigenes"_s, {{kal, 10}}, eigeneUrteile),
                            lebensmittel(zaehlname(2), {{kal, 20}}, eigeneUrteile)});
    m_heim->wertungstabelle = m_heim->pfad(u"Lebensmittel.csv"_s);
    schreibeErklaerungen();
}

void TestWertungsgrund::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
    keinText();
}

void TestWertungsgrund::schreibeErklaerungen()
{
    QStringList zeilen;
    for (int zeile = 1; zeile < 6; ++zeile) {
        const double kilokalorien = zeile == 3 ? 50 : 300.5 + zeile;
        zeilen << Auskunftsprobe::zeile(
            zaehlname(zeile), {{u"kal"_s, QString::number(kilokalorien)}, {u"chol"_s, u"250"_s}});
    }
    QFile datei(m_heim->wertungstabelle);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write(Auskunftsprobe::datei(zeilen));
}

void TestWertungsgrund::oeffne()
{
    m_heim->schreibeTabelle(m_eingebaut);
    m_heim->schreibeEigene(m_eigene);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestWertungsgrund::suche(const QString &text) const
{
    controller().suchfeld->setFocus();
    controller().suchfeld->selectAll();
    QTest::keyClicks(controller().suchfeld, text);
    QTest::keyClick(controller().suchfeld, Qt::Key_Return);
}

void TestWertungsgrund::waehleTreffer(const QString &name) const
{
    m_fenster->klicke(static_cast<int>(controller().suchArray.indexOf(name)), inSuch);
}

/// What the mouse gets to see where it rests on a rating; empty for no tool tip.
QString TestWertungsgrund::anMaus(Wertung wertung) const
{
    keinText();
    ruheAn(*feld(wertung));
    return QToolTip::isVisible() ? lesbar(QToolTip::text()) : QString();
}

/// What F1 shows at a rating; empty for nothing.
QString TestWertungsgrund::anTaste(Wertung wertung) const
{
    feld(wertung)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(feld(wertung), Qt::Key_F1);
    const auto *fahne = feld(wertung)->findChild<QLabel *>(u"fahne"_s);
    return fahne->isVisible() ? lesbar(fahne->text()) : QString();
}

void TestWertungsgrund::theMouseThatRestsSeesTheReason()
{
    oeffne();
    m_fenster->klicke(1, inName);
    QTest::mouseMove(feld(Wertung::hkk));
    QTRY_VERIFY(QToolTip::isVisible());
    const QString text = lesbar(QToolTip::text());
    QVERIFY2(text.startsWith(u"Herz und Kreislauf: „-“"_s), qPrintable(text));
    QVERIFY2(text.contains(u"250 mg"_s), qPrintable(text));
    QVERIFY(QToolTip::text().contains(u"<b>Herz und Kreislauf: „-“"_s)); // a heading
    QCOMPARE(feld(Wertung::hkk)->toolTip(), QString());
}

void TestWertungsgrund::aReasonIsInTheLanguageOfTheWindows_data()
{
    QTest::addColumn<QLocale>("sprache");
    QTest::addColumn<QString>("kopf");
    QTest::addColumn<QString>("zahl");
    QTest::addColumn<QString>("eigen");
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Austria)
                            << u"Übergewicht: „-“ (ungeeignet)"_s << u"301,5 kcal"_s << vonIhnen;
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom)
                             << u"Overweight: \"-\" (unsuitable)"_s << u"301.5 kcal"_s
                             << u"Your own rating"_s;
}

void TestWertungsgrund::aReasonIsInTheLanguageOfTheWindows()
{
    QFETCH(QLocale, sprache);
    QFETCH(QString, kopf);
    QFETCH(QString, zahl);
    QFETCH(QString, eigen);
    QLocale::setDefault(sprache);
    const Probeuebersetzer uebersetzer({{vonIhnen, eigen}});
    oeffne();
    m_fenster->klicke(1, inName);
    for (const QString &text : {anMaus(), anTaste()}) {
        QVERIFY2(text.startsWith(kopf), qPrintable(text));
        QVERIFY2(text.contains(zahl), qPrintable(text));
    }
    m_fenster->klicke(0, inEigen);
    QVERIFY(anMaus().endsWith(eigen));
}

void TestWertungsgrund::theWayToTheFoodDecidesWhoseRatingItIs_data()
{
    QTest::addColumn<QString>("suchwort"); // empty: a click into the list itself
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QString>("enthalten");
    QTest::newRow("a built-in food") << QString() << 1 << inName << u"301,5 kcal"_s;
    QTest::newRow("an own food") << QString() << 0 << inEigen << eigenes;
    QTest::newRow("a name of both lists, built-in") << QString() << 2 << inName << u"302,5 kcal"_s;
    QTest::newRow("a name of both lists, own") << QString() << 1 << inEigen << eigenes;
    QTest::newRow("a result that is built-in") << u"0004"_s << 1 << inSuch << u"304,5 kcal"_s;
    QTest::newRow("a result that is own") << u"eigen"_s << 1 << inSuch << eigenes;
    QTest::newRow("a result of both lists is the own one") << u"0002"_s << 2 << inSuch << eigenes;
}

void TestWertungsgrund::theWayToTheFoodDecidesWhoseRatingItIs()
{
    QFETCH(QString, suchwort);
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(QString, enthalten);
    oeffne();
    m_fenster->klicke(5, inName);
    QVERIFY(anMaus().contains(u"305,5 kcal"_s));
    if (!suchwort.isEmpty()) {
        suche(suchwort);
    }
    m_fenster->klicke(zeile, spalte);
    QVERIFY2(anMaus().contains(enthalten), qPrintable(anMaus()));
    QVERIFY2(anTaste().contains(enthalten), qPrintable(anTaste()));
}

/// After a search the amount shows the built-in food of the row where the selection stands.
void TestWertungsgrund::anAmountShowsTheFoodOfTheRow()
{
    oeffne();
    suche(u"0002"_s);
    waehleTreffer(zaehlname(2));
    QCOMPARE(anMaus(), eigenes);
    controller().lebensmittelmenge->setIntValue(30);
    controller().wieviellebensmittel(*controller().lebensmittelmenge);
    QCOMPARE(controller().unuebersetztername, zaehlname(1));
    QVERIFY2(anMaus().contains(u"301,5 kcal"_s), qPrintable(anMaus())); // for 100 g, as ever
}

void TestWertungsgrund::whatWasSavedIsTheUsersOwn_data()
{
    QTest::addColumn<bool>("vomBlatt");
    QTest::newRow("from the sheet") << true;
    QTest::newRow("from the display") << false;
}

void TestWertungsgrund::whatWasSavedIsTheUsersOwn()
{
    QFETCH(bool, vomBlatt);
    oeffne();
    m_fenster->klicke(1, inName);
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
    if (vomBlatt) {
        controller().Fenster();
        controller().EingabeFensterfeldA->setStringValue(u"Vom Blatt"_s);
        controller().EingabeFensteruebergewicht->setStringValue(u"-"_s);
        controller().EingabeFensteruebernehmen->click();
        controller().EingabeFensterschliessen->click();
    } else {
        controller().sichernaufzu->click();
        controller().sichernknopf->click();
        controller().sichernaufzu->click();
    }
    QTRY_VERIFY(!controller().einfenster->isVisible());
    QCOMPARE(anMaus(), u"Übergewicht: „-“\n"_s + vonIhnen);
    m_fenster->klicke(4, inName);
    QVERIFY(anMaus().contains(u"304,5 kcal"_s));
}

void TestWertungsgrund::withoutAReasonThereIsNoToolTip_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<Wertung>("wertung");
    QTest::newRow("a food that the explaining table lacks") << 0 << inName << Wertung::hkk;
    QTest::newRow("a rating that its figures don't give") << 3 << inName << Wertung::uebergewicht;
    QTest::newRow("an own food without a rating") << 2 << inEigen << Wertung::uebergewicht;
}

void TestWertungsgrund::withoutAReasonThereIsNoToolTip()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(Wertung, wertung);
    Datenmodul unbewertet;
    unbewertet.setName(u"Unbewertet"_s);
    m_eigene.insert(unbewertet.name(), unbewertet);
    oeffne();
    m_fenster->klicke(zeile, spalte);
    QCOMPARE(anMaus(wertung), QString());
    QCOMPARE(anTaste(wertung), QString());
    // Nothing appears later on either.
    QTest::mouseMove(feld(wertung));
    QTest::qWait(2 * QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay));
    QVERIFY(!QToolTip::isVisible());
    QVERIFY(!feld(wertung)->findChild<QLabel *>(u"fahne"_s)->isVisible());
}

void TestWertungsgrund::whileAFoodIsTypedInNothingIsExplained()
{
    oeffne();
    m_fenster->klicke(1, inName);
    controller().Fenster();
    QCOMPARE(anMaus(), QString());
    controller().Fensterschliessen();
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
    controller().sichernaufzu->click();
    QCOMPARE(anMaus(), QString());
    QCOMPARE(anTaste(), QString());
    controller().sichernaufzu->click();
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
    QVERIFY(anTaste().contains(u"301,5 kcal"_s));
}

void TestWertungsgrund::anEmptyTableExplainsNothing()
{
    m_eingebaut.clear();
    oeffne();
    for (const auto &zeile : wertungen) {
        QCOMPARE(anMaus(zeile.wertung), QString());
        QCOMPARE(anTaste(zeile.wertung), QString());
    }
}

void TestWertungsgrund::theTabKeyGoesFromRatingToRating()
{
    oeffne();
    m_fenster->klicke(1, inName);
    for (int i = 0; i < 20 && !feld()->hasFocus(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const auto &zeile : wertungen) {
        QCOMPARE(QApplication::focusWidget(), feld(zeile.wertung));
        QVERIFY(!feld(zeile.wertung)->hasSelectedText()); // it would hide the colour
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(QApplication::focusWidget(), controller().DatenAnsicht->tabBar());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), feld(Wertung::hkk));
    // While the name can be typed, the ratings follow it.
    controller().sichernaufzu->click();
    controller().feldA->setFocus();
    QTest::keyClick(controller().feldA, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), feld());
}

void TestWertungsgrund::theKeyboardThatRestsSeesTheReason()
{
    oeffne();
    m_fenster->klicke(1, inName);
    feld()->setFocus(Qt::TabFocusReason);
    QVERIFY(!fahne()->isVisible());
    QTRY_VERIFY(fahne()->isVisible());
    const QString text = lesbar(fahne()->text());
    QVERIFY2(text.startsWith(u"Übergewicht: „-“"_s), qPrintable(text));
    QVERIFY2(text.contains(u"301,5 kcal"_s), qPrintable(text));
    // Beside the field, whose value stays in sight.
    const QRect ort(feld()->mapToGlobal(QPoint(0, 0)), feld()->size());
    QVERIFY(!fahne()->geometry().intersects(ort));
    QVERIFY(fahne()->geometry().intersects(ort.adjusted(-20, -20, 20, 20)));
    ruheAn(*feld());
    QVERIFY(!QToolTip::isVisible()); // once is enough
}

void TestWertungsgrund::theFieldWithTheFocusIsFramed_data()
{
    QTest::addColumn<bool>("urteil");
    QTest::newRow("a rating") << true;
    QTest::newRow("another display") << false;
}

void TestWertungsgrund::theFieldWithTheFocusIsFramed()
{
    QFETCH(bool, urteil);
    oeffne();
    m_fenster->klicke(1, inName);
    Textfeld *anzeige = urteil ? feld() : controller().feldB;
    controller().Tabelle->setFocus();
    QCoreApplication::processEvents();
    const QImage ohne = anzeige->grab().toImage();
    anzeige->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    QCOMPARE(anzeige->grab().toImage() != ohne, urteil);
}

void TestWertungsgrund::theTextGoes_data()
{
    QTest::addColumn<std::function<void(TestWertungsgrund *)>>("anlass");
    using Anlass = std::function<void(TestWertungsgrund *)>;
    QTest::newRow("with Escape") << Anlass(
        [](TestWertungsgrund *t) { QTest::keyClick(t->feld(), Qt::Key_Escape); });
    QTest::newRow("with the focus")
        << Anlass([](TestWertungsgrund *t) { QTest::keyClick(t->feld(), Qt::Key_Tab); });
    QTest::newRow("when another food is shown")
        << Anlass([](TestWertungsgrund *t) { t->controller().rausholen(&t->m_eingebaut.first()); });
    QTest::newRow("when another amount is shown") << Anlass([](TestWertungsgrund *t) {
        t->controller().wieviellebensmittel(*t->controller().lebensmittelmenge);
    });
    QTest::newRow("with a click into it")
        << Anlass([](TestWertungsgrund *t) { QTest::mouseClick(t->fahne(), Qt::LeftButton); });
    QTest::newRow("when the window changes its size") << Anlass([](TestWertungsgrund *t) {
        t->controller().Hauptfenster->resize(t->controller().Hauptfenster->size() + QSize(20, 0));
    });
    QTest::newRow("with the window")
        << Anlass([](TestWertungsgrund *t) { t->controller().Hauptfenster->hide(); });
    QTest::newRow("when the ratings are hidden")
        << Anlass([](TestWertungsgrund *t) { t->feld()->hide(); });
}

void TestWertungsgrund::theTextGoes()
{
    QFETCH(std::function<void(TestWertungsgrund *)>, anlass);
    oeffne();
    m_fenster->klicke(1, inName);
    QVERIFY(!anTaste().isEmpty());
    QVERIFY(fahne()->isVisible());
    anlass(this);
    QTRY_VERIFY(!fahne()->isVisible());
}

void TestWertungsgrund::escapeIsLeftToOthersWhereThereIsNoText()
{
    oeffne();
    m_fenster->klicke(1, inName);
    feld()->setFocus(Qt::TabFocusReason);
    const auto angenommen = [this] {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, {});
        escape.ignore();
        QCoreApplication::sendEvent(feld(), &escape);
        return !fahne()->isVisible() && escape.isAccepted();
    };
    QVERIFY(!angenommen());
    // Escape before the text has come says that it is not wanted.
    QTest::qWait(2 * QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay));
    QVERIFY(!fahne()->isVisible());
}

void TestWertungsgrund::theMousesTextGoesWithItsFood()
{
    oeffne();
    m_fenster->klicke(1, inName);
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
    QTest::keyClick(controller().Tabelle, Qt::Key_Down); // the mouse rests where it is
    QTRY_VERIFY(!QToolTip::isVisible());
    QVERIFY(anMaus().contains(u"302,5 kcal"_s));
}

void TestWertungsgrund::aLongTextIsWrapped()
{
    oeffne();
    m_fenster->klicke(0, inEigen);
    anTaste();
    QVERIFY(fahne()->width() <= 420);
    const int kurz = fahne()->height();
    feld()->setStringValue(u"ausgezeichnet "_s.repeated(12));
    anTaste();
    QVERIFY2(fahne()->width() <= 420, qPrintable(QString::number(fahne()->width())));
    QVERIFY(fahne()->height() > kurz);
    anMaus();
}

void TestWertungsgrund::whatTheUserWroteIsShownAsWritten()
{
    const QString geschrieben = u"<b>a</b> & b"_s;
    m_eigene.insert(u"Eigenes"_s,
                    lebensmittel(u"Eigenes"_s, {{kal, 10}},
                                 {geschrieben, geschrieben, geschrieben, geschrieben}));
    oeffne();
    m_fenster->klicke(0, inEigen);
    const QString erwartet = u"Übergewicht: „<b>a</b> & b“\n"_s + vonIhnen;
    QCOMPARE(anMaus(), erwartet);
    QCOMPARE(anTaste(), erwartet);
}

void TestWertungsgrund::aScreenReaderHearsTheReason()
{
    oeffne();
    m_fenster->klicke(1, inName);
    const auto gehoert = [this](Wertung wertung) {
        QCoreApplication::processEvents();
        return QAccessible::queryAccessibleInterface(feld(wertung))->text(QAccessible::Description);
    };
    QCOMPARE(gehoert(Wertung::hkk), QString()); // nobody listens yet
    QAccessible::setActive(true);
    QVERIFY2(gehoert(Wertung::hkk).contains(u"\nCholesterin 250 mg"_s),
             qPrintable(gehoert(Wertung::hkk)));
    QVERIFY(gehoert(Wertung::uebergewicht).startsWith(u"Übergewicht: „-“ (ungeeignet)"_s));
    m_fenster->klicke(2, inName);
    QVERIFY(gehoert(Wertung::uebergewicht).contains(u"302,5 kcal"_s));
    m_fenster->klicke(0, inEigen);
    QCOMPARE(gehoert(Wertung::uebergewicht), eigenes);
    controller().Fenster();
    QCOMPARE(gehoert(Wertung::uebergewicht), QString());
    controller().Fensterschliessen();
    QCOMPARE(gehoert(Wertung::uebergewicht), eigenes);
    m_fenster->klicke(0, inName);
    QCOMPARE(gehoert(Wertung::uebergewicht), QString());
    QCOMPARE(QAccessible::queryAccessibleInterface(feld())->text(QAccessible::Name),
             u"Übergewicht"_s);
    QAccessible::setActive(false);
}

/// The table is there only after the search: who had asked before would never get to know.
void TestWertungsgrund::aSearchAsksForNoReason()
{
    QVERIFY(QFile::remove(m_heim->wertungstabelle));
    oeffne();
    suche(u"speise"_s);
    suche(u"0005"_s);
    m_fenster->klicke(1, inName);
    QCoreApplication::processEvents();
    schreibeErklaerungen();
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
}

void TestWertungsgrund::everyShippedRatingHasItsReason()
{
    const Lebensmittelbestand bestand = ladeBestand(u":/DatabaseIII.daten"_s);
    QVERIFY(!bestand.verzeichnis.isEmpty());
    const Wertungsauskunft auskunft(u":/Lebensmittel.csv"_s);
    for (auto eines = bestand.verzeichnis.begin(); eines != bestand.verzeichnis.end(); ++eines) {
        const bool keines = eines.key() == u"-"_s; // the row of the table that stands for no food
        for (const auto &zeile : wertungen) {
            const QStringList grund =
                auskunft.erklaerung(eines.key(), zeile.wertung, eines->wertung(zeile.wertung),
                                    Regelsprache::Deutsch, QLocale());
            QVERIFY2(keines ? grund.isEmpty() : grund.size() >= 2, qPrintable(eines.key()));
        }
    }
}

QTEST_MAIN(TestWertungsgrund)
#include "TestWertungsgrund.moc"
