#include "Dateihueter.h"
#include "Dateiprobe.h"
#include "Sicherungen.h"

#include <memory>

using Sicherungen::Beiseitegelegtes;
using Wie = Beiseitegelegtes::Wie;

/// The copies that are kept of a file.
class TestSicherungen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aCopyIsTakenBack();
    void theOnlyCopyIsNotTakenBack_data();
    void theOnlyCopyIsNotTakenBack();
    void whatWasMovedComesBackToAFreePlaceOnly_data();
    void whatWasMovedComesBackToAFreePlaceOnly();
    void allOfThemNewestFirst();
    void whatThereIsIsKeptBeforeAnEarlierState_data();
    void whatThereIsIsKeptBeforeAnEarlierState();
    void whatIsPutAsideAgainIsNew();
    void ofOneSecondToo();
    void aRestDoesNotMakeACopyOlder();
    void theLargestStoreStays_data();
    void theLargestStoreStays();
    void othersMayNothing_data();
    void othersMayNothing();
    void othersMayNothingWithWhatIsMoved();
    void whatIsNoCopyKeepsItsRights();

private:
    /// Puts aside what is there, like a program that has not read it.
    Beiseitegelegtes lege(const QByteArray &bytes, const QDateTime &jetzt) const
    {
        m_probe->lege(bytes);
        Beiseitegelegtes eines = Sicherungen::legeBeiseite(
            m_probe->path(), Archivdatei::leseBytes(m_probe->path()), jetzt);
        Sicherungen::begrenze(m_probe->path(), eines);
        return eines;
    }
    void legeReste(int anzahl, const QDateTime &jetzt) const
    {
        for (int i = 0; i < anzahl; ++i) {
            QVERIFY(lege("Rest " + jetzt.toString().toUtf8() + QByteArray::number(i),
                         jetzt.addSecs(qint64(60) * i))
                        .wie == Wie::Kopiert);
        }
    }
    void legeOrdnerAn() const
    {
        QVERIFY(QDir(m_probe->path(QStringLiteral("."))).mkdir(QStringLiteral("Sicherungen")));
    }

    std::unique_ptr<Dateiprobe> m_probe;
};

namespace {

const QDateTime moment(QDate(2026, 11, 20), QTime(14, 3, 5));
constexpr qint64 zuGross = qint64(64) * 1024 * 1024 + 1;
const QString kopiename = QStringLiteral("Eigene 2026-11-20 14.03.05.daten");
const QStringList nurDieDatei = {QStringLiteral("Eigene.daten")};

} // namespace

void TestSicherungen::init()
{
    m_probe = std::make_unique<Dateiprobe>();
}

void TestSicherungen::aCopyIsTakenBack()
{
    m_probe->lege(speisebytes(1));
    m_probe->lege(speisebytes(1), kopiename);
    Sicherungen::nimmZurueck(m_probe->path(), {Wie::Kopiert, m_probe->path(kopiename)});
    QCOMPARE(m_probe->dateien(), nurDieDatei);
}

void TestSicherungen::theOnlyCopyIsNotTakenBack_data()
{
    QTest::addColumn<QByteArray>("jetzt");
    QTest::newRow("another store of the same size is there") << speisebytes(2);
    QTest::newRow("a longer one is there") << speisebytes(1, 2);
    QTest::newRow("nothing is there") << QByteArray();
}

void TestSicherungen::theOnlyCopyIsNotTakenBack()
{
    QFETCH(QByteArray, jetzt);
    m_probe->lege(speisebytes(1), kopiename);
    if (!jetzt.isEmpty()) {
        m_probe->lege(jetzt);
    }
    Sicherungen::nimmZurueck(m_probe->path(), {Wie::Kopiert, m_probe->path(kopiename)});
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(1));
    QCOMPARE(m_probe->bytes(), jetzt);
}

void TestSicherungen::whatWasMovedComesBackToAFreePlaceOnly_data()
{
    QTest::addColumn<bool>("frei");
    QTest::newRow("the place is free") << true;
    QTest::newRow("something is there") << false;
}

void TestSicherungen::whatWasMovedComesBackToAFreePlaceOnly()
{
    QFETCH(bool, frei);
    m_probe->lege("alt", kopiename);
    if (!frei) {
        m_probe->lege("neu");
    }
    Sicherungen::nimmZurueck(m_probe->path(), {Wie::Verschoben, m_probe->path(kopiename)});
    QCOMPARE(m_probe->bytes(), QByteArray(frei ? "alt" : "neu"));
    QCOMPARE(m_probe->bytes(kopiename), QByteArray(frei ? "" : "alt"));
}

void TestSicherungen::allOfThemNewestFirst()
{
    legeOrdnerAn();
    const QDate tag(2026, 11, 20);
    // A day's copy holds how the day ended.
    const QList<Sicherungen::Sicherung> erwartete = {
        {QStringLiteral("Eigene 2026-11-21 00.00.00.daten"), tag.addDays(1),
         QDateTime(tag.addDays(1), QTime(0, 0))},
        {QStringLiteral("Sicherungen/Eigene 2026-11-20.daten"), tag, {}},
        {QStringLiteral("Eigene 2026-11-20 14.03.05 (10).daten"), tag, moment},
        {QStringLiteral("Eigene 2026-11-20 14.03.05 (2).daten"), tag, moment},
        {QStringLiteral("Eigene 2026-11-20 14.03.05.daten"), tag, moment},
        {QStringLiteral("Eigene 2026-11-20 09.30.00.daten"), tag, QDateTime(tag, QTime(9, 30))},
        {QStringLiteral("Sicherungen/Eigene 2026-11-19.daten"), tag.addDays(-1), {}},
        {QStringLiteral("Eigene 2025-12-31 23.59.59.daten"), QDate(2025, 12, 31),
         QDateTime(QDate(2025, 12, 31), QTime(23, 59, 59))},
        {QStringLiteral("Sicherungen/Eigene 2025-12-30.daten"), QDate(2025, 12, 30), {}},
    };
    for (const Sicherungen::Sicherung &eine : erwartete) {
        m_probe->lege("Kopie", eine.path);
    }
    for (const char *keine :
         {"Eigene 2026-11-31 14.03.05.daten", "Eigene 2026-11-20 24.03.05.daten",
          "Eigene 2026-11-20.daten", "Andere 2026-11-20 14.03.05.daten",
          "Sicherungen/Eigene 2026-11-20 14.03.05.daten"}) {
        m_probe->lege("keine", QString::fromLatin1(keine));
    }
    const auto alle = Sicherungen::alle(m_probe->path());
    QCOMPARE(alle.size(), erwartete.size());
    for (int i = 0; i < alle.size(); ++i) {
        QCOMPARE(alle[i].path, m_probe->path(erwartete[i].path));
        QCOMPARE(alle[i].tag, erwartete[i].tag);
        QCOMPARE(alle[i].moment, erwartete[i].moment);
    }
}

void TestSicherungen::whatThereIsIsKeptBeforeAnEarlierState_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addColumn<qint64>("groesse");
    QTest::addColumn<QStringList>("dateien");
    const auto row = [](const char *wie, const QByteArray &inhalt, qint64 groesse,
                        const QStringList &dateien) {
        QTest::newRow(wie) << inhalt << groesse << dateien;
    };
    const QByteArray bestand = speisebytes(1);
    row("a store", bestand, bestand.size(), {kopiename, nurDieDatei[0]});
    row("a damaged one", bestand.chopped(1), bestand.size() - 1, {kopiename, nurDieDatei[0]});
    row("one too large to be read", bestand, zuGross, nurDieDatei);
    row("no file", {}, 0, {});
}

void TestSicherungen::whatThereIsIsKeptBeforeAnEarlierState()
{
    QFETCH(QByteArray, inhalt);
    QFETCH(qint64, groesse);
    QFETCH(QStringList, dateien);
    if (!inhalt.isEmpty()) {
        m_probe->lege(inhalt);
        QVERIFY(QFile::resize(m_probe->path(), groesse));
    }
    Dateihueter hueter;
    hueter.setUhr([] { return moment; });
    hueter.hebeAuf(m_probe->path());
    QCOMPARE(m_probe->dateien(), dateien);
    for (const QString &name : std::as_const(dateien)) {
        QCOMPARE(QFileInfo(m_probe->path(name)).size(), groesse);
    }
    QVERIFY(!dateien.contains(kopiename) || m_probe->bytes(kopiename) == inhalt);
}

/// Under its first date it would be the oldest copy, and the next ones would push it out, though
/// there is no other one of what was replaced just now.
void TestSicherungen::whatIsPutAsideAgainIsNew()
{
    legeReste(1, moment.addDays(-1));
    const QString zuerst = lege("x", moment).path;
    legeReste(8, moment.addDays(1));
    const Beiseitegelegtes wieder = lege("x", moment.addDays(2));
    QVERIFY(wieder.wie == Wie::Frueher);
    QCOMPARE(wieder.path, m_probe->path(QStringLiteral("Eigene 2026-11-22 14.03.05.daten")));
    QVERIFY(!QFile::exists(zuerst));
    legeReste(8, moment.addDays(3)); // the oldest one is the largest and stays
    QCOMPARE(m_probe->bytes(QStringLiteral("Eigene 2026-11-22 14.03.05.daten")), QByteArray("x"));
}

void TestSicherungen::ofOneSecondToo()
{
    lege("x", moment.addDays(-1));
    lege("ein anderer Rest", moment);
    QCOMPARE(lege("x", moment).path,
             m_probe->path(QStringLiteral("Eigene 2026-11-20 14.03.05 (2).daten")));
    QCOMPARE(lege("x", moment).path,
             m_probe->path(QStringLiteral("Eigene 2026-11-20 14.03.05 (2).daten")));
    QCOMPARE(m_probe->bytes(kopiename), QByteArray("ein anderer Rest"));
    QCOMPARE(m_probe->dateien().size(), 3);
}

/// What a killed program left long ago is put aside under its own date.
void TestSicherungen::aRestDoesNotMakeACopyOlder()
{
    lege("x", moment);
    QCOMPARE(lege("x", moment.addYears(-1)).path, m_probe->path(kopiename));
    QCOMPARE(m_probe->bytes(kopiename), QByteArray("x"));
}

void TestSicherungen::theLargestStoreStays_data()
{
    QTest::addColumn<QByteArray>("groesseres");
    QTest::addColumn<qint64>("groesse");
    QTest::newRow("beside a file too large to be read") << QByteArray("x") << zuGross;
    QTest::newRow("beside a larger one that is damaged")
        << speisebytes(7, 400).chopped(1) << qint64(0);
    QTest::newRow("beside a smaller store") << speisebytes(7, 200) << qint64(0);
}

void TestSicherungen::theLargestStoreStays()
{
    QFETCH(QByteArray, groesseres);
    QFETCH(qint64, groesse);
    m_probe->lege(groesseres, QStringLiteral("Eigene 2026-11-19 08.00.00.daten"));
    if (groesse > 0) {
        QVERIFY(QFile::resize(m_probe->path(QStringLiteral("Eigene 2026-11-19 08.00.00.daten")),
                              groesse));
    }
    lege(speisebytes(7, 300), moment);
    legeReste(12, moment.addDays(1));
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(7, 300));
    QVERIFY(!m_probe->dateien().contains(QStringLiteral("Eigene 2026-11-19 08.00.00.daten")));
    QCOMPARE(m_probe->dateien().size(), 11);
}

void TestSicherungen::othersMayNothing_data()
{
    QTest::addColumn<mode_t>("vorher");
    QTest::addColumn<mode_t>("nachher");
    QTest::newRow("everybody could read") << mode_t(0644) << mode_t(0600);
    QTest::newRow("everybody could do everything") << mode_t(0777) << mode_t(0700);
    QTest::newRow("the group could write") << mode_t(0420) << mode_t(0400);
    QTest::newRow("the user alone could") << mode_t(0600) << mode_t(0600);
    QTest::newRow("the user could only read") << mode_t(0400) << mode_t(0400);
    QTest::newRow("nobody could") << mode_t(0) << mode_t(0);
}

/// As soon as the program starts: earlier versions let others read what it is about people.
void TestSicherungen::othersMayNothing()
{
    QFETCH(mode_t, vorher);
    QFETCH(mode_t, nachher);
    legeOrdnerAn();
    const QStringList namen = {nurDieDatei[0], kopiename,
                               QStringLiteral("Eigene 2026-11-20 14.03.05 (2).daten"),
                               QStringLiteral("Sicherungen/Eigene 2026-11-19.daten")};
    for (const QString &name : namen) {
        m_probe->lege(speisebytes(1), name);
        m_probe->gibRechte(vorher, name);
    }
    Dateihueter().lesen(m_probe->path());
    for (const QString &name : namen) {
        QCOMPARE(m_probe->rechte(name), nachher);
    }
}

void TestSicherungen::othersMayNothingWithWhatIsMoved()
{
    m_probe->lege("x");
    QVERIFY(QFile::resize(m_probe->path(), zuGross));
    m_probe->gibRechte(0644, nurDieDatei[0]);
    Dateihueter hueter;
    hueter.setUhr([] { return moment; });
    QVERIFY(hueter.schreiben(m_probe->path(), speisen(1)));
    QCOMPARE(m_probe->rechte(kopiename), mode_t(0600));
}

void TestSicherungen::whatIsNoCopyKeepsItsRights()
{
    m_probe->lege(speisebytes(1), QStringLiteral("ziel"));
    QVERIFY(QFile::link(m_probe->path(QStringLiteral("ziel")), m_probe->path()));
    const QStringList fremde = {QStringLiteral("Eigene Kopie.daten"),
                                QStringLiteral("ganz anders")};
    for (const QString &name : fremde) {
        m_probe->lege(speisebytes(2), name);
        m_probe->gibRechte(0644, name);
    }
    QVERIFY(QFile::link(m_probe->path(fremde[1]),
                        m_probe->path(QStringLiteral("ziel 2026-11-20 14.03.05"))));
    m_probe->gibRechte(0644, QStringLiteral("ziel"));
    m_probe->gibRechte(0755);
    Dateihueter().lesen(m_probe->path());
    QCOMPARE(m_probe->rechte(QStringLiteral("ziel")), mode_t(0600));
    QCOMPARE(m_probe->rechte(fremde[0]), mode_t(0644));
    QCOMPARE(m_probe->rechte(fremde[1]), mode_t(0644));
    QCOMPARE(m_probe->rechte(QStringLiteral(".")), mode_t(0755));
}

QTEST_GUILESS_MAIN(TestSicherungen)
#include "TestSicherungen.moc"
