// The letterhead of the practice, as it is set.

#include "Briefkopf.h"

#include "Druckprobe.h"

#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

class TestBriefkopf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingTakesNoRoom();
    void nameAndAddressStandAtTheLeft();
    void theLogoFitsItsPlace_data();
    void theLogoFitsItsPlace();
    void textsStayBesideTheLogo();
    void itIsAsHighAsTheHigherPart();

private:
    static void drucke(Druckprobe &probe, const Briefkopf &kopf, double breite);
};

namespace {

constexpr QPointF ecke(40, 40);

QImage roteFlaeche(const QSize &groesse)
{
    QImage bild(groesse, QImage::Format_RGB32);
    bild.fill(Qt::red);
    return bild;
}

Druckprobe a4()
{
    return Druckprobe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
}

} // namespace

void TestBriefkopf::drucke(Druckprobe &probe, const Briefkopf &kopf, double breite)
{
    probe.drucke({.titel = u"Probe"_s,
                  .seitenzahl = [](const QPageLayout &) { return 1; },
                  .male =
                      [&](QPainter &maler, const QPageLayout &, int) {
                          maler.translate(ecke);
                          for (const Druckstreifen &streifen : gesetzt(kopf, breite)) {
                              if (streifen.male) {
                                  maler.save();
                                  streifen.male(maler);
                                  maler.restore();
                              }
                              maler.translate(0, streifen.hoehe);
                          }
                      }});
}

void TestBriefkopf::nothingTakesNoRoom()
{
    QVERIFY(Briefkopf().istLeer());
    QVERIFY(gesetzt(Briefkopf(), 400).isEmpty());
    QVERIFY(gesetzt(Briefkopf{{}, {}, {}, true}, 400).isEmpty());
}

void TestBriefkopf::nameAndAddressStandAtTheLeft()
{
    Druckprobe probe = a4();
    drucke(probe, {u"Praxis"_s, {u"Weg 1"_s, u"Ort"_s}, {}}, 400);
    QCOMPARE(probe.zeilen(1), QStringList({u"Praxis"_s, u"Weg 1"_s, u"Ort"_s}));
    const QList<Druckwort> worte = probe.worte();
    QVERIFY(finde(worte, u"Praxis"_s).groesse > finde(worte, u"Ort"_s).groesse);
    QVERIFY(qAbs(finde(worte, u"Ort"_s).x - ecke.x()) < 1);
    // A line below it, over the whole width.
    const QImage bild = probe.bild(1, 1);
    const int unten = static_cast<int>(finde(worte, u"Ort"_s).grundlinie);
    int schwarze = 0;
    for (int y = unten + 4; y < unten + 30; ++y) {
        schwarze += bild.pixelColor(42, y).lightness() < 200 &&
                            bild.pixelColor(437, y).lightness() < 200 &&
                            bild.pixelColor(446, y).lightness() > 250
                        ? 1
                        : 0;
    }
    QVERIFY(schwarze >= 1 && schwarze <= 2);
}

void TestBriefkopf::theLogoFitsItsPlace_data()
{
    QTest::addColumn<QSize>("bild");
    QTest::addColumn<double>("breite");
    QTest::addColumn<QSize>("gedruckt");
    QTest::newRow("as broad as its place") << QSize(1700, 560) << 540.0 << QSize(170, 56);
    QTest::newRow("broader") << QSize(340, 56) << 540.0 << QSize(170, 28);
    QTest::newRow("higher") << QSize(100, 200) << 540.0 << QSize(28, 56);
    QTest::newRow("small ones are enlarged") << QSize(10, 10) << 540.0 << QSize(56, 56);
    QTest::newRow("on narrow paper a third") << QSize(340, 56) << 300.0 << QSize(100, 16);
}

void TestBriefkopf::theLogoFitsItsPlace()
{
    QFETCH(const QSize, bild);
    QFETCH(const double, breite);
    QFETCH(const QSize, gedruckt);
    Druckprobe probe = a4();
    drucke(probe, {u"Praxis"_s, {}, roteFlaeche(bild)}, breite);
    const QImage seite = probe.bild(1, 1);
    const auto rot = [&seite](int x, int y) {
        return seite.pixelColor(x, y).red() > 240 && seite.pixelColor(x, y).green() < 40;
    };
    const int rechts = static_cast<int>(ecke.x() + breite);
    const int links = rechts - gedruckt.width();
    const int oben = static_cast<int>(ecke.y());
    const int unten = oben + gedruckt.height();
    QVERIFY(rot(links + 2, oben + 2) && rot(rechts - 3, unten - 3));
    QVERIFY(!rot(links - 3, oben + 2) && !rot(rechts + 2, oben + 2) && !rot(links + 2, unten + 2) &&
            !rot(links + 2, oben - 3));
}

void TestBriefkopf::textsStayBesideTheLogo()
{
    Druckprobe probe = a4();
    drucke(probe, {probeworte(30), {probeworte(20)}, roteFlaeche({340, 56})}, 400);
    const QList<Druckwort> worte = probe.worte();
    QCOMPARE(worte.size(), 50);
    // The logo takes a third of 400 points, and 16 points are free before it.
    for (const Druckwort &wort : worte) {
        QVERIFY(wort.rechts <= ecke.x() + 400 - 400.0 / 3 - 16 + 0.5);
    }
}

void TestBriefkopf::itIsAsHighAsTheHigherPart()
{
    const QImage logo = roteFlaeche({340, 112}); // 170 x 56
    const double nurLogo = hoehe(gesetzt(Briefkopf{{}, {}, logo}, 540));
    const double mitName = hoehe(gesetzt(Briefkopf{u"Praxis"_s, {}, logo}, 540));
    QStringList lange;
    lange.fill(u"Zeile"_s, 10);
    const double hoch = hoehe(gesetzt(Briefkopf{u"Praxis"_s, lange, logo}, 540));
    QVERIFY(qAbs(nurLogo - mitName) < 0.01);
    QVERIFY(nurLogo > 56);
    QVERIFY(qAbs(hoch - hoehe(gesetzt(Briefkopf{u"Praxis"_s, lange, {}}, 540))) < 0.01);
}

QTEST_MAIN(TestBriefkopf)
#include "TestBriefkopf.moc"
