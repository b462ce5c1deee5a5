#include "Probefenster.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTest>

/// What the user chooses in the windows reaches the disk, and with care: whoever was at the file in
/// the meantime.
class TestEinstellungswahl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aChoiceIsOnTheDiskAtOnce_data();
    void aChoiceIsOnTheDiskAtOnce();
    void aPageSetupIsOnTheDiskSoon();

private:
    void verdirb() const;
    bool istEng() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

using Wahl = std::function<void(AppController &)>;

/// Chooses an entry of the menus by its text.
Wahl eintrag(const QString &text)
{
    return [text](AppController &controller) {
        for (QAction *aktion : controller.Hauptfenster->findChildren<QAction *>()) {
            if (aktion->text().remove(QLatin1Char('&')) == text) {
                aktion->trigger();
                return;
            }
        }
        QFAIL("no such entry");
    };
}

} // namespace

Q_DECLARE_METATYPE(Wahl)

void TestEinstellungswahl::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(3));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestEinstellungswahl::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

/// What a second program leaves that is killed while it writes, and a backup that is put back.
void TestEinstellungswahl::verdirb() const
{
    QVERIFY(QFile(m_heim->einstellungsdatei() + QStringLiteral(".lock"))
                .open(QIODevice::WriteOnly | QIODevice::NewOnly));
    QVERIFY(QFile::setPermissions(m_heim->einstellungsdatei(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                      QFile::ReadOther));
}

bool TestEinstellungswahl::istEng() const
{
    constexpr auto andere =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    return (QFile::permissions(m_heim->einstellungsdatei()) & andere) == 0;
}

void TestEinstellungswahl::aChoiceIsOnTheDiskAtOnce_data()
{
    QTest::addColumn<Wahl>("waehle");
    QTest::addColumn<QString>("schluessel");
    QTest::addColumn<QVariant>("wert");
    QTest::newRow("a language") << eintrag(QStringLiteral("English")) << QStringLiteral("Sprache")
                                << QVariant(QStringLiteral("en"));
    QTest::newRow("an appearance")
        << eintrag(QStringLiteral("Dunkel")) << QStringLiteral("Erscheinungsbild")
        << QVariant(QStringLiteral("2"));
    QTest::newRow("a toolbar put away") << Wahl([](AppController &controller) {
        controller.toolbar->toggleViewAction()->trigger();
    }) << QStringLiteral("mainToolbar/sichtbar")
                                        << QVariant(QStringLiteral("false"));
    QTest::newRow("items of the toolbar")
        << Wahl([](AppController &controller) {
               controller.toolbar->setKennungen({QStringLiteral("neu"), QStringLiteral("plan1")});
           })
        << QStringLiteral("mainToolbar/kennungen")
        << QVariant(QStringList({QStringLiteral("neu"), QStringLiteral("plan1")}));
    QTest::newRow("its style") << Wahl([](AppController &controller) {
        controller.toolbar->setDarstellung(Qt::ToolButtonTextOnly);
    }) << QStringLiteral("mainToolbar/stil")
                               << QVariant(QStringLiteral("1"));
}

void TestEinstellungswahl::aChoiceIsOnTheDiskAtOnce()
{
    QFETCH(Wahl, waehle);
    QFETCH(QString, schluessel);
    verdirb();
    QElapsedTimer uhr;
    uhr.start();
    waehle(m_fenster->controller());
    QVERIFY2(uhr.elapsed() < 20000, "nobody holds the lock, but it stopped the window");
    QTEST(m_heim->aufDerPlatte(schluessel), "wert");
    QVERIFY(istEng());
}

/// It is kept with all that isn't urgent, when the preview is closed.
void TestEinstellungswahl::aPageSetupIsOnTheDiskSoon()
{
    const Drucktuer tuer =
        systemdrucktuer(m_heim->einstellungen(), [](QWidget *, const Meldung &) { return 0; });
    tuer(m_fenster->controller().Hauptfenster,
         {QStringLiteral("Probe"), [](const QPageLayout &) { return 1; },
          [](QPainter &, const QPageLayout &, int) {
          }});
    auto *vorschau = m_fenster->controller().Hauptfenster->findChild<QPrintPreviewDialog *>();
    QVERIFY(QTest::qWaitForWindowExposed(vorschau));
    vorschau->findChild<QPrintPreviewWidget *>()->setLandscapeOrientation();
    verdirb();
    QElapsedTimer uhr;
    uhr.start();
    vorschau->close();
    QTRY_COMPARE(m_heim->aufDerPlatte(QStringLiteral("Seite/Querformat")).toString(),
                 QStringLiteral("true"));
    QVERIFY2(uhr.elapsed() < 20000, "nobody holds the lock, but it stopped the window");
    QVERIFY(istEng());
}

QTEST_MAIN(TestEinstellungswahl)
#include "TestEinstellungswahl.moc"
