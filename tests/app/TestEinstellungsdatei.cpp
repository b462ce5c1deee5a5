#include "Einstellungen.h"
#include "Hindernisse.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

/// The file of the user defaults: who may read it, what happens to a damaged one, and what is told
/// when it can't be written.
class TestEinstellungsdatei : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aNewFileIsForTheUserAlone_data();
    void aNewFileIsForTheUserAlone();
    void aFileOfAnOlderVersionIsNarrowed_data();
    void aFileOfAnOlderVersionIsNarrowed();
    void everyWriteKeepsTheFileNarrow();
    void aLockThatNobodyHoldsIsClearedAway_data();
    void aLockThatNobodyHoldsIsClearedAway();
    void aLockThatIsHeldStays();
    void whatAKilledWriteLeftIsRemoved_data();
    void whatAKilledWriteLeftIsRemoved();
    void aDamagedFileIsKept_data();
    void aDamagedFileIsKept();
    void aSoundFileIsNotCopied_data();
    void aSoundFileIsNotCopied();
    void theSameDamageIsKeptOnce();
    void tenCopiesAreKept();
    void onlyTheOldestCopyGoes();
    void withoutRoomForACopyTheDamagedFileMovesAway();
    void aDamagedFileInAProtectedFolderStays();
    void aFileThatCantBeUsedStaysAsItIs_data();
    void aFileThatCantBeUsedStaysAsItIs();
    void aFailedWriteIsToldOnceAndItsEndAsWell();
    void whatCouldNotBeWrittenIsWrittenAtTheEnd();

private:
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    QString datei() const { return pfad(QStringLiteral("e/Mahlberg.conf")); }
    void schreibe(const QByteArray &inhalt) const;
    QStringList kopien() const;

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

constexpr auto schluessel = "Gewicht";
const QByteArray heil = "[General]\nGewicht=80.5\n";
const QByteArray kaputt = "[General]\nGewicht=80.5\nthis is no line of settings\n";

/// The permissions of a file or folder as the shell writes them, in octal digits.
QString rechte(const QString &pfad)
{
    struct stat zustand = {};
    return stat(QFile::encodeName(pfad).constData(), &zustand) == 0
               ? QString::number(zustand.st_mode & 07777, 8)
               : QStringLiteral("none");
}

void setzeRechte(const QString &pfad, mode_t rechte)
{
    QVERIFY(chmod(QFile::encodeName(pfad).constData(), rechte) == 0);
}

QByteArray lies(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("none");
}

/// Counts how often the settings' waiting time ran out.
class Zeitzaehler : public QObject
{
public:
    int abgelaufen = 0;

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        abgelaufen += event->type() == QEvent::Timer ? 1 : 0;
        return false;
    }
};

/// A start of the program that changes a value, and its end.
void starteUndSetze(const QString &datei, double gewicht)
{
    Einstellungen einstellungen(datei, QSettings::IniFormat);
    einstellungen.setValue(QLatin1String(schluessel), gewicht);
}

} // namespace

void TestEinstellungsdatei::initTestCase()
{
    umask(022); // as on most machines
}

void TestEinstellungsdatei::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_ordner->path()).mkdir(QStringLiteral("e")));
}

void TestEinstellungsdatei::schreibe(const QByteArray &inhalt) const
{
    QFile neu(datei());
    QVERIFY(neu.open(QIODevice::WriteOnly));
    QCOMPARE(neu.write(inhalt), inhalt.size());
}

/// The dated copies, the oldest first.
QStringList TestEinstellungsdatei::kopien() const
{
    return QDir(pfad(QStringLiteral("e")))
        .entryList({QStringLiteral("Mahlberg 2*.conf")}, QDir::Files, QDir::Name);
}

void TestEinstellungsdatei::aNewFileIsForTheUserAlone_data()
{
    QTest::addColumn<bool>("sofort");
    QTest::newRow("written a little later") << false;
    QTest::newRow("written at once") << true;
}

void TestEinstellungsdatei::aNewFileIsForTheUserAlone()
{
    QFETCH(bool, sofort);
    const QString neu = pfad(QStringLiteral("config/Mahlberg/Mahlberg.conf"));
    Einstellungen einstellungen(neu, QSettings::IniFormat);
    einstellungen.setValue(QLatin1String(schluessel), 80.5);
    if (sofort) {
        einstellungen.sync();
    }
    QTRY_COMPARE(lies(neu), heil);
    QCOMPARE(rechte(neu), QStringLiteral("600"));
    QCOMPARE(rechte(pfad(QStringLiteral("config/Mahlberg"))), QStringLiteral("700"));
    QCOMPARE(rechte(pfad(QStringLiteral("config"))), QStringLiteral("700"));
    QCOMPARE(rechte(pfad(QStringLiteral("e"))), QStringLiteral("755")); // nothing else is touched
    QFile danach(pfad(QStringLiteral("later")));                        // e.g. a PDF for others
    QVERIFY(danach.open(QIODevice::WriteOnly));
    QCOMPARE(rechte(danach.fileName()), QStringLiteral("644"));
}

void TestEinstellungsdatei::aFileOfAnOlderVersionIsNarrowed_data()
{
    QTest::addColumn<mode_t>("vorher");
    QTest::addColumn<QString>("nachher");
    QTest::newRow("all may read") << mode_t(0644) << QStringLiteral("600");
    QTest::newRow("a group may write") << mode_t(0660) << QStringLiteral("600");
    QTest::newRow("the user alone") << mode_t(0600) << QStringLiteral("600");
    QTest::newRow("narrower: read only") << mode_t(0400) << QStringLiteral("400");
    QTest::newRow("read only for all") << mode_t(0444) << QStringLiteral("400");
}

void TestEinstellungsdatei::aFileOfAnOlderVersionIsNarrowed()
{
    QFETCH(mode_t, vorher);
    QFETCH(QString, nachher);
    schreibe(heil);
    setzeRechte(datei(), vorher);
    const Einstellungen einstellungen(datei(), QSettings::IniFormat);
    QCOMPARE(rechte(datei()), nachher);
    QCOMPARE(einstellungen.value(QLatin1String(schluessel)).toDouble(), 80.5);
    QCOMPARE(rechte(pfad(QStringLiteral("e"))), QStringLiteral("755")); // it was there before
}

void TestEinstellungsdatei::everyWriteKeepsTheFileNarrow()
{
    Einstellungen einstellungen(datei(), QSettings::IniFormat);
    einstellungen.setValue(QLatin1String(schluessel), 80.5);
    einstellungen.sync();
    setzeRechte(datei(), 0644); // put back from a backup, for instance
    einstellungen.setValue(QLatin1String(schluessel), 81);
    QTRY_VERIFY(lies(datei()).contains("Gewicht=81\n"));
    QCOMPARE(rechte(datei()), QStringLiteral("600"));
    QVERIFY(QFile::remove(datei()));
    einstellungen.setValue(QLatin1String(schluessel), 82);
    QTRY_VERIFY(lies(datei()).contains("Gewicht=82\n"));
    QCOMPARE(rechte(datei()), QStringLiteral("600"));
}

void TestEinstellungsdatei::aLockThatNobodyHoldsIsClearedAway_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbage") << QByteArray("garbage\n\n\n");
    QTest::newRow("a killed program whose number a running one has by now")
        << QByteArray::number(QCoreApplication::applicationPid()) + '\n' +
               QCoreApplication::applicationName().toUtf8() + "\n\n\n\n";
}

/// Waiting for such a lock, the window would stand still for half a minute.
void TestEinstellungsdatei::aLockThatNobodyHoldsIsClearedAway()
{
    QFETCH(QByteArray, inhalt);
    QFile sperre(datei() + QStringLiteral(".lock"));
    QVERIFY(sperre.open(QIODevice::WriteOnly));
    sperre.write(inhalt);
    sperre.close();
    QElapsedTimer uhr;
    uhr.start();
    Einstellungen einstellungen(datei(), QSettings::IniFormat);
    QVERIFY(!sperre.exists());
    einstellungen.setValue(QLatin1String(schluessel), 80.5);
    einstellungen.sync();
    QCOMPARE(lies(datei()), heil);
    QVERIFY(sperre.open(QIODevice::WriteOnly)); // and once more while the program runs
    sperre.close();
    einstellungen.setValue(QLatin1String(schluessel), 81);
    QTRY_VERIFY(lies(datei()).contains("Gewicht=81\n"));
    QVERIFY(uhr.elapsed() < 20000);
}

void TestEinstellungsdatei::aLockThatIsHeldStays()
{
    QLockFile anderes(datei() + QStringLiteral(".lock"));
    QVERIFY(anderes.lock());
    const Einstellungen einstellungen(datei(), QSettings::IniFormat);
    QVERIFY(QFile::exists(datei() + QStringLiteral(".lock")));
    QVERIFY(anderes.isLocked());
    anderes.unlock();
}

void TestEinstellungsdatei::whatAKilledWriteLeftIsRemoved_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addColumn<int>("sekundenAlt");
    QTest::addColumn<bool>("bleibt");
    const QString rest = QStringLiteral("Mahlberg.conf.qWeRtZ");
    QTest::newRow("empty") << rest << QByteArray() << 3600 << false;
    QTest::newRow("half written") << rest << heil.first(15) << 3600 << false;
    QTest::newRow("whole, but it never took its place") << rest << heil << 3600 << false;
    QTest::newRow("of a dated copy")
        << QStringLiteral("Mahlberg 2026-11-20 14.03.05.conf.schreibe-aB3xYz") << kaputt << 3600
        << false;
    QTest::newRow("perhaps just being written") << rest << heil << 0 << true;
    QTest::newRow("the user's own copy")
        << QStringLiteral("Mahlberg.conf.backup") << heil << 3600 << true;
    QTest::newRow("another file's")
        << QStringLiteral("Anderes.conf.qWeRtZ") << heil << 3600 << true;
}

void TestEinstellungsdatei::whatAKilledWriteLeftIsRemoved()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, inhalt);
    QFETCH(int, sekundenAlt);
    QFETCH(bool, bleibt);
    schreibe(heil);
    QFile rest(pfad(QStringLiteral("e/") + name));
    QVERIFY(rest.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QCOMPARE(rest.write(inhalt), inhalt.size());
    QVERIFY(rest.setFileTime(QDateTime::currentDateTime().addSecs(-sekundenAlt),
                             QFile::FileModificationTime));
    const Einstellungen einstellungen(datei(), QSettings::IniFormat);
    QCOMPARE(rest.exists(), bleibt);
    QCOMPARE(lies(datei()), heil);
    QCOMPARE(kopien(), QStringList());
}

void TestEinstellungsdatei::aDamagedFileIsKept_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("a line without a value") << kaputt;
    QTest::newRow("a group without its end") << QByteArray("[Gen\nGewicht=80.5\n");
    QTest::newRow("zeros") << QByteArray(300, '\0');
    QTest::newRow("zeros after the beginning") << heil + QByteArray(300, '\0');
    QTest::newRow("zeros in a value") << QByteArray("[General]\nGewicht=8\0\0\0\n", 24);
    QTest::newRow("bytes that are no text") << QByteArray("[General]\nGewicht=\xff\xfe\n");
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n=\n");
}

void TestEinstellungsdatei::aDamagedFileIsKept()
{
    QFETCH(QByteArray, inhalt);
    schreibe(inhalt);
    const QDateTime vorher = QDateTime::currentDateTime().addSecs(-1);
    starteUndSetze(datei(), 81);
    QVERIFY(lies(datei()).contains("Gewicht=81\n"));
    QCOMPARE(kopien().size(), 1);
    const QString kopie = kopien().constFirst();
    QCOMPARE(lies(pfad(QStringLiteral("e/") + kopie)), inhalt);
    QCOMPARE(rechte(pfad(QStringLiteral("e/") + kopie)), QStringLiteral("600"));
    const auto wann =
        QDateTime::fromString(kopie, QStringLiteral("'Mahlberg 'yyyy-MM-dd HH.mm.ss'.conf'"));
    QVERIFY2(wann >= vorher && wann <= QDateTime::currentDateTime(), qPrintable(kopie));
}

void TestEinstellungsdatei::aSoundFileIsNotCopied_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("written by the program") << heil;
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("with blank lines, a remark and an umlaut")
        << QByteArray("; Möhre\r\n\r\n[General]\r\n\tGewicht = 80.5\r\n");
    QTest::newRow("other settings") << QByteArray("[a]\nb=@Variant(\\0\\0\\0\\x7f)\n");
}

void TestEinstellungsdatei::aSoundFileIsNotCopied()
{
    QFETCH(QByteArray, inhalt);
    schreibe(inhalt);
    starteUndSetze(datei(), 81);
    QVERIFY(lies(datei()).contains("Gewicht=81\n"));
    QCOMPARE(kopien(), QStringList());
}

/// A start that changes nothing leaves the damaged file, and the next one meets it again.
void TestEinstellungsdatei::theSameDamageIsKeptOnce()
{
    schreibe(kaputt);
    for (int start = 0; start < 3; ++start) {
        const Einstellungen einstellungen(datei(), QSettings::IniFormat);
        QCOMPARE(einstellungen.value(QLatin1String(schluessel)).toDouble(), 80.5);
    }
    QCOMPARE(lies(datei()), kaputt);
    QCOMPARE(kopien().size(), 1);
}

void TestEinstellungsdatei::tenCopiesAreKept()
{
    QStringList erwartet;
    for (int tag = 10; tag < 22; ++tag) {
        const QString name = QStringLiteral("Mahlberg 2020-01-%1 08.00.00.conf").arg(tag);
        QVERIFY(QFile(pfad(QStringLiteral("e/") + name)).open(QIODevice::WriteOnly));
        erwartet << name;
    }
    QFile fremde(pfad(QStringLiteral("e/Mahlberg 2019.conf"))); // kept by the user
    QVERIFY(fremde.open(QIODevice::WriteOnly));
    schreibe(kaputt);
    starteUndSetze(datei(), 81);
    QStringList gesehen = kopien();
    QCOMPARE(gesehen.takeFirst(), QStringLiteral("Mahlberg 2019.conf"));
    QCOMPARE(gesehen.size(), 10);
    QCOMPARE(lies(pfad(QStringLiteral("e/") + gesehen.takeLast())), kaputt);
    QCOMPARE(gesehen, erwartet.mid(3));
}

/// The second one of a second is younger than the first, and what somebody named himself is his.
void TestEinstellungsdatei::onlyTheOldestCopyGoes()
{
    const QString vonHand = QStringLiteral("Mahlberg 2020-01-09 08.00.00 Kopie.conf");
    const QString erste = QStringLiteral("Mahlberg 2020-01-10 08.00.00.conf");
    QStringList spaetere = {QStringLiteral("Mahlberg 2020-01-10 08.00.00 (2).conf")};
    for (int tag = 11; tag < 19; ++tag) {
        spaetere << QStringLiteral("Mahlberg 2020-01-%1 08.00.00.conf").arg(tag);
    }
    for (const QString &name : QStringList{vonHand, erste} + spaetere) {
        QVERIFY(QFile(pfad(QStringLiteral("e/") + name)).open(QIODevice::WriteOnly));
    }
    schreibe(kaputt);
    starteUndSetze(datei(), 81);
    QStringList gesehen = kopien();
    QCOMPARE(lies(pfad(QStringLiteral("e/") + gesehen.takeLast())), kaputt);
    QCOMPARE(gesehen, QStringList{vonHand} + spaetere);
}

void TestEinstellungsdatei::withoutRoomForACopyTheDamagedFileMovesAway()
{
    schreibe(kaputt);
    {
        const VolleFestplatte voll(10);
        const Einstellungen einstellungen(datei(), QSettings::IniFormat);
    }
    starteUndSetze(datei(), 81);
    QVERIFY(lies(datei()).contains("Gewicht=81\n"));
    QCOMPARE(kopien().size(), 1);
    QCOMPARE(lies(pfad(QStringLiteral("e/") + kopien().constFirst())), kaputt);
}

void TestEinstellungsdatei::aDamagedFileInAProtectedFolderStays()
{
    schreibe(kaputt);
    setzeRechte(m_ordner->path(), 0755);
    setzeRechte(datei(), 0666);
    {
        const OhneRechte ohneRechte;
        QVERIFY(ohneRechte.gelungen());
        starteUndSetze(datei(), 81);
    }
    QCOMPARE(lies(datei()), kaputt);
    QCOMPARE(kopien(), QStringList());
}

void TestEinstellungsdatei::aFileThatCantBeUsedStaysAsItIs_data()
{
    QTest::addColumn<mode_t>("dateirechte");
    QTest::addColumn<mode_t>("ordnerrechte");
    QTest::addColumn<double>("gelesen");
    QTest::newRow("not to be read") << mode_t(0200) << mode_t(0777) << 0.0;
    QTest::newRow("not to be read or written") << mode_t(0) << mode_t(0777) << 0.0;
    QTest::newRow("not to be written") << mode_t(0444) << mode_t(0777) << 80.5;
    QTest::newRow("in a protected folder") << mode_t(0444) << mode_t(0555) << 80.5;
    QTest::newRow("in a closed folder") << mode_t(0644) << mode_t(0) << 0.0;
}

void TestEinstellungsdatei::aFileThatCantBeUsedStaysAsItIs()
{
    QFETCH(mode_t, dateirechte);
    QFETCH(mode_t, ordnerrechte);
    QFETCH(double, gelesen);
    schreibe(heil);
    setzeRechte(m_ordner->path(), 0755);
    setzeRechte(datei(), dateirechte);
    setzeRechte(pfad(QStringLiteral("e")), ordnerrechte);
    {
        const OhneRechte ohneRechte;
        QVERIFY(ohneRechte.gelungen());
        Einstellungen einstellungen(datei(), QSettings::IniFormat);
        QSignalSpy gescheitert(&einstellungen, &Einstellungen::nichtGeschrieben);
        QCOMPARE(einstellungen.value(QLatin1String(schluessel)).toDouble(), gelesen);
        einstellungen.setValue(QLatin1String(schluessel), 81);
        QCOMPARE(einstellungen.value(QLatin1String(schluessel)).toDouble(), 81.0);
        QTRY_COMPARE(gescheitert.size(), 1);
    }
    setzeRechte(pfad(QStringLiteral("e")), 0755);
    QCOMPARE(rechte(datei()), QString::number(dateirechte, 8));
    QCOMPARE(lies(datei()), heil);
    QCOMPARE(QDir(pfad(QStringLiteral("e"))).entryList(QDir::Files),
             QStringList{QStringLiteral("Mahlberg.conf")});
}

void TestEinstellungsdatei::aFailedWriteIsToldOnceAndItsEndAsWell()
{
    Einstellungen einstellungen(datei(), QSettings::IniFormat);
    QSignalSpy gescheitert(&einstellungen, &Einstellungen::nichtGeschrieben);
    QSignalSpy gelungen(&einstellungen, &Einstellungen::wiederGeschrieben);
    einstellungen.setValue(QLatin1String(schluessel), 79);
    QTRY_VERIFY(lies(datei()).contains("Gewicht=79\n"));
    QCOMPARE(gescheitert.size() + gelungen.size(), 0);

    QVERIFY(QFile::remove(datei()) && QDir().mkpath(datei()));
    einstellungen.setValue(QLatin1String(schluessel), 80);
    QTRY_COMPARE(gescheitert.size(), 1);
    QCOMPARE(gescheitert[0], QVariantList{datei()});
    Zeitzaehler zaehler;
    einstellungen.installEventFilter(&zaehler);
    einstellungen.setValue(QLatin1String(schluessel), 80.5);
    einstellungen.sync(); // some settings don't wait
    QTRY_VERIFY(zaehler.abgelaufen > 0);
    QCOMPARE(gescheitert.size(), 1);
    QCOMPARE(gelungen.size(), 0);

    QVERIFY(QDir().rmdir(datei()));
    einstellungen.setValue(QLatin1String("Groesse"), 1.8);
    QTRY_COMPARE(gelungen.size(), 1);
    QCOMPARE(lies(datei()), QByteArray("[General]\nGewicht=80.5\nGroesse=1.8\n"));
    QCOMPARE(gescheitert.size(), 1);

    QVERIFY(QFile::remove(datei()) && QDir().mkpath(datei()));
    einstellungen.setValue(QLatin1String(schluessel), 81);
    QTRY_COMPARE(gescheitert.size(), 2); // the next time is told again
    QCOMPARE(gelungen.size(), 1);
}

void TestEinstellungsdatei::whatCouldNotBeWrittenIsWrittenAtTheEnd()
{
    {
        Einstellungen einstellungen(datei(), QSettings::IniFormat);
        QSignalSpy gescheitert(&einstellungen, &Einstellungen::nichtGeschrieben);
        QVERIFY(QFile::remove(datei()) && QDir().mkpath(datei()));
        einstellungen.setValue(QLatin1String(schluessel), 80.5);
        QTRY_COMPARE(gescheitert.size(), 1);
        QVERIFY(QDir().rmdir(datei()));
    }
    QCOMPARE(lies(datei()), heil);
}

QTEST_MAIN(TestEinstellungsdatei)
#include "TestEinstellungsdatei.moc"
