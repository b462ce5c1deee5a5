#include "Meldung.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

/// The real message box, with a user before it.
class TestMeldung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsStandWhereTheyBelong();
    void whatItIsAboutStandsBelow();
    void withoutAHeadingTheExplanationIsTheHeading();
    void textsAreShownAsTheyAreWritten_data();
    void textsAreShownAsTheyAreWritten();
    void buttonsStandInTheirOrder_data();
    void buttonsStandInTheirOrder();
    void theFirstButtonWaitsForReturn();
    void keysAndClosingAnswer_data();
    void keysAndClosingAnswer();
    void everyButtonAnswersWithItsNumber();
    void onlyADangerCarriesTheWarningSign_data();
    void onlyADangerCarriesTheWarningSign();
    void theMessageStandsOutFromItsExplanation();
    void itIsAsWideAsItsText_data();
    void itIsAsWideAsItsText();
    void largeLettersStayOnTheScreen();
    void aMessageWithoutButtonsShowsNothing();
};

namespace {

const QStringList drei = {u"Einfache Liste"_s, u"Detaillierte Liste"_s, u"Grafische Darstellung"_s};

/// Shows the message, lets the user do something to the box, and returns the answer. A box that is
/// then still open is closed, and the answer is of no use.
int zeige(const Meldung &meldung, const std::function<void(QMessageBox &)> &tue)
{
    constexpr int keineAntwort = -99;
    bool offenGeblieben = false;
    QTimer::singleShot(0, qApp, [&] {
        auto *kasten = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(kasten != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(kasten));
        tue(*kasten);
        if (kasten->isVisible()) {
            offenGeblieben = true;
            kasten->done(0);
        }
    });
    const int antwort = zeigeMeldung(nullptr, meldung);
    return offenGeblieben ? keineAntwort : antwort;
}

/// The buttons that can be seen, from left to right.
QList<QPushButton *> sichtbareKnoepfe(const QMessageBox &kasten)
{
    QList<QPushButton *> knoepfe = kasten.findChildren<QPushButton *>();
    erase_if(knoepfe, [](const QPushButton *knopf) { return !knopf->isVisible(); });
    std::sort(knoepfe.begin(), knoepfe.end(), [](const QPushButton *a, const QPushButton *b) {
        return a->mapToGlobal(QPoint()).x() < b->mapToGlobal(QPoint()).x();
    });
    return knoepfe;
}

} // namespace

void TestMeldung::textsStandWhereTheyBelong()
{
    QString text;
    QString erklaerung;
    zeige({u"Drucken"_s, u"Was moechten Sie drucken ? "_s, drei}, [&](const QMessageBox &kasten) {
        text = kasten.text();
        erklaerung = kasten.informativeText();
    });
    QCOMPARE(text, u"Drucken"_s);
    QCOMPARE(erklaerung, u"Was moechten Sie drucken ? "_s); // with its blank
}

void TestMeldung::whatItIsAboutStandsBelow()
{
    QStringList darunter;
    for (const QString &erklaerung : {u"Wirklich löschen ?  "_s, QString()}) {
        zeige({.text = u"Achtung !"_s,
               .erklaerung = erklaerung,
               .knoepfe = {u"Nein"_s, u"Ja"_s},
               .gegenstand = u"„Linsen“"_s},
              [&](const QMessageBox &kasten) { darunter << kasten.informativeText(); });
    }
    QCOMPARE(darunter, (QStringList{u"Wirklich löschen ?  \n\n„Linsen“"_s, u"„Linsen“"_s}));
}

void TestMeldung::withoutAHeadingTheExplanationIsTheHeading()
{
    QString text;
    QString erklaerung = u"?"_s;
    zeige({{}, u"Nichts ausgewählt"_s, {u"ok"_s}}, [&](const QMessageBox &kasten) {
        text = kasten.text();
        erklaerung = kasten.informativeText();
    });
    QCOMPARE(text, u"Nichts ausgewählt"_s);
    QVERIFY(erklaerung.isEmpty());
}

void TestMeldung::textsAreShownAsTheyAreWritten_data()
{
    QTest::addColumn<QString>("geschrieben");
    QTest::newRow("a file named like a tag") << u"Die Datei „<b>x</b>.pdf“ fehlt."_s;
    QTest::newRow("a food named like a picture") << u"<img src='/etc/hostname'>"_s;
    QTest::newRow("a link") << u"<a href='https://example.org'>hier</a>"_s;
    QTest::newRow("an entity") << u"Fish &amp; Chips"_s;
}

/// A name may look like rich text; its brackets are part of it.
void TestMeldung::textsAreShownAsTheyAreWritten()
{
    QFETCH(QString, geschrieben);
    int gesehen = 0;
    const auto pruefe = [&](const QMessageBox &kasten) {
        for (const QLabel *zeile : kasten.findChildren<QLabel *>()) {
            if (zeile->isVisible() && zeile->pixmap().isNull()) {
                QCOMPARE(zeile->text(), geschrieben);
                QCOMPARE(zeile->textFormat(), Qt::PlainText);
                ++gesehen;
            }
        }
    };
    zeige({geschrieben, geschrieben, {u"ok"_s}}, pruefe);
    QCOMPARE(gesehen, 2);
    zeige({{}, geschrieben, {u"ok"_s}}, pruefe);
    QCOMPARE(gesehen, 3);
}

void TestMeldung::buttonsStandInTheirOrder_data()
{
    QTest::addColumn<QStringList>("knoepfe");
    QTest::addColumn<bool>("verwerfbar");
    QTest::newRow("one") << QStringList{u"ok"_s} << false;
    QTest::newRow("no before yes") << QStringList{u"Nein"_s, u"Ja"_s} << false;
    QTest::newRow("yes before no") << QStringList{u"Ja"_s, u"Nein"_s} << false;
    QTest::newRow("three that may be refused: no fourth to be seen") << drei << true;
}

void TestMeldung::buttonsStandInTheirOrder()
{
    QFETCH(QStringList, knoepfe);
    QFETCH(bool, verwerfbar);
    QStringList gesehen;
    zeige({u"Frage"_s, {}, knoepfe, verwerfbar}, [&](const QMessageBox &kasten) {
        for (const QPushButton *knopf : sichtbareKnoepfe(kasten)) {
            gesehen << knopf->text();
        }
    });
    QCOMPARE(gesehen, knoepfe);
}

void TestMeldung::theFirstButtonWaitsForReturn()
{
    QString vorbelegt;
    zeige({u"Löschen?"_s, {}, {u"Nein"_s, u"Ja"_s}}, [&](const QMessageBox &kasten) {
        for (const QPushButton *knopf : sichtbareKnoepfe(kasten)) {
            vorbelegt += knopf->isDefault() ? knopf->text() : QString();
        }
    });
    QCOMPARE(vorbelegt, u"Nein"_s);
}

void TestMeldung::keysAndClosingAnswer_data()
{
    QTest::addColumn<bool>("verwerfbar");
    QTest::addColumn<int>("taste"); // 0: the window is closed
    QTest::addColumn<int>("antwort");
    QTest::newRow("Return presses the first") << false << int(Qt::Key_Return) << 0;
    QTest::newRow("Escape presses the first") << false << int(Qt::Key_Escape) << 0;
    QTest::newRow("closing presses the first") << false << 0 << 0;
    QTest::newRow("refusable: Return presses the first") << true << int(Qt::Key_Return) << 0;
    QTest::newRow("refusable: Escape presses none") << true << int(Qt::Key_Escape) << -1;
    QTest::newRow("refusable: closing presses none") << true << 0 << -1;
}

void TestMeldung::keysAndClosingAnswer()
{
    QFETCH(bool, verwerfbar);
    QFETCH(int, taste);
    QFETCH(int, antwort);
    const int gegeben = zeige({u"Frage"_s, {}, drei, verwerfbar}, [taste](QMessageBox &kasten) {
        if (taste == 0) {
            kasten.close();
        } else {
            QTest::keyClick(&kasten, static_cast<Qt::Key>(taste));
        }
    });
    QCOMPARE(gegeben, antwort);
}

void TestMeldung::everyButtonAnswersWithItsNumber()
{
    for (int i = 0; i < drei.size(); ++i) {
        const int gegeben = zeige({u"Drucken"_s, {}, drei, true}, [i](const QMessageBox &kasten) {
            QTest::mouseClick(sichtbareKnoepfe(kasten).value(i), Qt::LeftButton);
        });
        QCOMPARE(gegeben, i);
    }
}

void TestMeldung::onlyADangerCarriesTheWarningSign_data()
{
    QTest::addColumn<QStringList>("knoepfe");
    QTest::addColumn<bool>("verwerfbar");
    QTest::addColumn<bool>("gefahr");
    QTest::addColumn<QMessageBox::Icon>("zeichen");
    const QStringList ok = {u"ok"_s};
    const QStringList wahl = {u"Nein"_s, u"Ja"_s};
    QTest::newRow("something to know") << ok << false << false << QMessageBox::Information;
    QTest::newRow("a question") << wahl << false << false << QMessageBox::Question;
    QTest::newRow("a question that may be refused")
        << drei << true << false << QMessageBox::Question;
    QTest::newRow("what can't be taken back") << wahl << false << true << QMessageBox::Warning;
    QTest::newRow("a danger that may be refused") << wahl << true << true << QMessageBox::Warning;
}

void TestMeldung::onlyADangerCarriesTheWarningSign()
{
    QFETCH(QStringList, knoepfe);
    QFETCH(bool, verwerfbar);
    QFETCH(bool, gefahr);
    QMessageBox::Icon zeichen = QMessageBox::NoIcon;
    zeige({u"Frage"_s, {}, knoepfe, verwerfbar, gefahr},
          [&](const QMessageBox &kasten) { zeichen = kasten.icon(); });
    QTEST(zeichen, "zeichen");
}

void TestMeldung::theMessageStandsOutFromItsExplanation()
{
    QStringList fett;
    const auto sieh = [&](const QMessageBox &kasten) {
        for (const QLabel *feld : kasten.findChildren<QLabel *>()) {
            fett << (feld->font().bold() ? feld->text() : QString());
        }
        fett.removeAll(QString());
    };
    zeige({u"Achtung !"_s, u"Wirklich löschen?"_s, {u"Nein"_s, u"Ja"_s}}, sieh);
    QCOMPARE(fett, QStringList{u"Achtung !"_s});
    fett.clear();
    zeige({{}, u"Bitte einen Namen eingeben"_s, {u"ok"_s}}, sieh);
    QVERIFY(fett.isEmpty()); // there is nothing for it to stand out from
}

void TestMeldung::itIsAsWideAsItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("erklaerung");
    QTest::addColumn<int>("zeilen");
    const QString satz = u"Moechten Sie dieses eigene Lebensmittel wirklich dauerhaft loeschen ?"_s;
    QTest::newRow("a sentence below a word") << u"Achtung !"_s << satz << 1;
    QTest::newRow("a sentence alone") << QString() << satz << 1;
    QTest::newRow("a word") << QString() << u"Fertig"_s << 1;
    QTest::newRow("two sentences in two lines") << u"Achtung !"_s << satz + u'\n' + satz << 2;
    QTest::newRow("three sentences at a stretch") << u"Achtung !"_s << satz + satz + satz << 3;
}

void TestMeldung::itIsAsWideAsItsText()
{
    QFETCH(QString, text);
    QFETCH(QString, erklaerung);
    QFETCH(int, zeilen);
    zeige({text, erklaerung, {u"Nein"_s, u"Ja"_s}}, [&](const QMessageBox &kasten) {
        for (const QLabel *feld : kasten.findChildren<QLabel *>()) {
            if (feld->text() == erklaerung) {
                const QMargins rand = feld->contentsMargins();
                const int noetig = feld->heightForWidth(feld->width());
                const int hoehe = noetig < 0 ? feld->sizeHint().height() : noetig;
                QCOMPARE((hoehe - rand.top() - rand.bottom()) / feld->fontMetrics().lineSpacing(),
                         zeilen);
                QVERIFY(feld->height() >= noetig); // nothing is cut off
                QVERIFY(feld->wordWrap() || feld->width() >= feld->sizeHint().width());
            }
        }
        QVERIFY(kasten.width() <= 900);
    });
}

void TestMeldung::largeLettersStayOnTheScreen()
{
    const QFont vorher = QApplication::font();
    const auto zurueck = qScopeGuard([&vorher] { QApplication::setFont(vorher); });
    QFont doppelt = vorher;
    doppelt.setPointSizeF(2 * vorher.pointSizeF());
    QApplication::setFont(doppelt);
    const QString satz =
        u"Moechten Sie dieses eigene Lebensmittel wirklich dauerhaft loeschen ? "_s;
    zeige({satz + satz, satz + satz + satz, {u"Nein"_s, u"Ja"_s}}, [](const QMessageBox &kasten) {
        const int platz = kasten.screen()->availableGeometry().width();
        QVERIFY(kasten.width() <= platz);
        for (const QLabel *feld : kasten.findChildren<QLabel *>()) {
            QVERIFY(feld->minimumWidth() <= platz - 120);
            QVERIFY(feld->height() >= feld->heightForWidth(feld->width())); // nothing is cut off
        }
    });
}

/// Such a box could not be closed.
void TestMeldung::aMessageWithoutButtonsShowsNothing()
{
    QCOMPARE(zeigeMeldung(nullptr, {u"Hinweis"_s, {}, {}}), 0);
}

QTEST_MAIN(TestMeldung)
#include "TestMeldung.moc"
