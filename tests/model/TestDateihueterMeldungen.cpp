#include "Dateihueter.h"
#include "Dateiprobe.h"
#include "Stoerung.h"

#include <QRegularExpression>
#include <QSignalSpy>

#include <memory>

using Schritt = Stoerung::Schritt;
using Art = Dateimeldung::Art;

/// What the keeper of the files tells, and when it takes it back.
class TestDateihueterMeldungen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsSaidWhileAllIsWell();
    void aFailedReadIsToldOnce();
    void aDamagedFileIsToldOnce();
    void aFailedWriteIsToldOnceAndTakenBack();
    void nothingLeftToWriteSettlesToo();
    void whatWasPutAsideIsToldForAMinute();
    void aFurtherCopyIsAFurtherReport();
    void eachFileHasItsOwn();
    void theFailedTurnsOfAPlanAreToldOnce();
    void theLogSaysWhyAFileIsNotRead_data();
    void theLogSaysWhyAFileIsNotRead();
    void theLogSaysWhyAFileIsNotWritten();
    void theLogSaysWhereAFileWasPut();
    void theLogSaysThatADayHasNoCopy();

private:
    /// From now on just this is said about the file, to those who look after files.
    void erwarteImProtokoll(const QString &worte) const
    {
        QLoggingCategory::setFilterRules(QStringLiteral("mahlberg.dateien=true"));
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QTest::ignoreMessage(QtWarningMsg, qPrintable(m_probe->path() + QLatin1Char(' ') + worte));
    }
    bool schreibe(int nummer) const
    {
        return m_hueter->schreiben(m_probe->path(), speisen(nummer));
    }
    QList<Art> offen() const
    {
        QList<Art> arten;
        for (const Dateimeldung &meldung : m_hueter->offeneMeldungen()) {
            arten << meldung.art;
        }
        return arten;
    }
    QList<Art> gemeldet() const
    {
        QList<Art> arten;
        for (const auto &ruf : *m_gemeldet) {
            arten << ruf[0].value<Dateimeldung>().art;
        }
        return arten;
    }

    std::unique_ptr<Dateiprobe> m_probe;
    std::unique_ptr<Dateihueter> m_hueter;
    std::unique_ptr<QSignalSpy> m_gemeldet;
    std::unique_ptr<QSignalSpy> m_erledigt;
    QDateTime m_jetzt;
};

void TestDateihueterMeldungen::init()
{
    m_probe = std::make_unique<Dateiprobe>();
    m_hueter = std::make_unique<Dateihueter>();
    m_jetzt = QDateTime::currentDateTime();
    m_hueter->setUhr([this] { return m_jetzt; });
    m_gemeldet = std::make_unique<QSignalSpy>(m_hueter.get(), &Dateihueter::gemeldet);
    m_erledigt = std::make_unique<QSignalSpy>(m_hueter.get(), &Dateihueter::erledigt);
}

void TestDateihueterMeldungen::nothingIsSaidWhileAllIsWell()
{
    m_hueter->lesen(m_probe->path());
    QVERIFY(schreibe(1));
    m_hueter->lesen(m_probe->path());
    QVERIFY(schreibe(2));
    m_hueter->halte(m_probe->path(), speisen(3));
    QVERIFY(offen().isEmpty());
    QVERIFY(m_gemeldet->isEmpty());
    QVERIFY(m_erledigt->isEmpty());
}

void TestDateihueterMeldungen::aFailedReadIsToldOnce()
{
    QVERIFY(QDir().mkdir(m_probe->path())); // a folder is in the file's place
    m_hueter->lesen(m_probe->path());
    m_hueter->lesen(m_probe->path());
    QCOMPARE(gemeldet(), QList<Art>{Art::NichtLesbar});
    QCOMPARE(m_hueter->offeneMeldungen().size(), 1);
    QCOMPARE(m_hueter->offeneMeldungen()[0].path, m_probe->path());
    QVERIFY(m_hueter->offeneMeldungen()[0].kopie.isNull());
    QCOMPARE(m_hueter->offeneMeldungen()[0].grund,
             QStringLiteral("it is a folder or a device, not a file"));

    QVERIFY(!schreibe(1));
    QCOMPARE(offen(), QList<Art>({Art::NichtLesbar, Art::NichtGeschrieben}));
    QVERIFY(QDir().rmdir(m_probe->path()));
    QVERIFY(schreibe(1));
    QVERIFY(offen().isEmpty());
    QCOMPARE(m_erledigt->size(), 1);
    QCOMPARE((*m_erledigt)[0][0].toString(), m_probe->path());
}

void TestDateihueterMeldungen::aDamagedFileIsToldOnce()
{
    m_probe->lege("zerstört");
    m_hueter->lesen(m_probe->path());
    m_hueter->lesen(m_probe->path());
    QCOMPARE(gemeldet(), QList<Art>{Art::Beschaedigt});
    QVERIFY(!m_hueter->offeneMeldungen()[0].grund.isEmpty());
    QVERIFY(schreibe(1));
    QCOMPARE(m_erledigt->size(), 1);
    QCOMPARE(gemeldet(), QList<Art>({Art::Beschaedigt, Art::Beiseitegelegt}));
    QCOMPARE(offen(), QList<Art>{Art::Beiseitegelegt});
    QFile kopie(m_hueter->offeneMeldungen()[0].kopie);
    QVERIFY(kopie.open(QIODevice::ReadOnly));
    QCOMPARE(kopie.readAll(), QByteArray("zerstört"));
}

void TestDateihueterMeldungen::aFailedWriteIsToldOnceAndTakenBack()
{
    QVERIFY(schreibe(1));
    for (int i = 0; i < 3; ++i) {
        {
            const Stoerung stoerung(Schritt::Schreiben, 0, false, ENOSPC);
            QVERIFY(!schreibe(2));
            QVERIFY(!schreibe(3));
        }
        QCOMPARE(offen(), QList<Art>{Art::NichtGeschrieben});
        QCOMPARE(m_hueter->offeneMeldungen()[0].grund, QStringLiteral("No space left on device"));
        QCOMPARE(m_gemeldet->size(), i + 1);
        QVERIFY(schreibe(4 + i));
        QVERIFY(offen().isEmpty());
        QCOMPARE(m_erledigt->size(), i + 1);
    }
}

void TestDateihueterMeldungen::nothingLeftToWriteSettlesToo()
{
    QVERIFY(schreibe(1));
    const Stoerung stoerung(Schritt::Schreiben);
    QVERIFY(!schreibe(2));
    QVERIFY(schreibe(1)); // the change was taken back
    QVERIFY(offen().isEmpty());
    QCOMPARE(m_erledigt->size(), 1);
}

/// A food is saved by the plan and by the main window, and then the plan shows its table: the
/// report would be gone before it was seen.
void TestDateihueterMeldungen::whatWasPutAsideIsToldForAMinute()
{
    m_probe->lege("zerstört");
    const Lebensmittelverzeichnis vomPlan = speisen(1);
    m_hueter->halte(m_probe->path(), vomPlan);
    QVERIFY(schreibe(2));
    m_hueter->halte(m_probe->path(), vomPlan);
    m_jetzt = m_jetzt.addSecs(59);
    QVERIFY(schreibe(3));
    QCOMPARE(offen(), QList<Art>{Art::Beiseitegelegt});
    QVERIFY(m_erledigt->isEmpty());
    m_jetzt = m_jetzt.addSecs(1);
    QVERIFY(schreibe(4));
    QVERIFY(offen().isEmpty());
    QCOMPARE(m_erledigt->size(), 1);
}

void TestDateihueterMeldungen::aFurtherCopyIsAFurtherReport()
{
    QStringList kopien;
    for (const char *rest : {"eins", "zwei"}) {
        m_probe->lege(rest);
        QVERIFY(schreibe(1));
        QCOMPARE(offen(), QList<Art>{Art::Beiseitegelegt});
        kopien << m_hueter->offeneMeldungen()[0].kopie;
    }
    QVERIFY(kopien[0] != kopien[1]);
    QCOMPARE(m_gemeldet->size(), 2);
}

void TestDateihueterMeldungen::eachFileHasItsOwn()
{
    const QString plan = m_probe->path(QStringLiteral("Plan.daten"));
    const Stoerung stoerung(Schritt::Anlegen, 0, false);
    QVERIFY(!schreibe(1));
    QVERIFY(!m_hueter->schreiben(plan, speisen(1)));
    QCOMPARE(m_hueter->offeneMeldungen().size(), 2);
    QCOMPARE(m_hueter->offeneMeldungen()[0].path, m_probe->path());
    QCOMPARE(m_hueter->offeneMeldungen()[1].path, plan);
    m_probe->lege(speisebytes(1)); // holds what was to be written
    QVERIFY(schreibe(1));
    QCOMPARE(m_hueter->offeneMeldungen().size(), 1);
    QCOMPARE(m_hueter->offeneMeldungen()[0].path, plan);
}

void TestDateihueterMeldungen::theFailedTurnsOfAPlanAreToldOnce()
{
    const Lebensmittelverzeichnis vomPlan = speisen(1);
    const Stoerung stoerung(Schritt::Anlegen);
    for (int i = 0; i < 20; ++i) {
        m_hueter->halte(m_probe->path(), vomPlan);
        m_jetzt = m_jetzt.addSecs(10);
    }
    QCOMPARE(stoerung.ausfaelle(), 20);
    QCOMPARE(gemeldet(), QList<Art>{Art::NichtGeschrieben});
}

void TestDateihueterMeldungen::theLogSaysWhyAFileIsNotRead_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addColumn<qint64>("groesse");
    QTest::addColumn<QString>("worte");
    const auto row = [](const char *wie, const QByteArray &inhalt, qint64 groesse,
                        const char *worte) {
        QTest::newRow(wie) << inhalt << groesse << QString::fromLatin1(worte);
    };
    row("over 64 MiB", "x", 64 * 1024 * 1024 + 1, "could not be read it is too large");
    row("a store without its end", speisebytes(1).chopped(1), speisebytes(1).size() - 1,
        "holds no store of foods the data end too early");
    row("a folder", {}, 0, "could not be read it is a folder or a device, not a file");
}

void TestDateihueterMeldungen::theLogSaysWhyAFileIsNotRead()
{
    QFETCH(QByteArray, inhalt);
    QFETCH(qint64, groesse);
    QFETCH(QString, worte);
    if (inhalt.isEmpty()) {
        QVERIFY(QDir().mkdir(m_probe->path()));
    } else {
        m_probe->lege(inhalt);
        QVERIFY(QFile::resize(m_probe->path(), groesse));
    }
    erwarteImProtokoll(worte);
    m_hueter->lesen(m_probe->path());
    m_hueter->lesen(m_probe->path()); // said once
}

void TestDateihueterMeldungen::theLogSaysWhyAFileIsNotWritten()
{
    const Stoerung stoerung(Schritt::Schreiben, 0, false, ENOSPC);
    erwarteImProtokoll(QStringLiteral("could not be written No space left on device"));
    QVERIFY(!schreibe(1));
    QVERIFY(!schreibe(2));
}

void TestDateihueterMeldungen::theLogSaysWhereAFileWasPut()
{
    m_probe->lege("zerstört");
    m_jetzt = QDateTime(QDate(2026, 11, 20), QTime(14, 3, 5));
    erwarteImProtokoll(QStringLiteral("was put aside ") +
                       m_probe->path(QStringLiteral("Eigene 2026-11-20 14.03.05.daten")));
    QVERIFY(schreibe(1));
}

void TestDateihueterMeldungen::theLogSaysThatADayHasNoCopy()
{
    QVERIFY(schreibe(1));
    m_probe->datiere(m_jetzt.addDays(-1));
    m_probe->lege("in the way of the folder", QStringLiteral("Sicherungen"));
    erwarteImProtokoll(QStringLiteral("could not be copied before it was changed"));
    QVERIFY(schreibe(2));
}

QTEST_GUILESS_MAIN(TestDateihueterMeldungen)
#include "TestDateihueterMeldungen.moc"
