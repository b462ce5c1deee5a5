#include "Archivdatei.h"
#include "Bestandsdatei.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/stat.h>

/// A file that is to hold a store at every moment.
class TestBestandsdatei : public QObject
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

const QString brot = QStringLiteral("Brot");

} // namespace

void TestBestandsdatei::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
}

void TestBestandsdatei::theFirstTimeItIsWritten()
{
    Bestandsdatei datei;
    datei.halte(pfad(), bestand(brot, 7));
    QCOMPARE(inDerDatei().value(brot).kal(), 7.0F);
}

void TestBestandsdatei::anEmptyStoreIsWrittenToo()
{
    Bestandsdatei datei;
    datei.halte(pfad(), {});
    QCOMPARE(Archivdatei::lesen(pfad()).zustand, Archivdatei::Zustand::Gelesen);
    QVERIFY(inDerDatei().isEmpty());
}

void TestBestandsdatei::nothingChangedNothingIsWritten()
{
    Bestandsdatei datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(pfad(), eigene);
    const quint64 vorher = nummer();
    for (int i = 0; i < 100; ++i) {
        datei.halte(pfad(), eigene);
    }
    QCOMPARE(nummer(), vorher);
}

void TestBestandsdatei::aChangedStoreIsWritten()
{
    Bestandsdatei datei;
    Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(pfad(), eigene);
    eigene[brot].setkal(8);
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().value(brot).kal(), 8.0F);
    eigene.clear();
    datei.halte(pfad(), eigene);
    QVERIFY(inDerDatei().isEmpty());
}

void TestBestandsdatei::anotherWriterIsOverwritten()
{
    Bestandsdatei datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(pfad(), eigene);
    QVERIFY(Archivdatei::schreiben(pfad(), bestand(QStringLiteral("Apfelmus"), 7)));
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().keys(), QStringList(brot));
}

/// At once, so that even the date may be the same.
void TestBestandsdatei::anotherWriterOfTheSameSizeIsOverwritten()
{
    Bestandsdatei datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    for (int i = 0; i < 20; ++i) {
        datei.halte(pfad(), eigene);
        QVERIFY(Archivdatei::schreiben(pfad(), bestand(brot, 9)));
        datei.halte(pfad(), eigene);
        QCOMPARE(inDerDatei().value(brot).kal(), 7.0F);
    }
}

void TestBestandsdatei::aDeletedFileComesBack()
{
    Bestandsdatei datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(pfad(), eigene);
    QVERIFY(QFile::remove(pfad()));
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().keys(), QStringList(brot));
}

void TestBestandsdatei::aFolderThatIsInTheWayIsTriedAgain()
{
    Bestandsdatei datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    QVERIFY(QDir().mkpath(pfad()));
    datei.halte(pfad(), eigene);
    QVERIFY(QFileInfo(pfad()).isDir());
    QVERIFY(QDir().rmdir(pfad()));
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().keys(), QStringList(brot));
}

void TestBestandsdatei::anotherPathIsAnotherFile()
{
    Bestandsdatei datei;
    const Lebensmittelverzeichnis eigene = bestand(brot, 7);
    datei.halte(m_ordner->filePath(QStringLiteral("andere.daten")), eigene);
    datei.halte(pfad(), eigene);
    QCOMPARE(inDerDatei().keys(), QStringList(brot));
}

QTEST_GUILESS_MAIN(TestBestandsdatei)
#include "TestBestandsdatei.moc"
