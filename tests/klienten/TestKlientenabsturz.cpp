// The program is killed while it saves, and two desks write the same client again and again: what
// was told as saved is there, whole.

#include "Pruefspeicher.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A state of a person that shows when half of it is of another one: a long text of one letter, and
/// its number in three fields.
Person stand(Person person, int nummer)
{
    person.name = QStringLiteral("Stand %1").arg(nummer);
    person.nummer = QString::number(nummer);
    person.notizen = QString(20000, QChar(u'a' + nummer % 26));
    return person;
}

} // namespace

class TestKlientenabsturz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { Pruefspeicher::zeilen(); }
    void init() { m_speicher.beginne(); }

    void killedDuringASave();
    void twoDesksCollide();

private:
    pid_t zweige(const std::function<bool()> &aufgabe);

    Pruefspeicher m_speicher;
};

/// Another process that does something and ends with 0 when it went well.
pid_t TestKlientenabsturz::zweige(const std::function<bool()> &aufgabe)
{
    const pid_t kind = fork();
    if (kind == 0) {
        _exit(aufgabe() ? 0 : 1);
    }
    return kind;
}

void TestKlientenabsturz::killedDuringASave()
{
    // On a server nothing but the connection is lost; there, fewer times do.
    const int male = m_speicher.istServer() ? 100 : 1000;
    Person person;
    {
        person = stand(person, 0);
        QVERIFY(m_speicher.tisch()->sichere(person));
    }
    int getoetet = 0;
    int neue = 0;
    qint64 dauer = 0; // of the last save that came to its end
    for (int nummer = 1; getoetet < male; ++nummer) {
        QVERIFY(nummer < 5 * male);
        const Person neu = stand(person, nummer);
        int rohr[2] = {};
        QCOMPARE(pipe(rohr), 0);
        const pid_t kind = zweige([&] {
            const auto tisch = m_speicher.tisch();
            Person ihre = neu;
            const char bereit = 1;
            return tisch->oeffne() && write(rohr[1], &bereit, 1) == 1 && tisch->sichere(ihre);
        });
        char bereit = 0;
        QCOMPARE(read(rohr[0], &bereit, 1), 1);
        QElapsedTimer uhr;
        uhr.start();
        if (dauer > 0) {
            const qint64 moment = QRandomGenerator::global()->bounded(dauer);
            while (uhr.nsecsElapsed() < moment) {
            }
            kill(kind, SIGKILL);
        }
        int ende = 0;
        QCOMPARE(waitpid(kind, &ende, 0), kind);
        close(rohr[0]);
        close(rohr[1]);
        const bool sofort = WIFSIGNALED(ende);
        QVERIFY(sofort || WEXITSTATUS(ende) == 0);
        dauer = sofort ? dauer : uhr.nsecsElapsed();

        // A server may finish what it was told after the one who told it is gone.
        std::optional<Person> jetzt;
        QVERIFY(m_speicher.tisch()->lies(person.kennung, jetzt));
        QVERIFY(jetzt);
        const bool istNeu = jetzt->nummer == neu.nummer;
        QVERIFY(istNeu || sofort);
        Person erwartet = istNeu ? neu : person;
        erwartet.fassung = person.fassung + (istNeu ? 1 : 0);
        QVERIFY(*jetzt == erwartet);
        getoetet += sofort ? 1 : 0;
        neue += sofort && istNeu ? 1 : 0;
        person = *jetzt;
    }
    qInfo("%d saves killed: %d times the new state is there, %d times the old one", getoetet, neue,
          getoetet - neue);
    QVERIFY(neue < male);
}

void TestKlientenabsturz::twoDesksCollide()
{
    constexpr int male = 1000;
    Person person;
    person.name = QStringLiteral("Anna");
    QVERIFY(m_speicher.tisch()->sichere(person));
    // Each desk adds its sign to the notes; whoever was late takes over what stands there and tries
    // once more, as a user does who sees both.
    const auto schreibe = [&](QChar zeichen) {
        const auto tisch = m_speicher.tisch();
        std::optional<Person> meine;
        if (!tisch->lies(person.kennung, meine) || !meine) {
            return false;
        }
        for (int mal = 0; mal < male; ++mal) {
            for (;;) {
                Person neu = *meine;
                neu.notizen += zeichen;
                const Schreibausgang ausgang = tisch->sichere(neu);
                if (ausgang) {
                    meine = neu;
                    break;
                }
                // SQLite lets nobody queue, so that a desk that never pauses can keep the other
                // out.
                const bool gesperrt = ausgang.hindernis.hindernis == Hindernis::Gesperrt;
                if ((ausgang.art != Schreibausgang::Art::Ueberholt && !gesperrt) ||
                    !tisch->lies(person.kennung, meine) || !meine) {
                    return false;
                }
            }
        }
        return true;
    };
    const pid_t kinder[] = {zweige([&] { return schreibe(u'1'); }),
                            zweige([&] { return schreibe(u'2'); })};
    for (const pid_t kind : kinder) {
        int ende = 0;
        QCOMPARE(waitpid(kind, &ende, 0), kind);
        QVERIFY(WIFEXITED(ende));
        QCOMPARE(WEXITSTATUS(ende), 0);
    }
    std::optional<Person> jetzt;
    QVERIFY(m_speicher.tisch()->lies(person.kennung, jetzt));
    QCOMPARE(jetzt->notizen.count(u'1'), male);
    QCOMPARE(jetzt->notizen.count(u'2'), male);
    QCOMPARE(jetzt->fassung, 2 * male + 1);
}

QTEST_GUILESS_MAIN(TestKlientenabsturz)
#include "TestKlientenabsturz.moc"
