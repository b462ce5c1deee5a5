// The letterhead of the practice, and what becomes of its logo.

#include "Briefkopfablage.h"

#include "Stoerung.h"

#include <QBuffer>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Hindernis = Briefkopfablage::Hindernis;
using Schritt = Stoerung::Schritt;

class TestBriefkopfablage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsThereAtFirst();
    void nameAndAddressAreKept();
    void blankLinesAreNoLines();
    void aPictureIsCopied_data();
    void aPictureIsCopied();
    void theCopyOutlastsTheFileAndTheProgram();
    void theCopyIsForTheUserAlone();
    void aPictureFromACameraStandsUpright();
    void whatIsTransparentStaysSo();
    void whatIsNoPictureIsRefused_data();
    void whatIsNoPictureIsRefused();
    void aRefusedPictureLeavesTheLogoAsItWas();
    void aCopyThatCanNotBeWrittenIsTold_data();
    void aCopyThatCanNotBeWrittenIsTold();
    void aLogoThatIsGoneIsTold_data();
    void aLogoThatIsGoneIsTold();
    void aLogoIsTakenAway();
    void aLogoThatCanNotBeTakenAwayStays();
    void everyObstacleHasWords();

private:
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    QString schreibe(const QString &name, const QByteArray &bytes) const;
    QString bild(const QString &name, const QSize &groesse, const char *art = "PNG") const;
    Briefkopfablage ablage() const
    {
        return {*m_einstellungen, Datenordner::unmittelbar(pfad(u"daten"_s))};
    }

    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<QSettings> m_einstellungen;
};

void TestBriefkopfablage::init()
{
    m_einstellungen.reset();
    m_ordner = std::make_unique<QTemporaryDir>();
    m_einstellungen =
        std::make_unique<QSettings>(pfad(u"einstellungen.ini"_s), QSettings::IniFormat);
}

QString TestBriefkopfablage::schreibe(const QString &name, const QByteArray &bytes) const
{
    QFile datei(pfad(name));
    if (!datei.open(QIODevice::WriteOnly) || datei.write(bytes) != bytes.size()) {
        qWarning() << datei.errorString();
    }
    return datei.fileName();
}

/// A red picture.
QString TestBriefkopfablage::bild(const QString &name, const QSize &groesse, const char *art) const
{
    QImage rot(groesse, QImage::Format_RGB32);
    rot.fill(Qt::red);
    if (!rot.save(pfad(name), art)) {
        qWarning() << "no picture" << name;
    }
    return pfad(name);
}

void TestBriefkopfablage::nothingIsThereAtFirst()
{
    const Briefkopf kopf = ablage().lies();
    QVERIFY(kopf.istLeer());
    QVERIFY(!kopf.logoFehlt);
    QVERIFY(!ablage().hatLogo());
    QVERIFY(!QFile::exists(pfad(u"daten"_s)));
}

void TestBriefkopfablage::nameAndAddressAreKept()
{
    ablage().setzeName(u" Praxis „Muster“; 50 % "_s);
    ablage().setzeAnschrift(u"Hauptstraße 12\n12345 Ort, Land\n"_s);
    m_einstellungen =
        std::make_unique<QSettings>(pfad(u"einstellungen.ini"_s), QSettings::IniFormat);
    const Briefkopf kopf = ablage().lies();
    QCOMPARE(kopf.name, u"Praxis „Muster“; 50 %"_s);
    QCOMPARE(kopf.anschrift, QStringList({u"Hauptstraße 12"_s, u"12345 Ort, Land"_s}));
    QCOMPARE(ablage().anschrift(), u"Hauptstraße 12\n12345 Ort, Land\n"_s); // as it was typed
    QVERIFY(!kopf.istLeer());
}

void TestBriefkopfablage::blankLinesAreNoLines()
{
    ablage().setzeName(u"  "_s);
    ablage().setzeAnschrift(u"\n \n"_s);
    QVERIFY(ablage().lies().istLeer());
}

void TestBriefkopfablage::aPictureIsCopied_data()
{
    QTest::addColumn<QString>("art");
    QTest::addColumn<QSize>("groesse");
    QTest::addColumn<QSize>("kopie");
    QTest::newRow("PNG") << u"PNG"_s << QSize(300, 100) << QSize(300, 100);
    QTest::newRow("JPEG") << u"JPG"_s << QSize(300, 100) << QSize(300, 100);
    QTest::newRow("one dot") << u"PNG"_s << QSize(1, 1) << QSize(1, 1);
    QTest::newRow("as fine as can be") << u"PNG"_s << QSize(1200, 400) << QSize(1200, 400);
    QTest::newRow("a little finer") << u"PNG"_s << QSize(1200, 401) << QSize(1197, 400);
    // 6000 x 1000 in 1200 x 400 is 1200 x 200; 1000 x 4000 in it is 100 x 400.
    QTest::newRow("too wide") << u"PNG"_s << QSize(6000, 1000) << QSize(1200, 200);
    QTest::newRow("30 million dots") << u"PNG"_s << QSize(6000, 5000) << QSize(480, 400);
    QTest::newRow("too high") << u"JPG"_s << QSize(1000, 4000) << QSize(100, 400);
    QTest::newRow("a drawing has no grain") << u"SVG"_s << QSize(30, 10) << QSize(1200, 400);
}

void TestBriefkopfablage::aPictureIsCopied()
{
    QFETCH(const QString, art);
    QFETCH(const QSize, groesse);
    QFETCH(const QSize, kopie);
    const QString path =
        art == u"SVG"_s
            ? schreibe(u"logo.svg"_s,
                       "<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" "
                       "width=\"30\" height=\"10\"><rect width=\"30\" height=\"10\" "
                       "fill=\"red\"/></svg>")
            : bild(u"logo.bild"_s, groesse, art.toLatin1().constData()); // whatever its name says
    QCOMPARE(ablage().uebernimmLogo(path), std::optional<Hindernis>());
    const Briefkopf kopf = ablage().lies();
    QCOMPARE(kopf.logo.size(), kopie);
    const QColor mitte = kopf.logo.pixelColor(kopie.width() / 2, kopie.height() / 2);
    QVERIFY2(mitte.red() > 250 && mitte.green() < 5 && mitte.alpha() == 255,
             qPrintable(mitte.name()));
    QVERIFY(!kopf.logoFehlt && !kopf.istLeer());
    QVERIFY(ablage().hatLogo());
}

void TestBriefkopfablage::theCopyOutlastsTheFileAndTheProgram()
{
    const QString path = bild(u"logo.png"_s, {300, 100});
    QCOMPARE(ablage().uebernimmLogo(path), std::optional<Hindernis>());
    QVERIFY(QFile::remove(path));
    m_einstellungen =
        std::make_unique<QSettings>(pfad(u"einstellungen.ini"_s), QSettings::IniFormat);
    QCOMPARE(ablage().lies().logo.size(), QSize(300, 100));
    QCOMPARE(ablage().logodatei(), pfad(u"daten/MahlbergLogo.png"_s));
}

void TestBriefkopfablage::theCopyIsForTheUserAlone()
{
    QCOMPARE(ablage().uebernimmLogo(bild(u"logo.png"_s, {30, 10})), std::optional<Hindernis>());
    const QFileDevice::Permissions andere = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                            QFileDevice::ReadOther | QFileDevice::WriteOther;
    QVERIFY(!(QFile::permissions(ablage().logodatei()) & andere));
    QVERIFY(!(QFile::permissions(pfad(u"daten"_s)) & andere));
}

/// The camera lay on its side: its picture is 300 x 100, and says that it is to be turned by 90
/// degrees (a list of one entry, the orientation, which is 6).
void TestBriefkopfablage::aPictureFromACameraStandsUpright()
{
    QFile datei(bild(u"logo.jpg"_s, {300, 100}, "JPG"));
    QVERIFY(datei.open(QIODevice::ReadOnly));
    QByteArray bytes = datei.readAll();
    bytes.insert(2, QByteArray::fromHex("ffe10022457869660000"
                                        "4d4d002a00000008"
                                        "00010112000300000001000600000000"
                                        "0000"));
    QCOMPARE(ablage().uebernimmLogo(schreibe(u"kamera.jpg"_s, bytes)), std::optional<Hindernis>());
    QCOMPARE(ablage().lies().logo.size(), QSize(100, 300));
}

void TestBriefkopfablage::whatIsTransparentStaysSo()
{
    QImage durchsichtig(300, 100, QImage::Format_ARGB32);
    durchsichtig.fill(Qt::transparent);
    QVERIFY(durchsichtig.save(pfad(u"logo.png"_s)));
    QCOMPARE(ablage().uebernimmLogo(pfad(u"logo.png"_s)), std::optional<Hindernis>());
    QCOMPARE(ablage().lies().logo.pixelColor(150, 50).alpha(), 0);
}

void TestBriefkopfablage::whatIsNoPictureIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Hindernis>("hindernis");
    const auto png = [](const QSize &groesse) {
        QImage weiss(groesse, QImage::Format_Mono);
        weiss.fill(1);
        QByteArray bytes;
        QBuffer puffer(&bytes);
        puffer.open(QIODevice::WriteOnly);
        weiss.save(&puffer, "PNG");
        return bytes;
    };
    const QByteArray ganzes = png({300, 100});
    QTest::newRow("nothing in it") << QByteArray() << Hindernis::KeinBild;
    QTest::newRow("a text") << QByteArray("Praxis") << Hindernis::KeinBild;
    QTest::newRow("a picture of another kind")
        << QByteArray("GIF89a\1\0\1\0\0\0\0;", 14) << Hindernis::KeinBild;
    QTest::newRow("cut off") << ganzes.first(60) << Hindernis::NichtZuLesen;
    QTest::newRow("too many dots") << png({6000, 5001}) << Hindernis::ZuGross;
    QTest::newRow("too many bytes") << ganzes + QByteArray(20'000'000, ' ') << Hindernis::ZuGross;
    QTest::newRow("a damaged drawing") << QByteArray("<svg") << Hindernis::NichtZuLesen;
    QTest::newRow("a drawing without a size")
        << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"0\" height=\"0\"/>")
        << Hindernis::NichtZuLesen;
}

void TestBriefkopfablage::whatIsNoPictureIsRefused()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const Hindernis, hindernis);
    QCOMPARE(ablage().uebernimmLogo(schreibe(u"logo.png"_s, bytes)), std::optional(hindernis));
    QVERIFY(!ablage().hatLogo());
    QVERIFY(!QFile::exists(ablage().logodatei()));
}

void TestBriefkopfablage::aRefusedPictureLeavesTheLogoAsItWas()
{
    QCOMPARE(ablage().uebernimmLogo(bild(u"logo.png"_s, {300, 100})), std::optional<Hindernis>());
    QCOMPARE(ablage().uebernimmLogo(schreibe(u"text"_s, "Praxis")),
             std::optional(Hindernis::KeinBild));
    QCOMPARE(ablage().uebernimmLogo(pfad(u"gibt es nicht"_s)),
             std::optional(Hindernis::NichtZuLesen));
    QCOMPARE(ablage().uebernimmLogo(pfad({})), std::optional(Hindernis::NichtZuLesen)); // a folder
    QCOMPARE(ablage().lies().logo.size(), QSize(300, 100));
}

void TestBriefkopfablage::aCopyThatCanNotBeWrittenIsTold_data()
{
    QTest::addColumn<Schritt>("schritt");
    QTest::newRow("making the new file") << Schritt::Anlegen;
    QTest::newRow("writing it") << Schritt::Schreiben;
    QTest::newRow("making it safe") << Schritt::DateiSichern;
    QTest::newRow("putting it in its place") << Schritt::Umbenennen;
    QTest::newRow("making the change of names safe") << Schritt::OrdnerSichern;
}

void TestBriefkopfablage::aCopyThatCanNotBeWrittenIsTold()
{
    QFETCH(const Schritt, schritt);
    QCOMPARE(ablage().uebernimmLogo(bild(u"logo.png"_s, {300, 100})), std::optional<Hindernis>());
    const QString anderes = bild(u"anderes.png"_s, {200, 200});
    {
        const Stoerung tausch(Schritt::Tauschen); // a file system that can only rename
        const Stoerung stoerung(schritt);
        QCOMPARE(ablage().uebernimmLogo(anderes), std::optional(Hindernis::NichtZuSichern));
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QCOMPARE(ablage().lies().logo.size(), QSize(300, 100));
    QCOMPARE(ablage().uebernimmLogo(anderes), std::optional<Hindernis>());
    QCOMPARE(ablage().lies().logo.size(), QSize(200, 200));
}

void TestBriefkopfablage::aLogoThatIsGoneIsTold_data()
{
    QTest::addColumn<bool>("da");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("taken away by somebody") << false << QByteArray();
    QTest::newRow("emptied") << true << QByteArray();
    QTest::newRow("damaged") << true << QByteArray("\x89PNG\r\n\x1a\n");
}

void TestBriefkopfablage::aLogoThatIsGoneIsTold()
{
    QFETCH(const bool, da);
    QFETCH(const QByteArray, bytes);
    ablage().setzeName(u"Praxis"_s);
    QCOMPARE(ablage().uebernimmLogo(bild(u"logo.png"_s, {300, 100})), std::optional<Hindernis>());
    QVERIFY(QFile::remove(ablage().logodatei()));
    if (da) {
        schreibe(u"daten/MahlbergLogo.png"_s, bytes);
    }
    const Briefkopf kopf = ablage().lies();
    QVERIFY(kopf.logo.isNull());
    QVERIFY(kopf.logoFehlt);
    QCOMPARE(kopf.name, u"Praxis"_s);
    QVERIFY(ablage().entferneLogo());
    QVERIFY(!ablage().lies().logoFehlt);
}

void TestBriefkopfablage::aLogoIsTakenAway()
{
    QVERIFY(ablage().entferneLogo()); // none is there
    QCOMPARE(ablage().uebernimmLogo(bild(u"logo.png"_s, {300, 100})), std::optional<Hindernis>());
    QVERIFY(ablage().entferneLogo());
    QVERIFY(!ablage().hatLogo());
    QVERIFY(!QFile::exists(ablage().logodatei()));
    QVERIFY(ablage().lies().logo.isNull());
}

/// What lies in its place is a folder with something in it.
void TestBriefkopfablage::aLogoThatCanNotBeTakenAwayStays()
{
    m_einstellungen->setValue(u"Briefkopf/Logo"_s, true);
    QVERIFY(QDir().mkpath(pfad(u"daten/MahlbergLogo.png/darin"_s)));
    QVERIFY(!ablage().entferneLogo());
    QVERIFY(ablage().hatLogo());
    QVERIFY(ablage().lies().logoFehlt);
}

void TestBriefkopfablage::everyObstacleHasWords()
{
    QSet<QString> worte;
    for (const Hindernis eines : {Hindernis::NichtZuLesen, Hindernis::KeinBild, Hindernis::ZuGross,
                                  Hindernis::NichtZuSichern}) {
        worte << inWorten(eines);
    }
    QCOMPARE(worte.size(), 4);
    QVERIFY(inWorten(Hindernis::KeinBild).contains(u"PNG"_s));
    QVERIFY(inWorten(Hindernis::ZuGross).contains(u"20 MB"_s));
    QVERIFY(inWorten(Hindernis::NichtZuSichern).contains(u"sichern"_s));
    QVERIFY(inWorten(Hindernis::NichtZuLesen).contains(u"lesen"_s));
}

QTEST_MAIN(TestBriefkopfablage)
#include "TestBriefkopfablage.moc"
