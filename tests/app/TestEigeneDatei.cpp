#include "Archivdatei.h"
#include "Dateihueter.h"
#include "Hindernisse.h"
#include "Probefenster.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <bit>

#include <sys/stat.h>

using enum Naehrwert;

/// The file of the own foods, over starts and mishaps.
class TestEigeneDatei : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theFirstFoodMakesTheFile();
    void aNewFoodTakesItsPlaceAtTheNextStart();
    void theOrderKnowsNeitherCaseNorUmlauts();
    void randomFoodsComeBackToTheLastBit();
    void everyChangeIsInTheFileAtOnce();
    void aSaveThatChangesNothingLeavesTheFile();
    void aRemovedFolderIsMadeAgain();
    void onAFullDiskTheProgramGoesOn();
    void onAReadOnlyDiskTheProgramGoesOn();
    void aDamagedFileIsKeptBeforeItIsOverwritten_data();
    void aDamagedFileIsKeptBeforeItIsOverwritten();
    void anUnreadableFileIsKeptToo();
    void unreadableAtTheStartReadableLater_data();
    void unreadableAtTheStartReadableLater();
    void replacedFromOutsideWhileRunning();
    void yesterdaysFoodsAreKept();
    void onlyTheUserMayRead();
    void allWindowsShareOneKeeper();

private:
    void starte() { m_fenster = std::make_unique<Probefenster>(*m_heim); }
    void starteNeu()
    {
        m_fenster.reset();
        starte();
    }
    /// Puts a food on display and saves it.
    void sichere(const Datenmodul &food) const;
    /// Lets everybody come to the folder of the file, and gives it these rights.
    void gibRechte(mode_t rechte) const
    {
        for (const char *oben : {".", "Library", "Library/Application Support"}) {
            const QString path = m_heim->pfad(QLatin1String(oben));
            QCOMPARE(chmod(QFile::encodeName(path).constData(), 0755), 0);
        }
        QCOMPARE(chmod(QFile::encodeName(ordner().path()).constData(), rechte), 0);
    }
    QDir ordner() const { return QFileInfo(m_heim->eigeneDatei()).dir(); }
    QByteArray bytes(const QString &name = QStringLiteral("MahlbergCustomnutr.daten")) const
    {
        QFile datei(ordner().filePath(name));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }
    QList<QStringList> aufDerPlatte() const
    {
        return inhalt(Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis);
    }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

/// "MahlbergCustomnutr 2026-11-20 14.03.05.daten"
const QRegularExpression kopie(
    QStringLiteral("^MahlbergCustomnutr \\d{4}-\\d\\d-\\d\\d \\d\\d\\.\\d\\d\\.\\d\\d\\.daten$"));

QStringList liste(const char *namen)
{
    return QString::fromUtf8(namen).split(u'|');
}

} // namespace

void TestEigeneDatei::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(3));
}

void TestEigeneDatei::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestEigeneDatei::sichere(const Datenmodul &food) const
{
    controller().feldA->setStringValue(food.name());
    for (const auto &zeile : naehrwerte) {
        controller().wertfelder()[stelle(zeile.wert)]->setFloatValue(food.wert(zeile.wert));
    }
    for (const auto &zeile : wertungen) {
        controller().wertungsfelder()[stelle(zeile.wertung)]->setStringValue(
            food.wertung(zeile.wertung));
    }
    controller().SicherneigeneLM();
}

void TestEigeneDatei::theFirstFoodMakesTheFile()
{
    starte();
    QVERIFY(ordner().exists());
    QVERIFY(ordner().isEmpty());
    sichere(lebensmittel(QStringLiteral("Müsli"), {{kal, 370}}));
    QCOMPARE(ordner().entryList(QDir::Files),
             QStringList{QFileInfo(m_heim->eigeneDatei()).fileName()});
}

void TestEigeneDatei::aNewFoodTakesItsPlaceAtTheNextStart()
{
    starte();
    for (const QString &name : liste("Müsli|Zimt|Apfelmus")) {
        sichere(lebensmittel(name));
    }
    QCOMPARE(controller().KundenArray, liste("Müsli|Zimt|Apfelmus"));
    starteNeu();
    QCOMPARE(controller().KundenArray, liste("Apfelmus|Müsli|Zimt"));
    sichere(lebensmittel(QStringLiteral("Brei")));
    QCOMPARE(controller().KundenArray, liste("Apfelmus|Müsli|Zimt|Brei"));
    sichere(lebensmittel(QStringLiteral("Müsli"), {{kal, 1}}));
    QCOMPARE(controller().KundenArray, liste("Apfelmus|Müsli|Zimt|Brei"));
    starteNeu();
    QCOMPARE(controller().KundenArray, liste("Apfelmus|Brei|Müsli|Zimt"));
}

void TestEigeneDatei::theOrderKnowsNeitherCaseNorUmlauts()
{
    // Not by translation either, unlike the built-in foods.
    const Probeuebersetzer englisch({{QStringLiteral("zuletzt"), QStringLiteral("Aardvark")}});
    starte();
    for (const QString &name : liste("Öl|zuletzt|Ähren|apfel|Birne|Zander|Apfelsine|123|_x")) {
        sichere(lebensmittel(name));
    }
    starteNeu();
    QCOMPARE(controller().KundenArray,
             liste("123|_x|apfel|Apfelsine|Birne|Zander|zuletzt|Ähren|Öl"));
    QCOMPARE(m_fenster->zelle(0, inEigen).text, QStringLiteral("123"));
}

void TestEigeneDatei::randomFoodsComeBackToTheLastBit()
{
    QRandomGenerator zufall(99);
    starte();
    Lebensmittelverzeichnis alle;
    const QString zeichen = QStringLiteral("aZäß€ 0\n\"|Ω");
    for (int i = 0; i < 60; ++i) {
        Datenmodul food;
        QString name = QString::number(zufall.bounded(40)); // some are saved twice
        name += zeichen[zufall.bounded(static_cast<int>(zeichen.size()))];
        food.setName(name);
        for (const auto &zeile : naehrwerte) {
            const auto zahl = std::bit_cast<float>(zufall.generate());
            food.setWert(zeile.wert, std::isnan(zahl) ? 0.1F : zahl);
        }
        for (const auto &zeile : wertungen) {
            food.setWertung(zeile.wertung,
                            zeichen.left(zufall.bounded(static_cast<int>(zeichen.size()))));
        }
        alle.insert(food.name(), food);
        sichere(food);
    }
    QCOMPARE(inhalt(controller().KundenDictionary), inhalt(alle));
    starteNeu();
    QCOMPARE(inhalt(controller().KundenDictionary), inhalt(alle));
    QStringList namen = alle.keys();
    std::stable_sort(namen.begin(), namen.end(), [](const QString &a, const QString &b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    QCOMPARE(controller().KundenArray, namen);
}

void TestEigeneDatei::everyChangeIsInTheFileAtOnce()
{
    starte();
    sichere(lebensmittel(QStringLiteral("A"), {{kal, 1}}));
    QCOMPARE(aufDerPlatte(), inhalt(controller().KundenDictionary));
    sichere(lebensmittel(QStringLiteral("B"), {{kal, 2}}));
    sichere(lebensmittel(QStringLiteral("A"), {{kal, 3}}));
    QCOMPARE(aufDerPlatte(), inhalt(controller().KundenDictionary));
    QCOMPARE(aufDerPlatte().size(), 2);
    m_fenster->klicke(1, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    QCOMPARE(aufDerPlatte(), inhalt(controller().KundenDictionary));
    QCOMPARE(aufDerPlatte().size(), 1);
}

void TestEigeneDatei::aSaveThatChangesNothingLeavesTheFile()
{
    starte();
    const auto knoten = [this] {
        struct stat status = {};
        stat(QFile::encodeName(m_heim->eigeneDatei()).constData(), &status);
        return status.st_ino;
    };
    sichere(lebensmittel(QStringLiteral("A"), {{kal, 1}}));
    const auto vorher = knoten();
    sichere(lebensmittel(QStringLiteral("A"), {{kal, 1}}));
    QCOMPARE(knoten(), vorher);
    QFile::remove(m_heim->eigeneDatei());
    sichere(lebensmittel(QStringLiteral("A"), {{kal, 1}}));
    QCOMPARE(aufDerPlatte().size(), 1);
}

void TestEigeneDatei::aRemovedFolderIsMadeAgain()
{
    starte();
    sichere(lebensmittel(QStringLiteral("A")));
    QVERIFY(ordner().removeRecursively());
    sichere(lebensmittel(QStringLiteral("B")));
    QCOMPARE(aufDerPlatte().size(), 2);
}

void TestEigeneDatei::onAFullDiskTheProgramGoesOn()
{
    starte();
    sichere(lebensmittel(QStringLiteral("A")));
    const QByteArray vorher = bytes();
    {
        const VolleFestplatte voll(100);
        sichere(lebensmittel(QStringLiteral("B"), {{kal, 2}}));
        QCOMPARE(controller().KundenArray, liste("A|B"));
        m_fenster->klicke(1, inName);
        m_fenster->klicke(1, inEigen);
        QCOMPARE(controller().feldB->intValue(), 2);
        QCOMPARE(bytes(), vorher);
    }
    QVERIFY(m_heim->meldungen.isEmpty());
    QCOMPARE(ordner().entryList(QDir::Files).size(), 1);
    sichere(lebensmittel(QStringLiteral("C"))); // there is room again
    QCOMPARE(aufDerPlatte().size(), 3);
}

void TestEigeneDatei::onAReadOnlyDiskTheProgramGoesOn()
{
    starte();
    sichere(lebensmittel(QStringLiteral("A")));
    sichere(lebensmittel(QStringLiteral("B")));
    const QByteArray vorher = bytes();
    QVERIFY(QFile::setPermissions(m_heim->eigeneDatei(), QFile::ReadOwner | QFile::ReadGroup));
    gibRechte(0555);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        sichere(lebensmittel(QStringLiteral("C")));
        QCOMPARE(controller().KundenArray, liste("A|B|C"));
        m_fenster->klicke(0, inEigen);
        m_heim->antworten = {1};
        controller().LoescheneigeneLM();
        QCOMPARE(controller().KundenArray, liste("B|C"));
        QCOMPARE(m_heim->meldungen.size(), 1); // the question only
        QCOMPARE(bytes(), vorher);
    }
    gibRechte(0755);
    QCOMPARE(bytes(), vorher);
    sichere(lebensmittel(QStringLiteral("D")));
    QCOMPARE(aufDerPlatte().size(), 3);
}

void TestEigeneDatei::aDamagedFileIsKeptBeforeItIsOverwritten_data()
{
    QTest::addColumn<QByteArray>("rest");
    QTest::newRow("something else") << QByteArray("PK\x03\x04 not foods at all");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half a file") << QByteArray("half");
}

void TestEigeneDatei::aDamagedFileIsKeptBeforeItIsOverwritten()
{
    QFETCH(QByteArray, rest);
    if (rest == "half") {
        m_heim->schreibeEigene(zaehltabelle(20));
        rest = bytes().left(700);
    }
    QFile datei(m_heim->eigeneDatei());
    QVERIFY(datei.open(QIODevice::WriteOnly | QIODevice::Truncate));
    datei.write(rest);
    datei.close();

    starte();
    QVERIFY(controller().KundenArray.isEmpty());
    QVERIFY(controller().KundenDictionary.isEmpty());
    QVERIFY(m_heim->meldungen.isEmpty());
    QCOMPARE(bytes(), rest);

    sichere(lebensmittel(QStringLiteral("A")));
    sichere(lebensmittel(QStringLiteral("B")));
    QCOMPARE(aufDerPlatte().size(), 2);
    const QStringList kopien = ordner().entryList(QDir::Files).filter(kopie);
    QCOMPARE(kopien.size(), 1); // only before the first time
    QCOMPARE(bytes(kopien[0]), rest);
    QCOMPARE(ordner().entryList(QDir::Files).size(), 2);
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestEigeneDatei::anUnreadableFileIsKeptToo()
{
    m_heim->schreibeEigene(zaehltabelle(2));
    const QByteArray vorher = bytes();
    QVERIFY(QFile::setPermissions(m_heim->eigeneDatei(), QFileDevice::Permissions()));
    gibRechte(0777);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        starte();
        QVERIFY(controller().KundenArray.isEmpty());
        sichere(lebensmittel(QStringLiteral("A")));
        QCOMPARE(aufDerPlatte().size(), 1);
    }
    const QStringList kopien = ordner().entryList(QDir::Files).filter(kopie);
    QCOMPARE(kopien.size(), 1);
    QVERIFY(QFile::setPermissions(ordner().filePath(kopien[0]), QFile::ReadOwner));
    QCOMPARE(bytes(kopien[0]), vorher);
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestEigeneDatei::unreadableAtTheStartReadableLater_data()
{
    QTest::addColumn<bool>("mitPlan");
    QTest::newRow("the main window alone") << false;
    QTest::newRow("with a plan, which reads them and then saves first") << true;
}

/// 300 foods that could not be read at the start: one saved food doesn't take their place.
void TestEigeneDatei::unreadableAtTheStartReadableLater()
{
    QFETCH(bool, mitPlan);
    m_heim->schreibeEigene(zaehltabelle(300));
    const QByteArray vorher = bytes();
    QVERIFY(QFile::setPermissions(m_heim->eigeneDatei(), QFileDevice::Permissions()));
    gibRechte(0777);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        starte();
        QVERIFY(controller().KundenArray.isEmpty());
    }
    QVERIFY(QFile::setPermissions(m_heim->eigeneDatei(), QFile::ReadOwner | QFile::WriteOwner));
    if (mitPlan) {
        controller().Planmoduloeffnen();
        QCOMPARE(controller().planmodul->KundenDictionary.size(), 300);
    }
    sichere(lebensmittel(QStringLiteral("A")));
    QCOMPARE(aufDerPlatte().size(), 1);
    const QStringList kopien = ordner().entryList(QDir::Files).filter(kopie);
    QCOMPARE(kopien.size(), 1);
    QCOMPARE(bytes(kopien[0]), vorher);
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestEigeneDatei::replacedFromOutsideWhileRunning()
{
    starte();
    sichere(lebensmittel(QStringLiteral("A")));
    m_heim->schreibeEigene(zaehltabelle(300));
    const QByteArray fremd = bytes();
    sichere(lebensmittel(QStringLiteral("B")));
    QCOMPARE(aufDerPlatte().size(), 2);
    const QStringList kopien = ordner().entryList(QDir::Files).filter(kopie);
    QCOMPARE(kopien.size(), 1);
    QCOMPARE(bytes(kopien[0]), fremd);
    sichere(lebensmittel(QStringLiteral("C")));
    QCOMPARE(ordner().entryList(QDir::Files).size(), 2);
}

void TestEigeneDatei::yesterdaysFoodsAreKept()
{
    m_heim->schreibeEigene(zaehltabelle(20));
    const QByteArray gestern = bytes();
    QFile datei(m_heim->eigeneDatei());
    QVERIFY(datei.open(QIODevice::ReadWrite));
    QVERIFY(datei.setFileTime(QDateTime(QDate(2026, 2, 3), QTime(18, 0)),
                              QFileDevice::FileModificationTime));
    datei.close();
    starte();
    sichere(lebensmittel(QStringLiteral("A")));
    sichere(lebensmittel(QStringLiteral("B")));
    QCOMPARE(QDir(ordner().filePath(QStringLiteral("Sicherungen"))).entryList(QDir::Files),
             QStringList(QStringLiteral("MahlbergCustomnutr 2026-02-03.daten")));
    QCOMPARE(bytes(QStringLiteral("Sicherungen/MahlbergCustomnutr 2026-02-03.daten")), gestern);
}

void TestEigeneDatei::onlyTheUserMayRead()
{
    starte();
    sichere(lebensmittel(QStringLiteral("A")));
    controller().toolbarlebensmittelweitergabe();
    for (const char *name : {"MahlbergCustomnutr.daten", "MahlbergPlanmod.daten"}) {
        const QFileInfo info(ordner().filePath(QLatin1String(name)));
        QCOMPARE(info.permissions() & ~(QFile::ReadUser | QFile::WriteUser),
                 QFile::ReadOwner | QFile::WriteOwner);
    }
}

/// What one window knows of a file, all know; else they would take each other for strangers.
void TestEigeneDatei::allWindowsShareOneKeeper()
{
    const QString plan = ordner().filePath(QStringLiteral("MahlbergPlanmod.daten"));
    for (const QString &path : {m_heim->eigeneDatei(), plan}) {
        QFile datei(path);
        QVERIFY(datei.open(QIODevice::WriteOnly));
        QVERIFY(datei.write("no foods") > 0);
    }
    starte();
    const Dateihueter &dateien = *m_fenster->oberflaeche().dateien;
    QCOMPARE(dateien.offeneMeldungen().size(), 2);
    QCOMPARE(dateien.offeneMeldungen()[0].path, m_heim->eigeneDatei());
    QCOMPARE(dateien.offeneMeldungen()[1].path, plan); // the calculator's plan has read it
    controller().Planmoduloeffnen();
    QCOMPARE(dateien.offeneMeldungen().size(), 2);
    for (int i = 0; i < 3; ++i) {
        sichere(lebensmittel(QStringLiteral("A"), {{kal, static_cast<float>(i)}}));
        controller().planmodul->nameimportvontoolbar(QStringLiteral("A"));
        QVERIFY(!controller().planmodul->PlanTabelle->grab().isNull());
        m_fenster->rechner().plan->nameimportvontoolbar(QStringLiteral("B"));
    }
    QCOMPARE(ordner().entryList(QDir::Files).filter(QStringLiteral(" 20")).size(), 2);
}

QTEST_MAIN(TestEigeneDatei)
#include "TestEigeneDatei.moc"
