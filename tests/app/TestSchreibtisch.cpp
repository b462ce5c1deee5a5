#include "Erscheinungsbild.h"
#include "Schreibtisch.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QPalette>
#include <QProcess>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <memory>
#include <optional>

/// The portal of a desktop: answers what it was told to, and says when that changes.
class Probeportal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint schema = 0;
    QStringList gefragt;

public Q_SLOTS:
    QDBusVariant Read(const QString &bereich, const QString &name)
    {
        gefragt << bereich + u' ' + name;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(schema)));
    }
};

/// Windows that follow the desktop while they are open: its portal, on a bus of the test's own, and
/// its palette.
class TestSchreibtisch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void thePortalIsAskedAtTheStart_data();
    void thePortalIsAskedAtTheStart();
    void windowsFollowThePortal();
    void otherSettingsOfThePortalMeanNothing();
    void theUsersChoiceGoesBeforeTheDesktop();
    void windowsFollowThePalette();
    void withoutAPortalNothingHappens();
    void withoutABusNothingHappens_data();
    void withoutABusNothingHappens();

private:
    void frage() const;
    void melde(const QString &bereich, const QString &name, uint wert) const;
    QDBusConnection programm() const { return QDBusConnection(QStringLiteral("programm")); }
    QDBusConnection desktop() const { return QDBusConnection(QStringLiteral("desktop")); }

    QProcess m_bus;
    Probeportal m_portal;
    std::unique_ptr<Schreibtisch> m_schreibtisch;
};

namespace {

const QString aussehen = QStringLiteral("org.freedesktop.appearance");
const QString farbschema = QStringLiteral("color-scheme");

bool istDunkel()
{
    return QApplication::palette().color(QPalette::Window).lightness() < 128;
}

/// The style of a desktop that paints its windows in this colour.
class Probestil : public QProxyStyle
{
public:
    explicit Probestil(QColor farbe)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
        , m_farbe(farbe)
    {
    }
    using QProxyStyle::polish;
    void polish(QPalette &palette) override { palette.setColor(QPalette::Window, m_farbe); }

private:
    QColor m_farbe;
};

} // namespace

void TestSchreibtisch::initTestCase()
{
    m_bus.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"),
                 QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
    QVERIFY2(m_bus.waitForReadyRead(), qPrintable(m_bus.errorString()));
    const QString adresse = QString::fromLatin1(m_bus.readLine()).trimmed();
    for (const char *name : {"programm", "desktop"}) {
        QVERIFY(QDBusConnection::connectToBus(adresse, QLatin1String(name)).isConnected());
    }
    QVERIFY(desktop().registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                                     QDBusConnection::ExportAllSlots));
}

void TestSchreibtisch::init()
{
    QVERIFY(desktop().registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    m_portal.schema = 0;
    m_portal.gefragt.clear();
    m_schreibtisch = std::make_unique<Schreibtisch>();
    folgeSchreibtisch(*m_schreibtisch);
    zeigeErscheinungsbild(Erscheinungsbild::System);
}

void TestSchreibtisch::cleanup()
{
    Q_EMIT m_schreibtisch->gesagt(std::nullopt);
    m_schreibtisch.reset();
}

void TestSchreibtisch::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(QStringLiteral("programm"));
    QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
    m_bus.kill();
    m_bus.waitForFinished();
}

/// Asks, and waits for the answer.
void TestSchreibtisch::frage() const
{
    QSignalSpy gesagt(m_schreibtisch.get(), &Schreibtisch::gesagt);
    m_schreibtisch->frage(programm());
    QTRY_COMPARE(gesagt.count(), 1);
}

void TestSchreibtisch::melde(const QString &bereich, const QString &name, uint wert) const
{
    QDBusMessage zeichen = QDBusMessage::createSignal(
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    zeichen << bereich << name << QVariant::fromValue(QDBusVariant(wert));
    QVERIFY(desktop().send(zeichen));
}

void TestSchreibtisch::thePortalIsAskedAtTheStart_data()
{
    QTest::addColumn<uint>("schema");
    QTest::addColumn<bool>("dunkel");
    QTest::newRow("no preference") << 0U << false;
    QTest::newRow("dark") << 1U << true;
    QTest::newRow("light") << 2U << false;
    QTest::newRow("a number that is none yet") << 7U << false;
}

void TestSchreibtisch::thePortalIsAskedAtTheStart()
{
    QFETCH(uint, schema);
    m_portal.schema = schema;
    QSignalSpy gesagt(m_schreibtisch.get(), &Schreibtisch::gesagt);
    m_schreibtisch->frage(programm());
    QCOMPARE(gesagt.count(), 0); // nobody waits for it
    QTRY_COMPARE(gesagt.count(), 1);
    // What leaves it open leaves it to the palette, and is not taken for light.
    QCOMPARE(gesagt.first().first().value<std::optional<bool>>().has_value(),
             schema == 1 || schema == 2);
    QCOMPARE(m_portal.gefragt, QStringList{aussehen + u' ' + farbschema});
    QTEST(istDunkel(), "dunkel");
}

void TestSchreibtisch::windowsFollowThePortal()
{
    frage();
    QWidget fenster;
    for (const uint schema : {1U, 2U, 1U, 0U}) {
        melde(aussehen, farbschema, schema);
        QTRY_COMPARE(istDunkel(), schema == 1);
        QCOMPARE(fenster.palette().color(QPalette::Window),
                 QApplication::palette().color(QPalette::Window));
    }
}

void TestSchreibtisch::otherSettingsOfThePortalMeanNothing()
{
    QSignalSpy gesagt(m_schreibtisch.get(), &Schreibtisch::gesagt);
    m_schreibtisch->frage(programm());
    QTRY_COMPARE(gesagt.count(), 1);
    melde(aussehen, QStringLiteral("contrast"), 1);
    melde(QStringLiteral("org.example"), farbschema, 1);
    melde(aussehen, farbschema, 2); // comes last
    QTRY_COMPARE(gesagt.count(), 2);
    QVERIFY(!istDunkel());
}

void TestSchreibtisch::theUsersChoiceGoesBeforeTheDesktop()
{
    frage();
    QSignalSpy gesagt(m_schreibtisch.get(), &Schreibtisch::gesagt);
    zeigeErscheinungsbild(Erscheinungsbild::Hell);
    melde(aussehen, farbschema, 1);
    QTRY_VERIFY(!gesagt.isEmpty() && gesagt.last().first().value<std::optional<bool>>() == true);
    QVERIFY(!istDunkel());
    zeigeErscheinungsbild(Erscheinungsbild::System); // it was listened to all the same
    QVERIFY(istDunkel());
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    melde(aussehen, farbschema, 2);
    QTRY_VERIFY(gesagt.last().first().value<std::optional<bool>>() == false);
    QVERIFY(istDunkel());
}

/// A desktop that changes its palette tells every window of it.
void TestSchreibtisch::windowsFollowThePalette()
{
    QWindow fenster;
    fenster.create();
    const auto faerbe = [&fenster](const QColor &farbe) {
        QApplication::setStyle(new Probestil(farbe));
        QEvent umgefaerbt(QEvent::ThemeChange);
        QCoreApplication::sendEvent(&fenster, &umgefaerbt);
    };
    faerbe(Qt::black);
    QVERIFY(istDunkel());
    QVERIFY(QApplication::palette().color(QPalette::Window) != QColor(Qt::black)); // our own dark
    faerbe(Qt::white);
    QVERIFY(!istDunkel());
    zeigeErscheinungsbild(Erscheinungsbild::Hell);
    faerbe(Qt::black);
    QVERIFY(!istDunkel());
    QApplication::setStyle(QStringLiteral("Fusion"));
}

void TestSchreibtisch::withoutAPortalNothingHappens()
{
    QVERIFY(desktop().unregisterService(QStringLiteral("org.freedesktop.portal.Desktop")));
    QSignalSpy gesagt(m_schreibtisch.get(), &Schreibtisch::gesagt);
    m_schreibtisch->frage(programm());
    // What is asked after it is answered after it.
    auto *kind = m_schreibtisch->findChild<QDBusPendingCallWatcher *>();
    QVERIFY(kind != nullptr);
    QSignalSpy beantwortet(kind, &QObject::destroyed);
    QTRY_COMPARE(beantwortet.count(), 1);
    QCOMPARE(gesagt.count(), 0);
    QVERIFY(!istDunkel());
}

void TestSchreibtisch::withoutABusNothingHappens_data()
{
    QTest::addColumn<QByteArray>("adresse");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("one that has gone") << QByteArray("unix:path=/nowhere/bus");
}

void TestSchreibtisch::withoutABusNothingHappens()
{
    QFETCH(QByteArray, adresse);
    const QByteArray vorher = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray laufzeit = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", "/nowhere");
    if (adresse.isNull()) {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    } else {
        qputenv("DBUS_SESSION_BUS_ADDRESS", adresse);
    }
    QElapsedTimer uhr;
    uhr.start();
    m_schreibtisch->frage(Schreibtisch::sitzungsbus());
    QVERIFY2(uhr.elapsed() < 1000, "the start waited for a bus that is not there");
    QVERIFY(m_schreibtisch->findChild<QDBusPendingCallWatcher *>() == nullptr);
    qputenv("XDG_RUNTIME_DIR", laufzeit);
    qputenv("DBUS_SESSION_BUS_ADDRESS", vorher);
}

QTEST_MAIN(TestSchreibtisch)
#include "TestSchreibtisch.moc"
