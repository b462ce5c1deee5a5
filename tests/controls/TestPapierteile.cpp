#include "Auswahlfeld.h"
#include "Druckprobe.h"
#include "Hinweisstreifen.h"
#include "Papierbild.h"
#include "Schieber.h"
#include "Textfeld.h"

#include <QApplication>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

/// What is there on a screen to be moved, pressed and typed into, on paper.
class TestPapierteile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingOfTheseIsPrinted_data();
    void nothingOfTheseIsPrinted();
    void theseAreTheirPlainText_data();
    void theseAreTheirPlainText();
    void aNumberStandsWhereItsFieldHasIt();
    void aGroupsTitleStandsAtItsTop();
    void aNumberThatIsBeingTypedHasItsUnit();
    void aNewValueIsPrintedAtOnce();
    void noLetterIsUnderlined_data();
    void noLetterIsUnderlined();
    void aPartOfAMarkedPartIsLeftOut();
    void theScreenIsAsBeforeAfterwards();

private:
    QImage gedruckt(QWidget *teil);

    std::unique_ptr<Druckprobe> m_probe;
    std::unique_ptr<QWidget> m_flaeche;
};

using Machen = std::function<QWidget *()>;

namespace {

bool istWeiss(const QImage &bild)
{
    QImage weiss(bild.size(), QImage::Format_RGB32);
    weiss.fill(Qt::white);
    return !bild.isNull() && bild.convertToFormat(QImage::Format_RGB32) == weiss;
}

Textfeld *eintrag(double zahl)
{
    auto *feld = new Textfeld;
    feld->setEditable(true);
    feld->setDecimals(1);
    feld->setUnit(QStringLiteral("mg"));
    feld->setDoubleValue(zahl);
    return feld;
}

Schieber *gramm(double zahl)
{
    auto *schieber = new Schieber;
    schieber->setMaximumValue(1000);
    schieber->setUnit(QStringLiteral("g"));
    schieber->setDoubleValue(zahl);
    return schieber;
}

using Gestalten = std::function<void(QLabel &)>;

/// A caption for an entry that is not printed.
QWidget *zeile(const QString &text, bool mitTaste, const Gestalten &gestalte = {})
{
    auto *flaeche = new QWidget;
    auto *anordnung = new QVBoxLayout(flaeche);
    auto *feld = new Textfeld;
    auto *beschriftung = new QLabel(text);
    if (gestalte) {
        gestalte(*beschriftung);
    }
    if (mitTaste) {
        beschriftung->setBuddy(feld);
    }
    anordnung->addWidget(beschriftung);
    anordnung->addWidget(feld);
    return flaeche;
}

} // namespace

Q_DECLARE_METATYPE(Machen)

void TestPapierteile::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_probe =
        std::make_unique<Druckprobe>(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
}

/// The print of a part alone, in a window of 400 by 200.
QImage TestPapierteile::gedruckt(QWidget *teil)
{
    m_flaeche = std::make_unique<QWidget>();
    auto *anordnung = new QVBoxLayout(m_flaeche.get());
    anordnung->addWidget(teil);
    m_flaeche->resize(400, 200);
    m_flaeche->show();
    m_probe->drucke(bildauftrag({}, *m_flaeche));
    return m_probe->bild(1);
}

void TestPapierteile::nothingOfTheseIsPrinted_data()
{
    QTest::addColumn<Machen>("machen");
    QTest::newRow("a slider") << Machen([] { return new QSlider(Qt::Horizontal); });
    QTest::newRow("a scroll bar") << Machen([] { return new QScrollBar(Qt::Vertical); });
    QTest::newRow("a button") << Machen([] { return new QPushButton(QStringLiteral("Weiter")); });
    QTest::newRow("a button with a picture") << Machen([] {
        auto *knopf = new QToolButton;
        knopf->setArrowType(Qt::DownArrow);
        return knopf;
    });
    QTest::newRow("the frame of an empty entry") << Machen([] {
        auto *feld = new Textfeld;
        feld->setEditable(true);
        return feld;
    });
    QTest::newRow("the frame and the arrow of an empty choice")
        << Machen([] { return new Auswahlfeld; });
    QTest::newRow("the frame of a group without a title") << Machen([] { return new QGroupBox; });
    QTest::newRow("a choice that was not made")
        << Machen([] { return new QRadioButton(QStringLiteral("Frau")); });
    QTest::newRow("a notice") << Machen([] {
        auto *streifen = new Hinweisstreifen;
        streifen->zeige({.kennung = QStringLiteral("a"), .text = QStringLiteral("Gesichert.")});
        return streifen;
    });
    QTest::newRow("what belongs to the screen alone") << Machen([] {
        auto *hinweis = new QLabel(QStringLiteral("So geht es los"));
        hinweis->setProperty("nurAmBildschirm", true);
        return hinweis;
    });
}

void TestPapierteile::nothingOfTheseIsPrinted()
{
    QFETCH(Machen, machen);
    QVERIFY(istWeiss(gedruckt(machen())));
}

void TestPapierteile::theseAreTheirPlainText_data()
{
    QTest::addColumn<Machen>("machen");
    QTest::addColumn<QString>("text");
    QTest::newRow("a number with its unit")
        << Machen([] { return eintrag(12.5); }) << QStringLiteral("12,5 mg");
    QTest::newRow("the number of a slider, once")
        << Machen([] { return gramm(250); }) << QStringLiteral("250 g");
    QTest::newRow("a number box") << Machen([] {
        auto *zahl = new QDoubleSpinBox;
        zahl->setSuffix(QStringLiteral(" kg"));
        zahl->setValue(7.5);
        return zahl;
    }) << QStringLiteral("7,50 kg");
    QTest::newRow("what was chosen from a list") << Machen([] {
        auto *wahl = new Auswahlfeld;
        wahl->setAuswahl(QStringLiteral("Bier|Wein"));
        wahl->setStringValue(QStringLiteral("Wein"));
        return wahl;
    }) << QStringLiteral("Wein");
    QTest::newRow("a typed choice, once") << Machen([] {
        auto *wahl = new Auswahlfeld;
        wahl->setFreitext(true);
        wahl->setStringValue(QStringLiteral("Most"));
        return wahl;
    }) << QStringLiteral("Most");
    QTest::newRow("an empty entry of a typed choice says what that means") << Machen([] {
        auto *wahl = new Auswahlfeld;
        wahl->setFreitext(true);
        wahl->lineEdit()->setPlaceholderText(QStringLiteral("keine"));
        return wahl;
    }) << QStringLiteral("keine");
    QTest::newRow("and of a choice from a list") << Machen([] {
        auto *wahl = new Auswahlfeld;
        wahl->setPlaceholderText(QStringLiteral("unbekannt"));
        return wahl;
    }) << QStringLiteral("unbekannt");
    QTest::newRow("a caption that belongs to no field keeps its signs")
        << Machen([] { return new QLabel(QStringLiteral("Salz & Brot")); })
        << QStringLiteral("Salz & Brot");
    QTest::newRow("the choice that was made") << Machen([] {
        auto *wahl = new QRadioButton(QStringLiteral("Frau"));
        wahl->setChecked(true);
        return wahl;
    }) << QStringLiteral("Frau");
    QTest::newRow("a switch says how it stands")
        << Machen([] { return new QCheckBox(QStringLiteral("aus")); }) << QStringLiteral("aus");
    QTest::newRow("the title of a group")
        << Machen([] { return new QGroupBox(QStringLiteral("Sport")); }) << QStringLiteral("Sport");
}

void TestPapierteile::theseAreTheirPlainText()
{
    QFETCH(Machen, machen);
    QFETCH(QString, text);
    const QImage bild = gedruckt(machen());
    QCOMPARE(m_probe->zeilen(1).join(u'\n').replace(QChar(QChar::Nbsp), u' '), text);
    // Lines around or beside it would be as wide as the part, or stand at its right edge.
    const QList<Druckwort> worte = m_probe->worte();
    const auto rechts = static_cast<int>(worte.last().rechts) + 3;
    const auto links = static_cast<int>(worte.first().x) - 3;
    const QImage linker = bild.copy(0, 0, 2 * links, bild.height());
    QVERIFY(istWeiss(linker));
    QVERIFY(istWeiss(bild.copy(2 * rechts, 0, bild.width() - 2 * rechts, bild.height())));
    QVERIFY(!istWeiss(bild)); // one can see it
}

/// The columns of numbers end below one another.
void TestPapierteile::aNumberStandsWhereItsFieldHasIt()
{
    Textfeld *feld = eintrag(12.5);
    feld->setAlignment(Qt::AlignRight);
    gedruckt(feld);
    const double rechterRand = m_probe->worte().last().rechts;
    feld->setAlignment(Qt::AlignLeft);
    m_probe->drucke(bildauftrag({}, *m_flaeche));
    const QList<Druckwort> links = m_probe->worte();
    QVERIFY(rechterRand - links.last().rechts > 100);
}

/// It stands above what belongs to it and is seen from afar.
void TestPapierteile::aGroupsTitleStandsAtItsTop()
{
    const auto punkte = [](const QImage &bild) {
        int dunkel = 0;
        for (int y = 0; y < bild.height(); ++y) {
            for (int x = 0; x < bild.width(); ++x) {
                dunkel += qGray(bild.pixel(x, y)) < 128 ? 1 : 0;
            }
        }
        return dunkel;
    };
    auto *gruppe = new QGroupBox(QStringLiteral("Sport"));
    gruppe->setMinimumHeight(180);
    const int fett = punkte(gedruckt(gruppe));
    const Druckwort titel = m_probe->worte().first();
    auto *text = new QCheckBox(QStringLiteral("Sport"));
    text->setMinimumHeight(180);
    const int mager = punkte(gedruckt(text));
    QVERIFY(m_probe->worte().first().grundlinie - titel.grundlinie > 40);
    QVERIFY2(fett > mager * 1.15, qPrintable(QStringLiteral("%1, %2").arg(fett).arg(mager)));
}

void TestPapierteile::aNumberThatIsBeingTypedHasItsUnit()
{
    Textfeld *feld = eintrag(3);
    gedruckt(feld);
    feld->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_flaeche.get()));
    feld->setFocus();
    QTRY_COMPARE(feld->text(), QStringLiteral("3,0"));
    m_probe->drucke(bildauftrag({}, *m_flaeche));
    QCOMPARE(m_probe->zeilen(1).join(u' ').replace(QChar(QChar::Nbsp), u' '),
             QStringLiteral("3,0 mg"));
    QCOMPARE(feld->text(), QStringLiteral("3,0")); // who types is not disturbed
}

void TestPapierteile::aNewValueIsPrintedAtOnce()
{
    Schieber *schieber = gramm(100);
    gedruckt(schieber);
    schieber->setDoubleValue(300);
    m_probe->drucke(bildauftrag({}, *m_flaeche));
    QVERIFY(m_probe->zeilen(1).join(u' ').startsWith(QLatin1String("300")));
}

void TestPapierteile::noLetterIsUnderlined_data()
{
    QTest::addColumn<Machen>("mitTaste");
    QTest::addColumn<Machen>("ohne");
    QTest::newRow("the caption of a field")
        << Machen([] { return zeile(QStringLiteral("&Gewicht"), true); })
        << Machen([] { return zeile(QStringLiteral("Gewicht"), false); });
    const Gestalten rechts = [](QLabel &beschriftung) {
        beschriftung.setAlignment(Qt::AlignRight | Qt::AlignTop);
        beschriftung.setMinimumHeight(60);
    };
    QTest::newRow("a caption at the right, beside much")
        << Machen([rechts] { return zeile(QStringLiteral("&Gewicht"), true, rechts); })
        << Machen([rechts] { return zeile(QStringLiteral("Gewicht"), false, rechts); });
    const Gestalten mehrzeilig = [](QLabel &beschriftung) {
        beschriftung.setWordWrap(true);
        beschriftung.setMinimumHeight(90);
        beschriftung.setContentsMargins(60, 10, 0, 0);
    };
    const QString langer = QString(QStringLiteral(" nach dem Essen")).repeated(8);
    QTest::newRow("a caption of several lines with room before them")
        << Machen([=] { return zeile(QStringLiteral("&Gewicht") + langer, true, mehrzeilig); })
        << Machen([=] { return zeile(QStringLiteral("Gewicht") + langer, false, mehrzeilig); });
    QTest::newRow("a group") << Machen([] { return new QGroupBox(QStringLiteral("&Sport")); })
                             << Machen([] { return new QGroupBox(QStringLiteral("Sport")); });
    QTest::newRow("a switch") << Machen([] { return new QCheckBox(QStringLiteral("&aus")); })
                              << Machen([] { return new QCheckBox(QStringLiteral("aus")); });
}

void TestPapierteile::noLetterIsUnderlined()
{
    QFETCH(Machen, mitTaste);
    QFETCH(Machen, ohne);
    const QImage bild = gedruckt(mitTaste());
    QVERIFY(!istWeiss(bild));
    QCOMPARE(bild, gedruckt(ohne()));
}

void TestPapierteile::aPartOfAMarkedPartIsLeftOut()
{
    QWidget *gruppe = zeile(QStringLiteral("Hinweis"), false);
    gruppe->setProperty("nurAmBildschirm", true);
    QVERIFY(istWeiss(gedruckt(gruppe)));
}

void TestPapierteile::theScreenIsAsBeforeAfterwards()
{
    gedruckt(gramm(100));
    const QImage vorher = m_flaeche->grab().toImage();
    m_probe->drucke(bildauftrag({}, *m_flaeche));
    QCOMPARE(m_flaeche->grab().toImage(), vorher);
    QVERIFY(!istWeiss(vorher));
}

QTEST_MAIN(TestPapierteile)
#include "TestPapierteile.moc"
