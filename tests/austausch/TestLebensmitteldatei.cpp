#include "Lebensmitteldatei.h"

#include "Archivbau.h"
#include "Archivdatei.h"
#include "Hindernisse.h"
#include "Hindernisworte.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// What opening a ".daten" file shows, of files written by hand in both byte orders, and what is
/// said of those that can't be opened.
class TestLebensmitteldatei : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bothByteOrdersAreRead_data();
    void bothByteOrdersAreRead();
    void manyFoodsOfAnOldMachine();
    void foodsStandInTheOrderOfTheirNames();
    void whatIsOddIsCounted();
    void anotherNameInsideCountsForNothing();
    void anEmptyStoreIsNoObstacle();
    void aPlanIsToldFromFoods_data();
    void aPlanIsToldFromFoods();
    void whatCanNotBeOpenedHasAReason_data();
    void whatCanNotBeOpenedHasAReason();
    void theLargestFileIsRead();
    void aProtectedFileIsToldAndReadLater_data();
    void aProtectedFileIsToldAndReadLater();
    void theProgramsOwnFilesAreKnown_data();
    void theProgramsOwnFilesAreKnown();
    void theFileStaysAsItIs();

private:
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    void schreibe(const QString &name, const QByteArray &bytes) const;
    Lebensmitteldatei oeffne(const QString &name) const
    {
        return oeffneLebensmitteldatei(pfad(name), pfad(u"eigene.daten"_s), pfad(u"plan.daten"_s));
    }

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

using Archivbau::Folge;

Datenmodul ration(const QString &name, float gramm)
{
    Datenmodul traeger;
    traeger.setName(name);
    traeger.setkal(gramm);
    return traeger;
}

Lebensmittelverzeichnis verzeichnis(const QList<Datenmodul> &alle)
{
    Lebensmittelverzeichnis ergebnis;
    for (const Datenmodul &eines : alle) {
        ergebnis.insert(eines.name(), eines);
    }
    return ergebnis;
}

QStringList namen(const Lebensmitteldatei &datei)
{
    QStringList ergebnis;
    for (const Datenmodul &eines : datei.lebensmittel) {
        ergebnis << eines.name();
    }
    return ergebnis;
}

} // namespace

void TestLebensmitteldatei::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(m_ordner->isValid());
}

void TestLebensmitteldatei::schreibe(const QString &name, const QByteArray &bytes) const
{
    QFile datei(pfad(name));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

void TestLebensmitteldatei::bothByteOrdersAreRead_data()
{
    QTest::addColumn<Folge>("folge");
    QTest::newRow("little-endian, as today") << Folge::LittleEndian;
    QTest::newRow("big-endian, as years ago") << Folge::BigEndian;
}

void TestLebensmitteldatei::bothByteOrdersAreRead()
{
    QFETCH(Folge, folge);
    schreibe(u"ei.daten"_s, Archivbau::beispiel(folge));
    const Lebensmitteldatei datei = oeffne(u"ei.daten"_s);
    QCOMPARE(datei.hindernis, Dateihindernis::Keines);
    QVERIFY(hinderniswort(datei).isEmpty());
    QCOMPARE(datei.bigEndian, folge == Folge::BigEndian);
    QVERIFY(!datei.istPlan);
    QVERIFY(gleich(verzeichnis(datei.lebensmittel), Archivbau::beispielVerzeichnis()));
    QCOMPARE(datei.doppelte, 0);
    QCOMPARE(datei.rest, 0);
    QCOMPARE(datei.ohneNamen, 0);
    QVERIFY(datei.andererName.isEmpty());
}

void TestLebensmitteldatei::manyFoodsOfAnOldMachine()
{
    schreibe(u"viele.daten"_s, Archivbau::vieleEintraege(300, Folge::BigEndian));
    const Lebensmitteldatei datei = oeffne(u"viele.daten"_s);
    QVERIFY(datei.bigEndian);
    QCOMPARE(datei.lebensmittel.size(), 300);
    QCOMPARE(datei.lebensmittel[299].name(), u"L0000299"_s);
    QCOMPARE(datei.lebensmittel[299].kal(), 299.0F);
}

void TestLebensmitteldatei::foodsStandInTheOrderOfTheirNames()
{
    QList<Datenmodul> alle;
    for (const QString &name : {u"Zucker"_s, u"apfel"_s, u"Brot"_s}) {
        alle << ration(name, 1);
        alle.last().setprotein(1);
    }
    schreibe(u"a.daten"_s, Archiver::write(verzeichnis(alle)));
    QCOMPARE(namen(oeffne(u"a.daten"_s)), (QStringList{u"apfel"_s, u"Brot"_s, u"Zucker"_s}));
}

void TestLebensmitteldatei::whatIsOddIsCounted()
{
    // The same entry twice: the key of the second is the first one's text, number 4, written 96.
    const QByteArray zweimal = Archivbau::verzeichnisAnfang + "02 " + Archivbau::ersterText +
                               "02 'Ei' 86 " + Archivbau::erstesLebensmittel + "92 96 " +
                               Archivbau::nullwerte() + Archivbau::keineWertungen +
                               "86 92 96 92 98 86";
    schreibe(u"a.daten"_s, Archivbau::datei(zweimal) + "xyz");
    const Lebensmitteldatei datei = oeffne(u"a.daten"_s);
    QVERIFY2(datei.lesbar(), qPrintable(QString::number(datei.stelle)));
    QCOMPARE(datei.doppelte, 1);
    QCOMPARE(datei.rest, 3);

    Datenmodul ohne = ration({}, 5);
    ohne.setfett(1);
    Lebensmittelverzeichnis namenlos;
    namenlos.insert(QString(u""_s), ohne);
    schreibe(u"b.daten"_s, Archiver::write(namenlos));
    QCOMPARE(oeffne(u"b.daten"_s).ohneNamen, 1);
    QVERIFY(oeffne(u"b.daten"_s).andererName.isEmpty());
}

void TestLebensmitteldatei::anotherNameInsideCountsForNothing()
{
    Datenmodul falsch = ration(u"Innen"_s, 5);
    falsch.setfett(1);
    Lebensmittelverzeichnis eines;
    eines.insert(u"Außen"_s, falsch);
    schreibe(u"a.daten"_s, Archiver::write(eines));
    const Lebensmitteldatei datei = oeffne(u"a.daten"_s);
    QCOMPARE(namen(datei), QStringList{u"Außen"_s});
    QCOMPARE(datei.andererName, QStringList{u"Außen"_s});
}

void TestLebensmitteldatei::anEmptyStoreIsNoObstacle()
{
    schreibe(u"a.daten"_s, Archiver::write({}));
    const Lebensmitteldatei datei = oeffne(u"a.daten"_s);
    QVERIFY(datei.lesbar());
    QVERIFY(datei.lebensmittel.isEmpty());
    QVERIFY(!datei.istPlan);
}

void TestLebensmitteldatei::aPlanIsToldFromFoods_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("plan");
    Datenmodul nurEnergie = ration(u"Schnaps"_s, 220);
    for (const auto &zeile : wertungen) {
        nurEnergie.setWertung(zeile.wertung, QStringLiteral(""));
    }
    Datenmodul mitFett = ration(u"Öl"_s, 900);
    mitFett.setfett(100);
    QTest::newRow("rows of a plan")
        << Archiver::write(verzeichnis({ration(u"Brot"_s, 150), ration(u"Ei"_s, 60)})) << true;
    QTest::newRow("a row of an old machine's plan")
        << Archivbau::datei(Archivbau::einEintrag(), Folge::BigEndian) << true;
    QTest::newRow("a food of which only the energy is known")
        << Archiver::write(verzeichnis({nurEnergie})) << false;
    QTest::newRow("a food without ratings") << Archiver::write(verzeichnis({mitFett})) << false;
    QTest::newRow("a food among such rows")
        << Archiver::write(verzeichnis({ration(u"Brot"_s, 150), mitFett})) << false;
}

void TestLebensmitteldatei::aPlanIsToldFromFoods()
{
    QFETCH(QByteArray, bytes);
    schreibe(u"a.daten"_s, bytes);
    QTEST(oeffne(u"a.daten"_s).istPlan, "plan");
}

void TestLebensmitteldatei::whatCanNotBeOpenedHasAReason_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("wort");
    QTest::newRow("missing") << u"fehlt.daten"_s << u"Diese Datei gibt es nicht."_s;
    QTest::newRow("no name at all") << QString() << u"Das ist ein Ordner, keine Datei."_s;
    QTest::newRow("a folder") << u"ordner"_s << u"Das ist ein Ordner, keine Datei."_s;
    QTest::newRow("a pipe") << u"rohr"_s << u"Das ist keine gewöhnliche Datei."_s;
    QTest::newRow("a device") << u"/dev/zero"_s << u"Das ist keine gewöhnliche Datei."_s;
    QTest::newRow("what the system does not let be read")
        << u"/proc/self/mem"_s << u"Sie lässt sich nicht lesen. Vielleicht ist sie geschützt."_s;
    QTest::newRow("huge") << u"riesig"_s << u"Für eine Datei mit Lebensmitteln ist sie zu groß."_s;
    QTest::newRow("a link that leads nowhere") << u"verweis"_s << u"Diese Datei gibt es nicht."_s;
    QTest::newRow("empty") << u"leer"_s << u"Sie ist leer."_s;
    QTest::newRow("foreign") << u"fremd"_s << u"Das ist keine Datei mit Lebensmitteln."_s;
    QTest::newRow("of one byte") << u"ein"_s << u"Das ist keine Datei mit Lebensmitteln."_s;
    QTest::newRow("ends too soon") << u"kurz"_s << u"Sie ist beschädigt, ab Byte 100."_s;
    QTest::newRow("an old machine's that ends too soon")
        << u"altkurz"_s << u"Sie ist beschädigt, ab Byte 100."_s;
}

void TestLebensmitteldatei::whatCanNotBeOpenedHasAReason()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(pfad(u"ordner"_s)));
    QCOMPARE(mkfifo(QFile::encodeName(pfad(u"rohr"_s)).constData(), 0600), 0);
    schreibe(u"riesig"_s, {});
    QVERIFY(QFile::resize(pfad(u"riesig"_s), Archivdatei::groessteDatei + 1));
    QVERIFY(QFile::link(pfad(u"nirgends"_s), pfad(u"verweis"_s)));
    schreibe(u"leer"_s, {});
    schreibe(u"fremd"_s, "Guten Tag, ich bin ein Brief und kein Archiv.");
    schreibe(u"ein"_s, "\x04");
    schreibe(u"kurz"_s, Archivbau::beispiel().first(100));
    schreibe(u"altkurz"_s, Archivbau::beispiel(Folge::BigEndian).first(100));
    const Lebensmitteldatei datei = oeffneLebensmitteldatei(
        QDir::isAbsolutePath(name) ? name : pfad(name), pfad(u"e.daten"_s), pfad(u"p.daten"_s));
    QVERIFY(!datei.lesbar());
    QVERIFY(datei.lebensmittel.isEmpty());
    QTEST(hinderniswort(datei), "wort");
}

void TestLebensmitteldatei::theLargestFileIsRead()
{
    schreibe(u"gross"_s, Archivbau::beispiel());
    QVERIFY(QFile::resize(pfad(u"gross"_s), Archivdatei::groessteDatei));
    const Lebensmitteldatei datei = oeffne(u"gross"_s);
    QVERIFY(datei.lesbar());
    QCOMPARE(datei.lebensmittel.size(), 1);
    QCOMPARE(datei.rest, Archivdatei::groessteDatei - Archivbau::beispiel().size());
}

void TestLebensmitteldatei::aProtectedFileIsToldAndReadLater_data()
{
    QTest::addColumn<QString>("geschuetzt");
    QTest::newRow("the file") << u"ordner/ei.daten"_s;
    QTest::newRow("its folder") << u"ordner"_s;
}

void TestLebensmitteldatei::aProtectedFileIsToldAndReadLater()
{
    QFETCH(QString, geschuetzt);
    QVERIFY(QDir().mkpath(pfad(u"ordner"_s)));
    schreibe(u"ordner/ei.daten"_s, Archivbau::beispiel());
    QCOMPARE(chmod(QFile::encodeName(m_ordner->path()).constData(), 0755), 0);
    const QByteArray was = QFile::encodeName(pfad(geschuetzt));
    QCOMPARE(chmod(was.constData(), 0), 0);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        const Lebensmitteldatei datei = oeffne(u"ordner/ei.daten"_s);
        QVERIFY(datei.lebensmittel.isEmpty());
        QCOMPARE(hinderniswort(datei),
                 u"Sie lässt sich nicht lesen. Vielleicht ist sie geschützt."_s);
    }
    QCOMPARE(chmod(was.constData(), 0700), 0);
    QCOMPARE(oeffne(u"ordner/ei.daten"_s).lebensmittel.size(), 1);
}

void TestLebensmitteldatei::theProgramsOwnFilesAreKnown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Dateihindernis>("hindernis");
    QTest::newRow("the own foods") << u"eigene.daten"_s << Dateihindernis::EigeneDatei;
    QTest::newRow("the plan") << u"plan.daten"_s << Dateihindernis::EigenerPlan;
    QTest::newRow("the own foods on a detour")
        << u"ordner/../eigene.daten"_s << Dateihindernis::EigeneDatei;
    QTest::newRow("the own foods through a link") << u"verweis"_s << Dateihindernis::EigeneDatei;
    QTest::newRow("a copy of them") << u"kopie.daten"_s << Dateihindernis::Keines;
}

void TestLebensmitteldatei::theProgramsOwnFilesAreKnown()
{
    QFETCH(QString, name);
    for (const QString &eine : {u"eigene.daten"_s, u"plan.daten"_s, u"kopie.daten"_s}) {
        schreibe(eine, Archivbau::beispiel());
    }
    QVERIFY(QDir().mkpath(pfad(u"ordner"_s)));
    QVERIFY(QFile::link(pfad(u"eigene.daten"_s), pfad(u"verweis"_s)));
    const Lebensmitteldatei datei = oeffne(name);
    QTEST(datei.hindernis, "hindernis");
    QCOMPARE(hinderniswort(datei).startsWith(u"Darin hält Mahlberg selbst"_s), !datei.lesbar());
}

void TestLebensmitteldatei::theFileStaysAsItIs()
{
    const QByteArray bytes = Archivbau::beispiel(Folge::BigEndian) + "Rest";
    schreibe(u"a.daten"_s, bytes);
    const QDateTime vorher = QFileInfo(pfad(u"a.daten"_s)).lastModified();
    oeffne(u"a.daten"_s);
    QFile datei(pfad(u"a.daten"_s));
    QVERIFY(datei.open(QIODevice::ReadOnly));
    QCOMPARE(datei.readAll(), bytes);
    QCOMPARE(QFileInfo(pfad(u"a.daten"_s)).lastModified(), vorher);
    QCOMPARE(QDir(m_ordner->path()).entryList(QDir::Files), QStringList{u"a.daten"_s});
}

QTEST_GUILESS_MAIN(TestLebensmitteldatei)
#include "TestLebensmitteldatei.moc"
