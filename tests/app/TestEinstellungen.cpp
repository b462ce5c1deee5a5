#include "Einstellungen.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace {

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

} // namespace

/// The user defaults: read at once, written a little later.
class TestEinstellungen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aValueIsReadAtOnceAndWrittenLater();
    void manyValuesAreOneWrite();
    void nothingIsWrittenWhileAButtonIsHeld();
    void syncWritesAtOnce();
    void theEndWrites();

private:
    QByteArray aufDerPlatte() const
    {
        QFile datei(m_datei);
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_ordner;
    QString m_datei;
    std::unique_ptr<Einstellungen> m_einstellungen;
};

void TestEinstellungen::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    m_datei = m_ordner->filePath(QStringLiteral("probe.ini"));
    m_einstellungen = std::make_unique<Einstellungen>(m_datei, QSettings::IniFormat);
}

void TestEinstellungen::cleanup()
{
    m_einstellungen.reset();
}

void TestEinstellungen::aValueIsReadAtOnceAndWrittenLater()
{
    m_einstellungen->setValue(QStringLiteral("Gewicht"), 80.5);
    QCOMPARE(m_einstellungen->value(QStringLiteral("Gewicht")).toDouble(), 80.5);
    QCoreApplication::processEvents();
    QCOMPARE(aufDerPlatte(), QByteArray());
    QTRY_VERIFY(aufDerPlatte().contains("Gewicht=80.5\n"));
    // and once more after that
    m_einstellungen->setValue(QStringLiteral("Gewicht"), 81);
    QTRY_VERIFY(aufDerPlatte().contains("Gewicht=81\n"));
}

void TestEinstellungen::manyValuesAreOneWrite()
{
    QElapsedTimer uhr;
    uhr.start();
    for (int schritt = 0; schritt <= 400; ++schritt) {
        m_einstellungen->setValue(QStringLiteral("Gewicht"), 30 + schritt * 0.5);
        QCoreApplication::processEvents();
        if (uhr.elapsed() < 400) { // on a machine that is busy with other things, time runs out
            QCOMPARE(aufDerPlatte(), QByteArray());
        }
    }
    QTRY_VERIFY(aufDerPlatte().contains("Gewicht=230\n"));
}

void TestEinstellungen::nothingIsWrittenWhileAButtonIsHeld()
{
    Zeitzaehler zaehler;
    m_einstellungen->installEventFilter(&zaehler);
    QWidget regler;
    regler.show();
    QVERIFY(QTest::qWaitForWindowExposed(&regler));
    QTest::mousePress(regler.windowHandle(), Qt::LeftButton);
    m_einstellungen->setValue(QStringLiteral("Gewicht"), 80.5);
    QCoreApplication::processEvents(); // the wait begins
    QTRY_VERIFY(zaehler.abgelaufen >= 2);
    QCOMPARE(aufDerPlatte(), QByteArray());
    QTest::mouseRelease(regler.windowHandle(), Qt::LeftButton);
    QTRY_VERIFY(aufDerPlatte().contains("Gewicht=80.5\n"));
}

void TestEinstellungen::syncWritesAtOnce()
{
    m_einstellungen->setValue(QStringLiteral("Gewicht"), 80.5);
    m_einstellungen->sync();
    QVERIFY(aufDerPlatte().contains("Gewicht=80.5\n"));
}

void TestEinstellungen::theEndWrites()
{
    m_einstellungen->setValue(QStringLiteral("Gewicht"), 80.5);
    QCoreApplication::processEvents();
    m_einstellungen.reset();
    QVERIFY(aufDerPlatte().contains("Gewicht=80.5\n"));
}

QTEST_MAIN(TestEinstellungen)
#include "TestEinstellungen.moc"
