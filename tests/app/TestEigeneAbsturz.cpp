#include "../model/Warten.h"
#include "Absturzhelfer.h"
#include "Archivdatei.h"
#include "Probefenster.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QThread>

#include <csignal>

#include <sys/wait.h>

/// The program is killed while it saves.
class TestEigeneAbsturz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFileIsTheOldOneOrTheNewOne();

private:
    int empfange();
    void beginne(int nummer);

    QProcess m_helfer;
};

int TestEigeneAbsturz::empfange()
{
    int zahl = -1;
    while (m_helfer.bytesAvailable() < qint64(sizeof zahl)) {
        if (!m_helfer.waitForReadyRead()) {
            return -1;
        }
    }
    m_helfer.read(reinterpret_cast<char *>(&zahl), sizeof zahl);
    return zahl;
}

void TestEigeneAbsturz::beginne(int nummer)
{
    m_helfer.write(reinterpret_cast<const char *>(&nummer), sizeof nummer);
    QVERIFY(m_helfer.waitForBytesWritten());
}

void TestEigeneAbsturz::theFileIsTheOldOneOrTheNewOne()
{
    constexpr int male = 1000;
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(3));
    const QString pfad = heim.eigeneDatei();
    heim.schreibeEigene(gesicherteLebensmittel(0));
    m_helfer.start(QStringLiteral(MAHLBERG_ABSTURZHELFER), {pfad});
    QVERIFY(m_helfer.waitForStarted());

    QByteArray alt = Archiver::write(gesicherteLebensmittel(0));
    int getoetet = 0;
    int neue = 0;
    int nummer = 0;
    qint64 dauer = 0; // of the last save that came to its end
    const QDir ordner = QFileInfo(pfad).dir();
    while (getoetet < male && nummer < 5 * male) {
        beginne(++nummer);
        const int kind = empfange();
        QVERIFY(kind > 1);
        QElapsedTimer uhr;
        uhr.start();
        if (dauer > 0) {
            const auto moment = static_cast<quint64>(QRandomGenerator::global()->bounded(dauer));
            warteBis(uhr, moment);
            kill(kind, SIGKILL);
        }
        const int ende = empfange();
        const bool sofort = WIFSIGNALED(ende);
        QVERIFY(sofort || (WIFEXITED(ende) && WEXITSTATUS(ende) == 0));
        dauer = sofort ? dauer : uhr.nsecsElapsed();

        QFile datei(pfad);
        QVERIFY(datei.open(QIODevice::ReadOnly));
        const QByteArray bytes = datei.readAll();
        const QByteArray neu = Archiver::write(gesicherteLebensmittel(nummer));
        QVERIFY(bytes == neu || (bytes == alt && sofort));
        getoetet += sofort ? 1 : 0;
        neue += sofort && bytes == neu ? 1 : 0;
        alt = bytes;
    }
    m_helfer.closeWriteChannel();
    QVERIFY(m_helfer.waitForFinished());
    qInfo("%d of %d saves killed: %d times the new file is there, %d times the old one", getoetet,
          nummer, neue, getoetet - neue);
    QCOMPARE(getoetet, male);
    QVERIFY(neue < male); // most are killed before the new file takes the old one's place

    // Each helper has cleaned up after the one before; the program does after the last one.
    const Probefenster fenster(heim);
    QCOMPARE(fenster->KundenArray.size(), anzahlGesicherte);
    // What a save left that was killed when both the old and the new file were there may be all
    // that there is of one of them: it is kept under its moment, and nothing else is left.
    const QRegularExpression kopie(
        QStringLiteral(R"(^MahlbergCustomnutr \d{4}-\d\d-\d\d [\d.]{8}( \(\d+\))?\.daten$)"));
    QStringList rest = ordner.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    QVERIFY(rest.removeOne(QFileInfo(pfad).fileName()));
    QVERIFY(rest.size() <= 10);
    for (const QString &name : std::as_const(rest)) {
        QVERIFY2(kopie.match(name).hasMatch(), qPrintable(name));
        QCOMPARE(Archivdatei::lesen(ordner.filePath(name)).archiv.verzeichnis.size(),
                 anzahlGesicherte);
    }
}

QTEST_MAIN(TestEigeneAbsturz)
#include "TestEigeneAbsturz.moc"
