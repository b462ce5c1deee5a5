#include "Bilderrahmen.h"
#include "CustomProgressIndicator.h"
#include "Erscheinungsbild.h"
#include "FaceView.h"
#include "GewichtsverlaufView.h"
#include "NahrstoffraumView.h"
#include "WertungView.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

/// What the drawn views look like, in the light, in the dark and with two pixels to a point.
class TestAnsichtenbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bars_data() { kleider(); }
    void bars();
    void faces_data() { kleider(); }
    void faces();
    void circles_data() { kleider(); }
    void circles();
    void courses_data() { kleider(); }
    void courses();
    void cleanup() { zeigeErscheinungsbild(Erscheinungsbild::Hell); }

private:
    static void kleider();
    /// Compares a sheet with these views side by side, as large as they would like to be.
    static void pruefeBogen(const QString &name, const QList<Zeichenansicht *> &ansichten,
                            int spalten);
};

void TestAnsichtenbild::kleider()
{
    QTest::addColumn<bool>("dunkel");
    QTest::addColumn<int>("verhaeltnis");
    QTest::addColumn<QString>("zusatz");
    QTest::newRow("in the light") << false << 1 << QString();
    QTest::newRow("in the dark") << true << 1 << u"-dunkel"_s;
    QTest::newRow("two pixels to a point") << false << 2 << u"-zweifach"_s;
}

void TestAnsichtenbild::pruefeBogen(const QString &name, const QList<Zeichenansicht *> &ansichten,
                                    int spalten)
{
    QFETCH(bool, dunkel);
    QFETCH(int, verhaeltnis);
    QFETCH(QString, zusatz);
    zeigeErscheinungsbild(dunkel ? Erscheinungsbild::Dunkel : Erscheinungsbild::Hell);
    QWidget bogen;
    auto *anordnung = new QGridLayout(&bogen);
    for (int i = 0; i < ansichten.size(); ++i) {
        ansichten[i]->setFixedSize(ansichten[i]->sizeHint());
        anordnung->addWidget(ansichten[i], i / spalten, i % spalten);
    }
    bogen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bogen));
    Bilderrahmen::pruefe(name + zusatz, bogen, verhaeltnis);
}

/// Red, blue and green, from nothing to more than the bar is long; below, those without a verdict.
void TestAnsichtenbild::bars()
{
    QList<Zeichenansicht *> ansichten;
    for (const auto &[code, wert] :
         {std::pair(1, 12), {1, 1}, {2, 55}, {2, 0}, {3, 90}, {3, 130}}) {
        auto *balken = new WertungView;
        balken->drawaRect(code);
        balken->drawabalken(wert);
        ansichten << balken;
    }
    for (const double wert : {0.0, 3.0, 50.0, 100.0, 140.0}) {
        auto *balken = new CustomProgressIndicator;
        balken->setDoubleValue(wert);
        ansichten << balken;
    }
    pruefeBogen(u"ansicht-balken"_s, ansichten, 2);
}

void TestAnsichtenbild::faces()
{
    QList<Zeichenansicht *> ansichten;
    for (const int code : {0, 1, 2, 3}) {
        auto *gesicht = new FaceView;
        gesicht->setImage(QImage(u":/bilder/smile.png"_s));
        gesicht->setImage2(QImage(u":/bilder/nocrie-nosmile.png"_s));
        gesicht->setImage3(QImage(u":/bilder/crie.png"_s));
        gesicht->entscheidung(code);
        ansichten << gesicht;
    }
    pruefeBogen(u"ansicht-gesichter"_s, ansichten, 4);
}

/// As one should eat; all from one source; shares that leave something; shares that are too much.
void TestAnsichtenbild::circles()
{
    struct Anteile
    {
        float protein, kohlenhydrat, fett;
    };
    QList<Zeichenansicht *> ansichten;
    for (const auto &[protein, kohlenhydrat, fett] :
         {Anteile{15, 55, 30}, {100, 0, 0}, {10, 20, 30}, {60, 60, 60}}) {
        auto *kreise = new NahrstoffraumView;
        kreise->wert1(protein);
        kreise->wert2(kohlenhydrat);
        kreise->wert3(fett);
        ansichten << kreise;
    }
    pruefeBogen(u"ansicht-kreise"_s, ansichten, 2);
}

/// Somebody who loses weight, somebody who gains it, and nobody yet.
void TestAnsichtenbild::courses()
{
    struct Klientin
    {
        int gewicht, bedarf, aufnahme;
        float groesse;
    };
    QList<Zeichenansicht *> ansichten;
    for (const auto &[gewicht, bedarf, aufnahme, groesse] :
         {Klientin{95, 2600, 1200, 1.8F}, {52, 2000, 3600, 1.7F}, {0, 0, 0, 0.0F}}) {
        auto *verlauf = new GewichtsverlaufView;
        verlauf->wert1(gewicht);
        verlauf->wert2(bedarf);
        verlauf->wert3(aufnahme);
        verlauf->wert4(groesse);
        ansichten << verlauf;
    }
    pruefeBogen(u"ansicht-verlauf"_s, ansichten, 3);
}

int main(int argc, char **argv)
{
    return Bilderrahmen::fuehreAus<TestAnsichtenbild>(argc, argv);
}

#include "TestAnsichtenbild.moc"
