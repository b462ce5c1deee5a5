#include "Archivdatei.h"
#include "Dateihueter.h"
#include "Stoerung.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/stat.h>

/// A file that is to hold a store at every moment, for somebody who asks for that again and again.
class TestDateihueterHalten : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFirstTimeItIsWritten();
    void anEmptyStoreIsWrittenToo();
    void nothingChangedNothingIsWritten();
    void aChangedStoreIsWritten();
    void anotherWriterIsOverwritten();
    void anotherWriterOfTheSameSizeIsOverwritten();
    void aDeletedFileComesBack();
    void aFolderThatIsInTheWayIsTriedAgain();
    void anotherPathIsAnotherFile();
    void twoStoresOnOneFileTakeTurns();
    void aFailedWriteIsTriedAgainAfterSomeSeconds();
    void aFailedWriteIsTriedAgainAfterAChange();
    void aWriteThatFailedOnceIsDoneLater();
    void aClockSetBackDelaysNothing();
    void onlyWhatWasWrittenIsTold();
    void askingAgainWhenItFailsIsNoLoop();

private:
    QString pfad() const { return m_ordner->filePath(QStringLiteral("eigene.daten")); }
    Lebensmittelverzeichnis inDerDatei() const
    {
        return Archivdatei::lesen(pfad()).archiv.verzeichnis;
    }
    quint64 nummer() const
    {
        struct stat angaben = {};
        return stat(QFile::encodeName(pfad()).constData(), &angaben) == 0 ? angaben.st_ino : 0;
    }

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

Lebensmittelverzeichnis bestand(const QString &name, float kal)
{
    Datenmodul eines;
    eines.setName(name);
    eines.setkal(kal);
    return {{name, eines}};
}

const QDateTime moment(QDate(2026, 11, 20), QTime(14, 3, 5));
const QString brot = QStringLiteral("Brot");

} // namespace

void TestDateihueterHalten::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
}

void TestDateihueterHalten::theFirstTimeItIsWritten()
{
    Dateihueter datei;
    datei.halte(pfad(), bestand(brot, 7));
    QCOMPARE(inDerDatei().value(brot).kal(), 7.0F);
}

void TestDateihueterHalten::anEmptyStoreIsWrittenToo()
{
    Dateihueter datei;
    datei.halte(pfad(), {});
    QCOMPARE(Archivdatei::lesen(pfad()).zustand, Archivdatei::Zustand::Gelesen);
    QVERIFY(inDerDatei().isEmpty());
}

void TestDateihueterHalten::nothingChangedNothingIsWritten()
{
    Dateihueter datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(pfad(), eigene);
    const quint64 vorher = nummer();
    for (int i = 0; i < 100; ++i) {
        datei.halte(pfad(), eigene);
    }
    QCOMPARE(nummer(), vorher);
}

void TestDateihueterHalten::aChangedStoreIsWritten()
{
    Dateihueter datei;
    Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(pfad(), eigene);
    eigene[brot].setkal(8);
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().value(brot).kal(), 8.0F);
    eigene.clear();
    datei.halte(pfad(), eigene);
    QVERIFY(inDerDatei().isEmpty());
}

void TestDateihueterHalten::anotherWriterIsOverwritten()
{
    Dateihueter datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(pfad(), eigene);
    QVERIFY(Archivdatei::schreiben(pfad(), bestand(QStringLiteral("Apfelmus"), 7)));
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().keys(), QStringList(brot));
}

/// At once, so that even the date may be the same.
void TestDateihueterHalten::anotherWriterOfTheSameSizeIsOverwritten()
{
    Dateihueter datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    for (int i = 0; i < 20; ++i) {
        datei.halte(pfad(), eigene);
        QVERIFY(Archivdatei::schreiben(pfad(), bestand(brot, 9)));
        datei.halte(pfad(), eigene);
        QCOMPARE(inDerDatei().value(brot).kal(), 7.0F);
    }
}

void TestDateihueterHalten::aDeletedFileComesBack()
{
    Dateihueter datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(pfad(), eigene);
    QVERIFY(QFile::remove(pfad()));
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().keys(), QStringList(brot));
}

void TestDateihueterHalten::aFolderThatIsInTheWayIsTriedAgain()
{
    Dateihueter datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    QVERIFY(QDir().mkpath(pfad()));
    datei.halte(pfad(), eigene);
    QVERIFY(QFileInfo(pfad()).isDir());
    QVERIFY(QDir().rmdir(pfad()));
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().keys(), QStringList(brot));
}

void TestDateihueterHalten::anotherPathIsAnotherFile()
{
    Dateihueter datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(m_ordner->filePath(QStringLiteral("andere.daten")), eigene);
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().keys(), QStringList(brot));
}

/// As those of two plans.
void TestDateihueterHalten::twoStoresOnOneFileTakeTurns()
{
    Dateihueter datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    const Lebensmittelverzeichnis andere = bestand(brot, 9);
    for (int i = 0; i < 3; ++i) {
        datei.halte(pfad(), eigene);
        QCOMPARE(inDerDatei().value(brot).kal(), 7.0F);
        datei.halte(pfad(), andere);
        QCOMPARE(inDerDatei().value(brot).kal(), 9.0F);
    }
    QCOMPARE(QFileInfo(pfad()).dir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void TestDateihueterHalten::aFailedWriteIsTriedAgainAfterSomeSeconds()
{
    Dateihueter datei;
    QDateTime jetzt = moment;
    datei.setUhr([&jetzt] { return jetzt; });
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    const Stoerung stoerung(Stoerung::Schritt::Anlegen);
    for (const int sekunde : {0, 0, 0, 1, 4}) {
        jetzt = moment.addSecs(sekunde);
        datei.halte(pfad(), eigene);
        QCOMPARE(stoerung.ausfaelle(), 1);
    }
    jetzt = moment.addSecs(5);
    for (int i = 0; i < 10; ++i) {
        datei.halte(pfad(), eigene);
        QCOMPARE(stoerung.ausfaelle(), 2);
    }
}

void TestDateihueterHalten::aFailedWriteIsTriedAgainAfterAChange()
{
    Dateihueter datei;
    datei.setUhr([] { return moment; });
    Lebensmittelverzeichnis eigene = bestand(brot, 7);
    const Lebensmittelverzeichnis andere = bestand(brot, 9);
    const Stoerung stoerung(Stoerung::Schritt::Anlegen);
    for (const float kal : {1.0F, 2.0F, 3.0F}) {
        eigene[brot].setkal(kal);
        for (int i = 0; i < 10; ++i) {
            datei.halte(pfad(), eigene);
            datei.halte(pfad(), andere); // of another plan: tried once, whatever this one does
        }
        QCOMPARE(stoerung.ausfaelle(), 1 + static_cast<int>(kal));
    }
}

void TestDateihueterHalten::aWriteThatFailedOnceIsDoneLater()
{
    Dateihueter datei;
    QDateTime jetzt = moment;
    datei.setUhr([&jetzt] { return jetzt; });
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    const Stoerung stoerung(Stoerung::Schritt::Schreiben, 0, true);
    datei.halte(pfad(), eigene);
    QVERIFY(!QFile::exists(pfad()));
    jetzt = jetzt.addSecs(5);
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().keys(), QStringList(brot));
}

void TestDateihueterHalten::aClockSetBackDelaysNothing()
{
    Dateihueter datei;
    QDateTime jetzt = moment;
    datei.setUhr([&jetzt] { return jetzt; });
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    const Stoerung stoerung(Stoerung::Schritt::Anlegen);
    datei.halte(pfad(), eigene);
    jetzt = moment.addYears(-1);
    datei.halte(pfad(), eigene);
    QCOMPARE(stoerung.ausfaelle(), 2);
    datei.halte(pfad(), eigene);
    QCOMPARE(stoerung.ausfaelle(), 2);
}

void TestDateihueterHalten::onlyWhatWasWrittenIsTold()
{
    Dateihueter datei;
    QSignalSpy geschrieben(&datei, &Dateihueter::geschrieben);
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(pfad(), eigene);
    QCOMPARE(geschrieben.size(), 1);
    QCOMPARE(geschrieben[0][0].toString(), pfad());
    QCOMPARE(geschrieben[0][1].value<Lebensmittelverzeichnis>().keys(), QStringList(brot));
    datei.halte(pfad(), eigene);
    datei.halte(pfad(), bestand(brot, 7)); // another store of the same foods
    QCOMPARE(geschrieben.size(), 1);
    QVERIFY(datei.schreiben(pfad(), eigene)); // who writes wants to know, also of the same bytes
    QCOMPARE(geschrieben.size(), 2);
}

/// A plan that is painted while it hears of a failure asks again; that must come to an end.
void TestDateihueterHalten::askingAgainWhenItFailsIsNoLoop()
{
    Dateihueter datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    const Stoerung stoerung(Stoerung::Schritt::Anlegen);
    connect(&datei, &Dateihueter::gemeldet, this, [&] { datei.halte(pfad(), eigene); });
    datei.halte(pfad(), eigene);
    QCOMPARE(stoerung.ausfaelle(), 1);
}

QTEST_GUILESS_MAIN(TestDateihueterHalten)
#include "TestDateihueterHalten.moc"
